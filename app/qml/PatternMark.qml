import Tessarine

// The colour-blind mark of a tile or key, drawn in its top right corner.
Icon {
    required property string colorName
    color: TilePalette.ink(colorName)
}
