import QtQuick
import Tessarine

// The challenge's corner of the options sheet: its heading, the button that opens the match and
// the rules button.
Column {
    id: box
    required property OptionsModel options
    signal play()
    signal rules()
    spacing: 6

    Text {
        text: box.options.challengeHeading
        textFormat: Text.PlainText
        font.pixelSize: 17
        font.bold: true
        color: TilePalette.currentMode
        Accessible.role: Accessible.Heading
        Accessible.name: text
    }
    Row {
        spacing: 10
        Rectangle {
            objectName: "playChallengeButton"
            anchors.verticalCenter: parent.verticalCenter
            width: playLabel.implicitWidth + 28
            height: 40
            radius: 10
            color: TilePalette.tint
            Text {
                id: playLabel
                anchors.centerIn: parent
                text: box.options.playChallengeLabel
                textFormat: Text.PlainText
                font.pixelSize: 16
                font.bold: true
                color: "#ffffff"
            }
            TapHandler { onTapped: box.play() }
            Accessible.role: Accessible.Button
            Accessible.name: playLabel.text
            Accessible.onPressAction: box.play()
        }
        IconButton {
            objectName: "rulesButton"
            anchors.verticalCenter: parent.verticalCenter
            symbol: "info.circle"
            name: box.options.rulesTitle
            tint: TilePalette.tint
            onClicked: box.rules()
        }
    }
}
