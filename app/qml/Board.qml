pragma ComponentBehavior: Bound
import QtQuick
import Tessarine

// The rows of tiles, with the family mark ahead of each row and the row mark after it. Any board
// draws through this: it gives the tiles, their size, and the marks if it has any.
Row {
    id: board
    required property TileListModel model
    required property real cellWidth
    property var familyMarks: []
    property var rowMarks: []
    property var rowMarkColors: []
    property var rowMarkNames: []
    // Tiles turn over, shake and bounce; off for players who asked for less motion.
    property bool animate: false
    property bool celebrate: false
    signal cellTouched(int index)
    spacing: 4

    RowMarks {
        rows: board.model.gridRows
        cellWidth: board.cellWidth
        symbols: board.familyMarks
    }
    Grid {
        columns: Math.max(board.model.gridColumns, 1)
        spacing: 4

        Repeater {
            model: board.model
            delegate: Tile {
                objectName: "cell_" + index
                size: board.cellWidth
                animate: board.animate
                celebrate: board.celebrate
                onTouched: (index) => board.cellTouched(index)
            }
        }
    }
    RowMarks {
        rows: board.model.gridRows
        cellWidth: board.cellWidth
        symbols: board.rowMarks
        colors: board.rowMarkColors
        names: board.rowMarkNames
        spoken: true
    }
}
