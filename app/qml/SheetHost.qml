pragma ComponentBehavior: Bound
import QtQml
import QtQuick.Controls
import Tessarine

// The main screen, with every other screen as a sheet over it. A coming screen is one QML file
// opened with openSheet(); it closes itself with closeSheet(). The screen models say when their
// sheets open, so a button, a test or a script opens them the same way.
StackView {
    id: sheets
    required property SessionHost host

    // Sheets come and go at once: a touch or a script step lands on the screen it opened.
    function openSheet(sheet: Component, properties: var) {
        sheets.push(sheet, properties, StackView.Immediate)
    }
    function closeSheet() {
        if (sheets.depth > 1) sheets.pop(StackView.Immediate)
        // The keyboard goes back to the screen underneath, or typing would stop for good.
        if (sheets.currentItem) sheets.currentItem.forceActiveFocus()
    }

    initialItem: ContentView {
        host: sheets.host
        focus: true
    }

    function showSecond() { sheets.openSheet(secondView, {}) }
    function showFifth() { sheets.openSheet(fifthView, {}) }
    function showSixth() { sheets.openSheet(sixthView, {}) }
    function showShareSheet() { sheets.openSheet(shareSheetView, {}) }
    Component.onCompleted: {
        sheets.host.statistics.secondOpened.connect(sheets.showSecond)
        sheets.host.statistics.fifthOpened.connect(sheets.showFifth)
        sheets.host.statistics.sixthOpened.connect(sheets.showSixth)
        sheets.host.shareSheet.presented.connect(sheets.showShareSheet)
    }
    Component.onDestruction: {
        sheets.host.statistics.secondOpened.disconnect(sheets.showSecond)
        sheets.host.statistics.fifthOpened.disconnect(sheets.showFifth)
        sheets.host.statistics.sixthOpened.disconnect(sheets.showSixth)
        sheets.host.shareSheet.presented.disconnect(sheets.showShareSheet)
    }

    Component {
        id: secondView
        SecondView { statistics: sheets.host.statistics; onBack: sheets.closeSheet() }
    }
    Component {
        id: fifthView
        FifthView { statistics: sheets.host.statistics; onBack: sheets.closeSheet() }
    }
    Component {
        id: sixthView
        SixthView { statistics: sheets.host.statistics; onBack: sheets.closeSheet() }
    }
    Component {
        id: shareSheetView
        ShareSheetView { sink: sheets.host.shareSheet; onBack: sheets.closeSheet() }
    }
}
