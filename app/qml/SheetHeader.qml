import QtQuick
import Tessarine

// The top of a sheet: the back button and the title.
Item {
    id: header
    required property string title
    property string backSymbol: "chevron.left"
    signal back()

    implicitHeight: 52
    IconButton {
        objectName: "backButton"
        anchors.left: parent.left
        anchors.verticalCenter: parent.verticalCenter
        symbol: header.backSymbol
        name: "Back"
        tint: TilePalette.tint
        onClicked: header.back()
    }
    Text {
        anchors.centerIn: parent
        width: parent.width - 110
        text: header.title
        textFormat: Text.PlainText
        horizontalAlignment: Text.AlignHCenter
        // A long Spanish title shrinks to fit rather than lose its end.
        fontSizeMode: Text.HorizontalFit
        minimumPixelSize: 14
        font.pixelSize: 20
        font.bold: true
        color: TilePalette.currentMode
        Accessible.role: Accessible.Heading
        Accessible.name: text
    }
}
