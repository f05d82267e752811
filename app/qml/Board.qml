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
                onTouched: (index) => board.cellTouched(index)
            }
        }
    }
    RowMarks {
        rows: board.model.gridRows
        cellWidth: board.cellWidth
        symbols: board.rowMarks
        colors: board.rowMarkColors
        spoken: true
    }
}
