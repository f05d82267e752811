import QtQuick
import Tessarine

// The top of a sheet: the back button and the title.
Item {
    id: header
    required property string title
    required property var backButton
    property real fontSize: 24
    signal back()

    width: parent ? parent.width : 390
    height: 52

    IconButton {
        objectName: "backButton"
        anchors.left: parent.left
        anchors.leftMargin: 4
        anchors.verticalCenter: parent.verticalCenter
        symbol: header.backButton.symbol
        name: "Back"
        tint: TilePalette.fill(header.backButton.color)
        onClicked: header.back()
    }
    Text {
        anchors.centerIn: parent
        text: header.title
        font.pixelSize: header.fontSize
        font.bold: true
        color: TilePalette.currentMode
        Accessible.role: Accessible.Heading
        Accessible.name: text
    }
}
