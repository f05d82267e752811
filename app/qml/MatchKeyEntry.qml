pragma ComponentBehavior: Bound
import QtQuick
import Tessarine

// The accepting player's six key cells over the ten-key pad.
Column {
    id: entry
    required property MatchModel match
    spacing: 16

    Row {
        anchors.horizontalCenter: parent.horizontalCenter
        spacing: 6
        Repeater {
            model: entry.match.keyCells
            delegate: Rectangle {
                required property int index
                required property string modelData
                objectName: "keyCell_" + index
                width: 44
                height: 52
                radius: 4
                border.width: index === entry.match.keyCursor ? 4 : 1
                border.color: index === entry.match.keyCursor ? TilePalette.text : "#8e8e93"
                color: TilePalette.background
                Text {
                    anchors.centerIn: parent
                    text: parent.modelData
                    font.pixelSize: 28
                    font.bold: true
                    color: TilePalette.text
                }
                Accessible.role: Accessible.Cell
                Accessible.name: modelData.length > 0 ? modelData : "blank"
            }
        }
    }
    Keypad {
        objectName: "digitPad"
        anchors.horizontalCenter: parent.horizontalCenter
        model: entry.match.digitPad
        keyWidth: 64
        onKeyPressed: (index) => entry.match.pressDigit(index)
    }
}
