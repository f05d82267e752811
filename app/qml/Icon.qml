import QtQuick
import Tessarine

// A system symbol drawn from the icon font shipped with the app; a blank name keeps its room.
Text {
    id: icon
    required property string symbol
    property real size: 24

    FontLoader {
        id: iconFont
        source: "qrc:/Tessarine/fonts/MaterialIcons-Regular.ttf"
    }
    font.family: iconFont.name
    font.pixelSize: size
    text: Icons.glyph(symbol)
    width: size
    height: size
    horizontalAlignment: Text.AlignHCenter
    verticalAlignment: Text.AlignVCenter
    Accessible.ignored: true
}
