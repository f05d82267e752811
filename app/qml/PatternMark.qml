import Tessarine

// The colour-blind mark of a tile or key, drawn in its top right corner.
Icon {
    required property GlyphSquare cell
    objectName: "patternMark"
    anchors.top: cell.top
    anchors.right: cell.right
    anchors.margins: 1
    visible: cell.pattern !== ""
    symbol: cell.pattern
    size: cell.width * cell.markScale
    color: TilePalette.ink(cell.shownColor)
}
