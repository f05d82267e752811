pragma ComponentBehavior: Bound
import QtQuick
import Tessarine

// The challenge statistics of the game type: four counts and a share button.
Rectangle {
    id: screen
    required property SessionHost host
    readonly property MatchModel match: host.match
    color: TilePalette.background
    signal done()

    Column {
        anchors.fill: parent
        anchors.topMargin: 8
        spacing: 12
        SheetHeader {
            objectName: "statisticsTitle"
            title: screen.match.statisticsTitle
            fontSize: 24
            onBack: screen.done()
            IconButton { symbol: "square.and.arrow.up"; name: "Share"; onClicked: screen.match.sendStatistics() }
        }
        Repeater {
            model: screen.match.statisticsLines
            delegate: Text {
                required property string modelData
                text: modelData
                font.pixelSize: 18
                color: TilePalette.text
            }
        }
    }
}
