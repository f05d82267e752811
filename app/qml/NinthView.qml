pragma ComponentBehavior: Bound
import QtQuick
import Tessarine

// The challenge statistics of the game type: four counts and a share button.
Rectangle {
    id: screen
    required property SessionHost host
    readonly property MatchModel match: host.match
    color: "white"
    signal done()

    Column {
        anchors.fill: parent
        anchors.topMargin: 8
        spacing: 12
        Item {
            width: parent.width
            height: 48
            IconButton {
                anchors.left: parent.left
                anchors.leftMargin: 4
                anchors.verticalCenter: parent.verticalCenter
                symbol: "chevron.left"
                name: "Back"
                onClicked: screen.done()
            }
            IconButton {
                anchors.right: parent.right
                anchors.rightMargin: 4
                anchors.verticalCenter: parent.verticalCenter
                symbol: "square.and.arrow.up"
                name: "Share"
                onClicked: screen.match.sendStatistics()
            }
        }
        Text {
            objectName: "statisticsTitle"
            anchors.horizontalCenter: parent.horizontalCenter
            text: screen.match.statisticsTitle
            font.pixelSize: 24
            font.bold: true
            Accessible.role: Accessible.Heading
            Accessible.name: text
        }
        Repeater {
            model: screen.match.statisticsLines
            delegate: Text {
                required property string modelData
                text: modelData
                font.pixelSize: 18
            }
        }
    }
}
