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
        id: backButton
        objectName: "backButton"
        anchors.left: parent.left
        anchors.leftMargin: 4
        anchors.verticalCenter: parent.verticalCenter
        symbol: header.backButton.symbol
        name: "Back"
        tint: TilePalette.fill(header.backButton.color)
        onClicked: header.back()
    }
    // Kept clear of the back button on both sides so it stays centred; a long title shrinks.
    Text {
        anchors.left: backButton.right
        anchors.right: parent.right
        anchors.rightMargin: backButton.width + 4
        anchors.verticalCenter: parent.verticalCenter
        text: header.title
        horizontalAlignment: Text.AlignHCenter
        fontSizeMode: Text.HorizontalFit
        minimumPixelSize: 12
        font.pixelSize: header.fontSize
        font.bold: true
        color: TilePalette.currentMode
        Accessible.role: Accessible.Heading
        Accessible.name: text
    }
}
