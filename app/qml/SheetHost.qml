pragma ComponentBehavior: Bound
import QtQuick
import Tessarine

// The main screen, with every other screen as a sheet over it. A sheet is one QML file, made from
// its file when it first opens, so its types (and the controls they import) stay out of the app's
// first frame; after that frame they are compiled in the background, so no sheet waits on a
// compile either. A sheet closes itself through the signals wired here. The screen models say when
// their sheets open, so a button, a test or a script opens them the same way. A focus scope, so
// that the screen on top holds the keyboard from the start.
FocusScope {
    id: sheets
    required property SessionHost host

    // The sheets over the main screen, the top one last. Sheets come and go at once: a touch or a
    // script step lands on the screen it opened.
    property var stack: []
    readonly property int depth: stack.length + 1
    readonly property Item currentItem: stack.length > 0 ? stack[stack.length - 1] : mainScreen
    readonly property Item mainScreen: main

    // One compiled type per sheet file, made once.
    property var components: ({})
    readonly property var sheetFiles: ["SeventhView.qml", "ThirdView.qml", "FourthView.qml", "EighthView.qml",
        "NinthView.qml", "SecondView.qml", "FifthView.qml", "SixthView.qml", "ShareSheetView.qml"]
    function component(file: string, mode: int): Component {
        if (!sheets.components[file]) sheets.components[file] = Qt.createComponent(file, mode)
        return sheets.components[file]
    }

    // Opens the sheet of `file` over the top one with its `properties`, and connects each of its
    // signals named in `handlers` to the function given.
    function openSheet(file: string, properties: var, handlers: var): Item {
        let made = sheets.component(file, Component.PreferSynchronous)
        if (made.status === Component.Loading) {
            // Still compiling in the background: a synchronous load of the same file waits for it.
            made = Qt.createComponent(file, Component.PreferSynchronous)
            sheets.components[file] = made
        }
        const sheet = made.createObject(sheets, properties)
        if (!sheet) {
            console.error("Cannot open " + file + ": " + made.errorString())
            return null
        }
        sheet.anchors.fill = sheets
        for (const name in handlers) sheet[name].connect(handlers[name])
        const under = sheets.currentItem
        sheets.stack = sheets.stack.concat([sheet])
        under.visible = false
        // The keyboard goes to the screen on top, as a touch does.
        sheet.forceActiveFocus()
        return sheet
    }
    function closeSheet() {
        if (sheets.stack.length > 0) {
            const top = sheets.stack[sheets.stack.length - 1]
            sheets.stack = sheets.stack.slice(0, -1)
            sheets.currentItem.visible = true
            top.visible = false
            top.destroy()
        }
        // The keyboard goes back to the screen underneath, or typing would stop for good.
        sheets.currentItem.forceActiveFocus()
    }
    // The back of whatever sheet is on top, as its own back button does: the options sheet
    // applies its changes on the way out.
    function goBack() {
        const top = sheets.stack.length > 0 ? sheets.stack[sheets.stack.length - 1] : null
        if (top && typeof top.close === "function") top.close()
        else closeSheet()
    }

    function openOptions() {
        openSheet("SeventhView.qml", { options: sheets.host.options },
                  { back: sheets.closeSheet, openRules: sheets.openRules, openChallenge: sheets.openChallenge })
    }
    function openHelp() {
        openSheet("ThirdView.qml", { help: sheets.host.help }, { back: sheets.closeSheet })
    }
    function openRules() {
        openSheet("FourthView.qml", { help: sheets.host.help }, { back: sheets.closeSheet })
    }
    // The challenge of the game type on the main screen; the options screen's "Play Challenge".
    function openChallenge() {
        sheets.host.match.open("")
        openSheet("EighthView.qml", { host: sheets.host },
                  { done: sheets.closeSheet, openStatistics: sheets.openChallengeStatistics,
                    openRules: sheets.openRules })
    }
    function openChallengeStatistics() {
        sheets.host.match.openStatistics("")
        openSheet("NinthView.qml", { host: sheets.host }, { done: sheets.closeSheet })
    }
    function showSecond() {
        openSheet("SecondView.qml", { statistics: sheets.host.statistics }, { back: sheets.closeSheet })
    }
    function showFifth() {
        openSheet("FifthView.qml", { statistics: sheets.host.statistics }, { back: sheets.closeSheet })
    }
    function showSixth() {
        openSheet("SixthView.qml", { statistics: sheets.host.statistics }, { back: sheets.closeSheet })
    }
    function showShareSheet() {
        openSheet("ShareSheetView.qml", { sink: sheets.host.shareSheet }, { back: sheets.closeSheet })
    }
    // Scripted runs ask for the challenge screens through the model.
    function showRequested(screen: string) {
        if (screen === "challenge") sheets.openChallenge()
        else if (screen === "statistics") sheets.openChallengeStatistics()
    }

    ContentView {
        id: main
        width: sheets.width
        height: sheets.height
        host: sheets.host
        focus: true
        onOpenOptions: sheets.openOptions()
        onOpenHelp: sheets.openHelp()
    }

    // Once the first frame is out, the sheets compile on the loader thread while the player looks.
    function compileSheets() {
        for (const file of sheets.sheetFiles) sheets.component(file, Component.Asynchronous)
    }

    Component.onCompleted: {
        sheets.host.firstFrameShown.connect(sheets.compileSheets)
        sheets.host.statistics.secondOpened.connect(sheets.showSecond)
        sheets.host.statistics.fifthOpened.connect(sheets.showFifth)
        sheets.host.statistics.sixthOpened.connect(sheets.showSixth)
        sheets.host.shareSheet.presented.connect(sheets.showShareSheet)
        sheets.host.match.screenRequested.connect(sheets.showRequested)
    }
    Component.onDestruction: {
        sheets.host.firstFrameShown.disconnect(sheets.compileSheets)
        sheets.host.statistics.secondOpened.disconnect(sheets.showSecond)
        sheets.host.statistics.fifthOpened.disconnect(sheets.showFifth)
        sheets.host.statistics.sixthOpened.disconnect(sheets.showSixth)
        sheets.host.shareSheet.presented.disconnect(sheets.showShareSheet)
        sheets.host.match.screenRequested.disconnect(sheets.showRequested)
    }
}
