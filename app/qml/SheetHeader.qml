import QtQuick
import Tessarine

// The title line of a sheet, with its back button on the left. The back symbol and colour come
// from the screen's model (`backButton`, with `symbol` and `color`) or default to a chevron.
// A screen with more buttons puts them after the back button (`leading`) or at the right edge
// (the header's children).
Item {
    id: header
    required property string title
    property var backButton: null
    property string backSymbol: "chevron.left"
    property real fontSize: 20
    property alias leading: start.data
    default property alias trailing: end.data
    signal back()

    width: parent ? parent.width : 390
    implicitHeight: 52
    height: 52

    Row {
        id: start
        anchors.left: parent.left
        anchors.leftMargin: 4
        anchors.verticalCenter: parent.verticalCenter
        IconButton {
            objectName: "backButton"
            symbol: header.backButton ? header.backButton.symbol : header.backSymbol
            name: "Back"
            tint: header.backButton ? TilePalette.fill(header.backButton.color) : TilePalette.tint
            onClicked: header.back()
        }
    }
    Row {
        id: end
        anchors.right: parent.right
        anchors.rightMargin: 4
        anchors.verticalCenter: parent.verticalCenter
    }
    // Kept as clear of the right as of the left so it stays centred; a long title shrinks.
    Text {
        readonly property real side: Math.max(start.width, end.width) + 4
        anchors.left: parent.left
        anchors.leftMargin: side
        anchors.right: parent.right
        anchors.rightMargin: side
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
