pragma ComponentBehavior: Bound
import QtQuick
import Tessarine

// One mark beside each board row. A column whose first mark is blank takes no room at all; a
// blank mark further down keeps its room so the rows stay aligned.
Column {
    id: marks
    required property int rows
    required property real cellWidth
    required property var symbols
    // Named tile colours, one a row; without them the marks take the text colour.
    property var colors: []
    // Whether a screen reader reads the marks.
    property bool spoken: false
    property var names: []
    spacing: 4
    readonly property bool shown: marks.symbols.length > 0 && marks.symbols[0] !== ""
    visible: shown

    Repeater {
        // A column without marks makes none.
        model: marks.shown ? marks.rows : 0
        delegate: Item {
            id: slot
            required property int index
            readonly property string symbol: marks.symbols[index] || ""
            width: mark.width
            height: marks.cellWidth

            Icon {
                id: mark
                anchors.verticalCenter: parent.verticalCenter
                symbol: slot.symbol
                size: marks.cellWidth * 0.55
                color: marks.colors.length > 0 ? TilePalette.fill(marks.colors[slot.index] || "white")
                                               : TilePalette.currentMode
                Accessible.ignored: !marks.spoken || slot.symbol === ""
                Accessible.role: Accessible.Graphic
                Accessible.name: marks.names[slot.index] || slot.symbol
            }
        }
    }
}
