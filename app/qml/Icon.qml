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

    // The drawn circle of a circled symbol; most symbols have none, and make none. Not a Loader:
    // in Qt 6.4 it makes its item in a context of its own, which a bound component refuses.
    property Item circle: null
    function drawCircle() {
        if (!icon.circle && Icons.circled(icon.symbol))
            icon.circle = Qt.createComponent("IconCircle.qml").createObject(icon, { icon: icon })
    }
    onSymbolChanged: drawCircle()
    Component.onCompleted: drawCircle()
}
