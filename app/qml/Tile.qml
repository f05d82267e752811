import QtQuick

// One cell of the board: its symbol on its colour, with the thick border on the active cell.
Rectangle {
    id: tile
    required property int index
    required property string letter
    required property string colorName
    required property real borderWidth
    signal touched(int index)

    width: game.cellWidth
    height: game.cellWidth
    radius: 3
    color: TilePalette.fill(colorName)
    border.width: borderWidth
    border.color: borderWidth > 1 ? "#000000" : "#8e8e93"

    Text {
        anchors.centerIn: parent
        text: game.glyphFor(tile.letter)
        textFormat: Text.PlainText
        font.pixelSize: tile.width * 0.6
        font.bold: true
        color: TilePalette.ink(tile.colorName)
    }
    MouseArea {
        anchors.fill: parent
        onClicked: tile.touched(tile.index)
    }
    Accessible.role: Accessible.Cell
    Accessible.name: game.spokenName(letter, colorName)
    Accessible.onPressAction: tile.touched(tile.index)
}
