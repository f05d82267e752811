pragma ComponentBehavior: Bound
import QtQml
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
        // The keyboard goes back to the screen underneath.
        if (sheets.currentItem) sheets.currentItem.forceActiveFocus()
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
    Component.onCompleted: sheets.host.match.screenRequested.connect(sheets.showRequested)

    initialItem: ContentView {
        host: sheets.host
        focus: true
    }
}
