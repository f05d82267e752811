pragma ComponentBehavior: Bound
import QtQuick
import Tessarine

// One cell of a board: its symbol on its colour, with the thick border on the active cell.
// With motion on, a tile that gets its score turns over (one column after another), a refused
// tile shakes and a winning tile bounces. The model changes at once: only the drawing follows.
// For colour-blind players the mark of its colour stands in a corner.
GlyphSquare {
    id: tile
    required property int gridColumn
    required property real borderWidth
    required property real size
    property bool animate: false
    property bool celebrate: false

    readonly property var scoringColors: ["gray", "green", "blue", "yellow", "orange"]
    readonly property var refusalColors: ["cyan", "purple", "red"]

    width: size
    height: size
    radius: 3
    border.width: borderWidth
    border.color: borderWidth > 1 ? TilePalette.text : "#8e8e93"
    transform: [
        Scale { id: face; origin.y: tile.height / 2; yScale: 1 },
        Translate { id: nudge }
    ]

    // Made on the tile's first move; null while the tile has never moved.
    property TileMotion motion: null
    function moves(): TileMotion {
        if (!tile.motion) {
            tile.motion = Qt.createComponent("TileMotion.qml").createObject(tile, {
                tile: tile, gridColumn: tile.gridColumn, face: face, nudge: nudge })
            tile.motion.turnedChanged.connect(() => {
                if (tile.motion.turned) tile.shownColor = tile.colorName
            })
            tile.motion.landed.connect(() => {
                if (tile.celebrate && tile.colorName === "green") tile.motion.bounce()
            })
        }
        return tile.motion
    }

    onColorNameChanged: {
        const turnsOver = tile.animate && tile.shownColor === "white" && tile.scoringColors.indexOf(tile.colorName) >= 0
        if (turnsOver) {
            tile.moves().turnOver()
            return
        }
        if (tile.motion) tile.motion.stop()
        tile.shownColor = tile.colorName
        if (tile.animate && tile.refusalColors.indexOf(tile.colorName) >= 0) tile.moves().shake()
    }

    Accessible.role: Accessible.Cell
}
