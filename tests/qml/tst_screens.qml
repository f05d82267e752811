import QtQuick
import QtTest
import Tessarine
import TessarineTest

// Every screen and shared piece loads headless without an error, and the first game is drawn.
TestCase {
    id: testCase
    name: "Screens"
    width: 390
    height: 844
    when: windowShown

    readonly property SessionHost host: TestSession.host

    function test_loads_data() {
        const game = host.mainScreen
        return [
            { tag: "SheetHost", file: "SheetHost.qml", props: { host: host } },
            { tag: "ContentView", file: "ContentView.qml", props: { host: host } },
            { tag: "FatalErrorView", file: "FatalErrorView.qml", props: { message: "Core Data Store failed " } },
            { tag: "Board", file: "Board.qml", props: { model: game.board, cellWidth: 40 } },
            { tag: "Keypad", file: "Keypad.qml", props: { model: game.keypad, keyWidth: 30 } },
            { tag: "EntryButtons", file: "EntryButtons.qml", props: { game: game } },
            { tag: "ScoreLines", file: "ScoreLines.qml", props: { game: game } },
            { tag: "DateBar", file: "DateBar.qml", props: { dates: host.dateBar } },
            { tag: "DateWheel", file: "DateWheel.qml", props: { dates: host.dateBar } },
            { tag: "ThankYouCover", file: "ThankYouCover.qml", props: { alerts: host.alerts } },
            { tag: "HintsAlert", file: "HintsAlert.qml", props: { alerts: host.alerts } },
            { tag: "ChristmasAlert", file: "ChristmasAlert.qml", props: { alerts: host.alerts } },
            { tag: "EighthView", file: "EighthView.qml", props: { host: host } },
            { tag: "NinthView", file: "NinthView.qml", props: { host: host } },
            { tag: "MatchSaveDialog", file: "MatchSaveDialog.qml", props: { match: host.match } },
            { tag: "SeventhView", file: "SeventhView.qml", props: { options: host.options } },
            { tag: "ThirdView", file: "ThirdView.qml", props: { help: host.help } },
            { tag: "FourthView", file: "FourthView.qml", props: { help: host.help } },
        ]
    }

    function test_loads(data) {
        // A delegate that cannot be made leaves a hole in the screen and only a warning behind.
        failOnWarning(/Required property|Cannot create delegate/)
        const component = Qt.createComponent("qrc:/Tessarine/qml/" + data.file)
        compare(component.status, Component.Ready, component.errorString())
        const screen = createTemporaryObject(component, testCase, data.props)
        verify(screen !== null, data.file)
    }

    function test_board_is_the_empty_first_game() {
        const screen = createTemporaryObject(Qt.createComponent("qrc:/Tessarine/qml/ContentView.qml"),
                                             testCase, { host: host, width: 390, height: 844 })
        compare(host.mainScreen.gameType, "C")
        compare(host.mainScreen.board.gridColumns, 5)
        compare(host.mainScreen.board.gridRows, 6)
        for (let cell = 0; cell < 30; ++cell)
            compare(findChild(screen, "cell_" + cell).glyph, "")
        verify(findChild(screen, "cell_30") === null)
        for (const letter of "QWERTYUIOP")
            compare(findChild(screen, "key_" + letter).gridRow, 0)
    }

    // A sheet opened while the sheets still compile in the background opens all the same.
    function test_a_sheet_opens_while_the_sheets_compile() {
        const sheets = createTemporaryObject(Qt.createComponent("qrc:/Tessarine/qml/SheetHost.qml"),
                                             testCase, { host: host })
        sheets.compileSheets()
        sheets.openHelp()
        compare(sheets.depth, 2)
        compare(sheets.currentItem.help, host.help)
        sheets.closeSheet()
    }

    // A sheet covers the main screen and hands it back when it closes.
    function test_sheets_open_over_the_main_screen() {
        const sheets = createTemporaryObject(Qt.createComponent("qrc:/Tessarine/qml/SheetHost.qml"),
                                             testCase, { host: host })
        sheets.openSheet("FatalErrorView.qml", { message: "A sheet" }, {})
        compare(sheets.depth, 2)
        compare(sheets.currentItem.message, "A sheet")
        sheets.closeSheet()
        sheets.closeSheet()
        compare(sheets.depth, 1)
        compare(sheets.currentItem, sheets.mainScreen)
    }

    // With motion on, a scored tile keeps its blank face until it has turned half way; a refused
    // tile takes its colour at once and shakes.
    function test_tile_motion_data() {
        return [
            { tag: "scored", to: "green", first: "white" },
            { tag: "refused", to: "red", first: "red" },
        ]
    }
    function test_tile_motion(data) {
        const tile = createTemporaryObject(Qt.createComponent("qrc:/Tessarine/qml/Tile.qml"), testCase, {
            index: 0, gridColumn: 1, glyph: "A", colorName: "white", spokenName: "A", pattern: "",
            borderWidth: 1, size: 40, animate: true })
        tile.colorName = data.to
        compare(tile.shownColor, data.first)
        verify(tile.motion !== null)
        tryCompare(tile, "shownColor", data.to, 1000)
    }
}
