pragma ComponentBehavior: Bound
import QtQml
import QtQuick
import QtQuick.Controls
import Tessarine

// The main screen, with every other screen as a sheet over it. A coming screen is one QML file
// opened with openSheet(); it closes itself with closeSheet(). The screen models say when their
// sheets open, so a button, a test or a script opens them the same way.
StackView {
    id: sheets
    required property SessionHost host

    // Sheets come and go at once: a touch or a script step lands on the screen it opened.
    function openSheet(sheet: Component, properties: var): Item {
        return sheets.push(sheet, properties, StackView.Immediate)
    }
    function closeSheet() {
        if (sheets.depth > 1) sheets.pop(StackView.Immediate)
        // The keyboard goes back to the screen underneath, or typing would stop for good.
        if (sheets.currentItem) sheets.currentItem.forceActiveFocus()
    }
    // The back of whatever sheet is on top, as its own back button does.
    function goBack() {
        const top = sheets.currentItem as SeventhView
        if (top) top.close()
        else closeSheet()
    }

    function openOptions() {
        openSheet(optionsSheet, { options: sheets.host.options })
    }
    function openHelp() {
        openSheet(helpSheet, { help: sheets.host.help })
    }
    function openRules() {
        openSheet(rulesSheet, { help: sheets.host.help })
    }

    Component {
        id: optionsSheet
        SeventhView {
            onBack: sheets.closeSheet()
            onOpenRules: sheets.openRules()
            onOpenChallenge: sheets.openChallenge()
        }
    }
    Component {
        id: helpSheet
        ThirdView { onBack: sheets.closeSheet() }
    }
    Component {
        id: rulesSheet
        FourthView { onBack: sheets.closeSheet() }
    }

    // The challenge of the game type on the main screen; the options screen's "Play Challenge".
    function openChallenge() {
        sheets.host.match.open("")
        sheets.openSheet(matchSheet, {})
    }
    function openChallengeStatistics() {
        sheets.host.match.openStatistics("")
        sheets.openSheet(statisticsSheet, {})
    }

    Component {
        id: matchSheet
        EighthView {
            host: sheets.host
            onDone: sheets.closeSheet()
            onOpenStatistics: sheets.openChallengeStatistics()
            onOpenRules: sheets.openRules()
        }
    }
    Component {
        id: statisticsSheet
        NinthView {
            host: sheets.host
            onDone: sheets.closeSheet()
        }
    }
    // Scripted runs ask for the challenge screens through the model.
    function showRequested(screen: string) {
        if (screen === "challenge") sheets.openChallenge()
        else if (screen === "statistics") sheets.openChallengeStatistics()
    }

    initialItem: ContentView {
        host: sheets.host
        focus: true
        onOpenOptions: sheets.openOptions()
        onOpenHelp: sheets.openHelp()
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
        sheets.host.match.screenRequested.connect(sheets.showRequested)
    }
    Component.onDestruction: {
        sheets.host.statistics.secondOpened.disconnect(sheets.showSecond)
        sheets.host.statistics.fifthOpened.disconnect(sheets.showFifth)
        sheets.host.statistics.sixthOpened.disconnect(sheets.showSixth)
        sheets.host.shareSheet.presented.disconnect(sheets.showShareSheet)
        sheets.host.match.screenRequested.disconnect(sheets.showRequested)
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
