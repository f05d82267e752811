import QtQuick
import Tessarine

// The title line of a sheet, with its back button on the left. The back symbol and colour come
// from the screen's model (`backButton`, with `symbol` and `color`) or default to a chevron.
Item {
    id: header
    required property string title
    property var backButton: null
    property string backSymbol: "chevron.left"
    property real fontSize: 20
    signal back()

    width: parent ? parent.width : 390
    implicitHeight: 52
    height: 52

    IconButton {
        id: backButton
        objectName: "backButton"
        anchors.left: parent.left
        anchors.leftMargin: 4
        anchors.verticalCenter: parent.verticalCenter
        symbol: header.backButton ? header.backButton.symbol : header.backSymbol
        name: "Back"
        tint: header.backButton ? TilePalette.fill(header.backButton.color) : TilePalette.tint
        onClicked: header.back()
    }
    // Kept clear of the back button on both sides so it stays centred; a long title shrinks.
    Text {
        anchors.left: backButton.right
        anchors.right: parent.right
        anchors.rightMargin: backButton.width + 4
        anchors.verticalCenter: parent.verticalCenter
        text: header.title
        textFormat: Text.PlainText
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
