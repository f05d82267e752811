pragma ComponentBehavior: Bound
import QtQuick
import Tessarine

// One text of the how-to-play sheet, with what stands beside it: rows of example tiles drawn by
// the board's own tile, or the symbol of a button or mark in its colour.
Row {
    id: line
    required property var modelData
    required property int index
    property bool entry: false
    spacing: 10

    readonly property real tileSize: 24
    // Room for the longest example row, so that every text starts at the same place.
    readonly property int longestRow: 6

    Column {
        id: tiles
        width: line.longestRow * (line.tileSize + 2)
        spacing: 3
        visible: line.modelData.rows.length > 0
        Repeater {
            model: line.modelData.rows
            delegate: Row {
                id: tileRow
                required property var modelData
                spacing: 2
                Repeater {
                    model: tileRow.modelData
                    delegate: Tile {
                        required property var modelData
                        glyph: modelData.glyph
                        colorName: modelData.colorName
                        spokenName: modelData.spokenName
                        pattern: modelData.pattern
                        gridColumn: index
                        borderWidth: 1
                        size: line.tileSize
                    }
                }
            }
        }
    }
    Icon {
        id: mark
        visible: line.modelData.symbol !== ""
        symbol: line.modelData.symbol
        size: 26
        color: line.modelData.colorName !== "" ? TilePalette.fill(line.modelData.colorName) : TilePalette.tint
    }
    Text {
        width: line.width - (tiles.visible ? tiles.width + line.spacing : 0)
               - (mark.visible ? mark.width + line.spacing : 0)
        text: line.modelData.text
        textFormat: Text.PlainText
        wrapMode: Text.Wrap
        font.pixelSize: line.entry ? 17 : 15
        // The entry reads as a dictionary's: the name in bold, its sound in italics.
        font.bold: line.entry && line.index === 0
        font.italic: line.entry && line.index === 1
        color: TilePalette.text
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }
}
