pragma ComponentBehavior: Bound
import QtQuick.Controls
import Tessarine

// The main screen, with every other screen as a sheet over it. A coming screen is one QML file
// opened with openSheet(); it closes itself with closeSheet().
StackView {
    id: sheets
    required property SessionHost host

    function openSheet(sheet: Component, properties: var) {
        sheets.push(sheet, properties)
    }
    function closeSheet() {
        if (sheets.depth > 1) sheets.pop()
        // The keyboard goes back to the screen underneath, or typing would stop for good.
        if (sheets.currentItem) sheets.currentItem.forceActiveFocus()
    }

    initialItem: ContentView {
        host: sheets.host
        focus: true
    }
}
