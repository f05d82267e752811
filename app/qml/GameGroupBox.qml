pragma ComponentBehavior: Bound
import QtQuick
import Tessarine

// One group of game types on the options sheet: its heading, which chooses the group, and its
// buttons, the chosen ones filled.
Rectangle {
    id: box
    required property var modelData
    signal groupChosen()
    signal itemChosen(int item)

    implicitHeight: column.height + 16
    radius: 10
    color: TilePalette.groupBackground
    border.width: modelData.selected ? 2 : 0
    border.color: TilePalette.currentMode

    Column {
        id: column
        x: 10
        y: 8
        width: parent.width - 20
        spacing: 8

        Row {
            width: parent.width
            spacing: 8
            Icon {
                id: groupMark
                anchors.verticalCenter: parent.verticalCenter
                symbol: box.modelData.selected ? "checkmark.square.fill" : "square"
                size: 22
                color: TilePalette.currentMode
            }
            Text {
                objectName: "group_" + box.modelData.label
                anchors.verticalCenter: parent.verticalCenter
                width: parent.width - groupMark.width - parent.spacing
                text: box.modelData.label
                textFormat: Text.PlainText
                wrapMode: Text.Wrap
                font.pixelSize: 17
                font.bold: true
                color: TilePalette.currentMode
                TapHandler { onTapped: box.groupChosen() }
                Accessible.role: Accessible.Button
                Accessible.name: text
                Accessible.onPressAction: box.groupChosen()
            }
        }
        Flow {
            width: parent.width
            spacing: 6
            Repeater {
                model: box.modelData.items
                delegate: Rectangle {
                    id: chip
                    required property var modelData
                    required property int index
                    objectName: "item_" + modelData.label
                    width: label.implicitWidth + 20
                    height: 34
                    radius: 8
                    color: modelData.selected ? TilePalette.tint : "transparent"
                    border.width: 1
                    border.color: TilePalette.tint
                    Text {
                        id: label
                        anchors.centerIn: parent
                        text: chip.modelData.label
                        textFormat: Text.PlainText
                        font.pixelSize: 14
                        color: chip.modelData.selected ? "#ffffff" : TilePalette.text
                    }
                    TapHandler { onTapped: box.itemChosen(chip.index) }
                    Accessible.role: Accessible.RadioButton
                    Accessible.name: label.text
                    Accessible.checked: modelData.selected
                    Accessible.onPressAction: box.itemChosen(chip.index)
                }
            }
        }
    }
}
