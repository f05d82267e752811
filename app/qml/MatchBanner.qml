import QtQuick
import Tessarine

// The end of the match: the result, and the answer when the player did not find it.
Rectangle {
    id: banner
    required property MatchModel match
    width: column.width + 48
    height: column.height + 24
    radius: 12
    color: "#e6000000"
    visible: match.gameOver

    Column {
        id: column
        anchors.centerIn: parent
        spacing: 4
        Text {
            objectName: "bannerText"
            anchors.horizontalCenter: parent.horizontalCenter
            text: banner.match.banner
            font.pixelSize: 40
            font.bold: true
            color: "#ffcc00"
        }
        Text {
            anchors.horizontalCenter: parent.horizontalCenter
            text: banner.match.bannerAnswer
            horizontalAlignment: Text.AlignHCenter
            font.pixelSize: 18
            color: "#ffffff"
            visible: text.length > 0
        }
    }
    Accessible.role: Accessible.AlertMessage
    Accessible.name: match.banner + " " + match.bannerAnswer
}
