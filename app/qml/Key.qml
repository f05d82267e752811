pragma ComponentBehavior: Bound
import QtQuick

// One key of a keypad. A dead key (black, or an operator that cannot stand at the cursor) has no
// action.
Rectangle {
    id: key
    required property int index
    required property string symbol
    required property string glyph
    required property string colorName
    required property string spokenName
    required property string pattern
    required property bool live
    required property real keyWidth
    signal pressed(int index)

    objectName: "key_" + symbol
    width: keyWidth
    height: keyWidth * 1.45
    radius: 4
    color: TilePalette.fill(colorName)
    border.width: 1
    border.color: "#8e8e93"
    opacity: live || colorName === "black" ? 1.0 : 0.35

    Text {
        anchors.centerIn: parent
        anchors.verticalCenterOffset: key.pattern !== "" ? key.keyWidth * 0.12 : 0
        text: key.glyph
        font.pixelSize: key.keyWidth * 0.55
        font.bold: true
        color: TilePalette.ink(key.colorName)
    }
    // Made only for colour-blind players: most boards never need the marks.
    Loader {
        anchors.top: parent.top
        anchors.right: parent.right
        anchors.margins: 1
        active: key.pattern !== ""
        sourceComponent: PatternMark {
            symbol: key.pattern
            colorName: key.colorName
            size: key.keyWidth * 0.4
        }
    }
    MouseArea {
        anchors.fill: parent
        enabled: key.live
        onClicked: key.pressed(key.index)
    }
    Accessible.role: Accessible.Button
    Accessible.name: spokenName
    Accessible.onPressAction: if (live) key.pressed(key.index)
}
