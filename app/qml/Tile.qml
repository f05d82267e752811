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

    Text {
        anchors.centerIn: parent
        text: tile.glyph
        textFormat: Text.PlainText
        font.pixelSize: tile.width * 0.6
        font.bold: true
        color: TilePalette.ink(tile.colorName)
    }
    PatternMark {
        symbol: tile.pattern
        colorName: tile.colorName
        size: tile.width * 0.38
    }
    MouseArea {
        anchors.fill: parent
        onClicked: tile.touched(tile.index)
    }
    Accessible.role: Accessible.Cell
    Accessible.name: spokenName
    Accessible.onPressAction: tile.touched(tile.index)
}
