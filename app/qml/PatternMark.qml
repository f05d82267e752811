import Tessarine

// The colour-blind mark of a tile or key, in its top right corner; nothing when the mark is blank.
Icon {
    required property string colorName
    anchors.top: parent.top
    anchors.right: parent.right
    anchors.margins: 1
    visible: symbol !== ""
    color: TilePalette.ink(colorName)
}
