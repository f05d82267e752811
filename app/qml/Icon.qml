pragma ComponentBehavior: Bound
import QtQuick
import Tessarine

// A system symbol drawn from the icon font shipped with the app; a blank name keeps its room.
Text {
    id: icon
    required property string symbol
    property real size: 24

    font.family: Icons.textGlyph(symbol) ? "DejaVu Sans" : Icons.fontFamily
    font.bold: Icons.textGlyph(symbol)
    font.pixelSize: Icons.circled(symbol) ? size * 0.7 : size
    text: Icons.glyph(symbol)
    width: size
    height: size
    horizontalAlignment: Text.AlignHCenter
    verticalAlignment: Text.AlignVCenter
    Accessible.ignored: true

    // The drawn circle of a circled symbol; most symbols have none, and make none.
    Loader {
        anchors.centerIn: parent
        active: Icons.circled(icon.symbol)
        sourceComponent: Rectangle {
            width: icon.size
            height: icon.size
            radius: icon.size / 2
            color: "transparent"
            border.width: Math.max(1.5, icon.size / 12)
            border.color: icon.color
        }
    }
}
