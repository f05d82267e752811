pragma ComponentBehavior: Bound
import QtQuick
import Tessarine

// The guess distribution: one bar for each winning score, its length and colour from the core.
Rectangle {
    id: screen
    required property StatisticsModel statistics
    readonly property var values: statistics.sixth
    signal back()
    color: "white"

    Column {
        anchors.fill: parent
        anchors.topMargin: 8
        spacing: 10

        SheetHeader {
            title: screen.values.title
            backButton: screen.values.backButton
            fontSize: screen.values.fontSizeTitle
            onBack: screen.back()
        }
        Repeater {
            model: screen.values.bars
            Row {
                id: bar
                required property var modelData
                x: 12
                spacing: 8
                Text {
                    anchors.verticalCenter: parent.verticalCenter
                    text: bar.modelData.label
                    font.pixelSize: screen.values.fontSizeText
                    font.bold: true
                }
                Rectangle {
                    objectName: "bar" + bar.modelData.label.trim()
                    width: bar.modelData.length
                    height: screen.values.fontSizeText * 1.4
                    color: TilePalette.fill(bar.modelData.color)
                    border.color: "#000000"
                    border.width: 1
                    Accessible.role: Accessible.StaticText
                    Accessible.name: bar.modelData.label + ": " + bar.modelData.count
                }
                Text {
                    anchors.verticalCenter: parent.verticalCenter
                    text: bar.modelData.count
                    font.pixelSize: screen.values.fontSizeText
                }
            }
        }
    }
}
