import QtQuick
import Tessarine

// Under a finished board: the score with its mark, and the answer's definition or translation.
Column {
    id: lines
    required property MainScreenModel game
    spacing: 6

    Row {
        anchors.horizontalCenter: parent.horizontalCenter
        spacing: 6
        Text {
            objectName: "scoreLine"
            text: lines.game.scoreLine
            font.pixelSize: 24
            font.bold: true
            color: TilePalette.currentMode
            Accessible.role: Accessible.AlertMessage
            Accessible.name: text
            Accessible.description: lines.game.scoreMark
        }
        Icon {
            anchors.verticalCenter: parent.verticalCenter
            symbol: lines.game.scoreMark
            size: 26
            color: TilePalette.fill(lines.game.scoreMarkColor)
        }
    }
    // A lost game names its mystery under "Picking up".
    Text {
        objectName: "lostAnswer"
        anchors.horizontalCenter: parent.horizontalCenter
        text: lines.game.lostAnswerLine
        textFormat: Text.PlainText
        font.pixelSize: 22
        font.bold: true
        font.letterSpacing: 2
        color: TilePalette.currentMode
        visible: text.length > 0
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }
    Text {
        width: parent.width
        text: lines.game.definitionLine
        textFormat: Text.PlainText
        color: TilePalette.text
        wrapMode: Text.Wrap
        font.pixelSize: 14
        horizontalAlignment: Text.AlignHCenter
        visible: text.length > 0
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }
}
