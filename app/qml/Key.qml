pragma ComponentBehavior: Bound
import QtQuick

// One key of a keypad, as tall as one and a half of its width. A dead key (black, or an operator
// that cannot stand at the cursor) has no action.
GlyphSquare {
    id: key
    required property string symbol
    required live

    objectName: "key_" + symbol
    height: width * 1.45
    radius: 4
    border.width: 1
    border.color: "#8e8e93"
    opacity: live || colorName === "black" ? 1.0 : 0.35
    glyphScale: 0.55
    markedGlyphScale: 0.55
    markedShiftX: 0
    markedShiftY: 0.12
    markScale: 0.4

    Accessible.role: Accessible.Button
}
