import QtQuick
import Tessarine

// One cell of a board: its symbol on its colour, with the thick border on the active cell, and
// for colour-blind players the mark of its colour in a corner.
Rectangle {
    id: tile
    required property int index
    required property string glyph
    required property string colorName
    required property string spokenName
    required property string pattern
    required property real borderWidth
    required property real size
    signal touched(int index)

    width: size
    height: size
    radius: 3
    color: TilePalette.fill(colorName)
    border.width: borderWidth
    border.color: borderWidth > 1 ? TilePalette.text : "#8e8e93"

    // With a colour-blind mark in the corner, the symbol makes room for it.
    readonly property bool marked: pattern !== ""

    Text {
        anchors.centerIn: parent
        anchors.horizontalCenterOffset: tile.marked ? -tile.width * 0.1 : 0
        anchors.verticalCenterOffset: tile.marked ? tile.width * 0.08 : 0
        text: tile.glyph
        textFormat: Text.PlainText
        font.pixelSize: tile.width * (tile.marked ? 0.48 : 0.6)
        font.bold: true
        color: TilePalette.ink(tile.colorName)
    }
    PatternMark {
        symbol: tile.pattern
        colorName: tile.colorName
        size: tile.width * 0.34
    }
    MouseArea {
        anchors.fill: parent
        onClicked: tile.touched(tile.index)
    }
    Accessible.role: Accessible.Cell
    Accessible.name: spokenName
    Accessible.onPressAction: tile.touched(tile.index)
}
