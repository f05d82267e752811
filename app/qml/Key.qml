import QtQuick

// One key of the keypad. A dead key (black, or an operator that cannot stand at the cursor) has
// no action.
Rectangle {
    id: key
    required property int keyIndex
    required property string label
    required property string colorName
    required property bool live
    property real keyWidth: game.keypadWidth
    signal pressed(int keyIndex)

    objectName: "key_" + label
    width: keyWidth
    height: keyWidth * 1.45
    radius: 4
    color: TilePalette.fill(colorName)
    border.width: 1
    border.color: "#8e8e93"
    opacity: live || colorName === "black" ? 1.0 : 0.35

    Text {
        anchors.centerIn: parent
        text: game.glyphFor(key.label)
        font.pixelSize: key.keyWidth * 0.55
        font.bold: true
        color: TilePalette.ink(key.colorName)
    }
    MouseArea {
        anchors.fill: parent
        enabled: key.live
        onClicked: key.pressed(key.keyIndex)
    }
    Accessible.role: Accessible.Button
    Accessible.name: game.spokenName(label, colorName)
    Accessible.onPressAction: if (live) key.pressed(key.keyIndex)
}
