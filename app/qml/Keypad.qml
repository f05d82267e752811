pragma ComponentBehavior: Bound
import QtQuick
import Tessarine

// The keys of a keypad in their rows, each row centred. Each key stands where the model puts it,
// so a change of colour or liveness repaints that key alone.
Item {
    id: keypad
    required property TileListModel model
    required property real keyWidth
    signal keyPressed(int index)

    readonly property real keyHeight: keyWidth * 1.45
    readonly property real keySpacing: 4
    readonly property real rowSpacing: 6

    function rowWidth(keys: int): real {
        return keys * (keyWidth + keySpacing) - keySpacing
    }

    implicitWidth: Math.max(rowWidth(model.gridColumns), 0)
    implicitHeight: Math.max(model.gridRows * (keyHeight + rowSpacing) - rowSpacing, 0)

    Repeater {
        model: keypad.model
        delegate: Key {
            required property int gridRow
            required property int gridColumn
            required property int rowLength
            width: keypad.keyWidth
            x: (keypad.width - keypad.rowWidth(rowLength)) / 2 + gridColumn * (keypad.keyWidth + keypad.keySpacing)
            y: gridRow * (keypad.keyHeight + keypad.rowSpacing)
            onTouched: (index) => keypad.keyPressed(index)
        }
    }
}
