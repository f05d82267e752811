import QtQuick

// The rows of tiles, each with the family mark ahead of it and the row mark after it.
Column {
    id: board
    spacing: 4

    Repeater {
        model: game.gameRows
        delegate: Row {
            id: boardRow
            required property int index
            spacing: 4

            Icon {
                anchors.verticalCenter: parent.verticalCenter
                symbol: game.familyMarks[boardRow.index] || ""
                size: game.cellWidth * 0.55
                color: TilePalette.currentMode
                visible: game.familyMarks[0] !== ""
            }
            Repeater {
                model: game.gameLetters
                delegate: Tile {
                    readonly property int cell: boardRow.index * game.gameLetters + index
                    objectName: "cell_" + cell
                    letter: game.cellLetters[cell] || ""
                    colorName: game.cellColors[cell] || "white"
                    borderWidth: game.cellBorders[cell] || 1
                    onTouched: game.touchCell(cell)
                }
            }
            Icon {
                id: mark
                anchors.verticalCenter: parent.verticalCenter
                symbol: game.rowMarks[boardRow.index] || ""
                size: game.cellWidth * 0.55
                color: TilePalette.fill(game.rowMarkColors[boardRow.index] || "white")
                visible: game.rowMarks[0] !== ""
                Accessible.ignored: symbol === ""
                Accessible.role: Accessible.Graphic
                Accessible.name: symbol
            }
        }
    }
}
