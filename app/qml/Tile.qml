pragma ComponentBehavior: Bound
import QtQuick
import Tessarine

// One cell of a board: its symbol on its colour, with the thick border on the active cell.
// With motion on, a tile that gets its score turns over (one column after another), a refused
// tile shakes and a winning tile bounces. The model changes at once: only the drawing follows.
// For colour-blind players the mark of its colour stands in a corner.
Rectangle {
    id: tile
    required property int index
    required property int gridColumn
    required property string glyph
    required property string colorName
    required property string spokenName
    required property string pattern
    required property real borderWidth
    required property real size
    property bool animate: false
    property bool celebrate: false
    // The colour on the face the player sees; it lags `colorName` by half a turn.
    property string shownColor: colorName
    signal touched(int index)

    readonly property var scoringColors: ["gray", "green", "blue", "yellow", "orange"]
    readonly property var refusalColors: ["cyan", "purple", "red"]

    width: size
    height: size
    radius: 3
    color: TilePalette.fill(shownColor)
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
        color: TilePalette.ink(tile.shownColor)
    }
    // Made only for colour-blind players: most boards never need the marks.
    Loader {
        anchors.top: parent.top
        anchors.right: parent.right
        anchors.margins: 1
        active: tile.pattern !== ""
        sourceComponent: PatternMark {
            symbol: tile.pattern
            colorName: tile.shownColor
            size: tile.width * 0.34
        }
    }
    MouseArea {
        anchors.fill: parent
        onClicked: tile.touched(tile.index)
    }
    Accessible.role: Accessible.Cell
    Accessible.name: spokenName
    Accessible.onPressAction: tile.touched(tile.index)
}
