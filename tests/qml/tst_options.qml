import QtQuick
import QtTest
import Tessarine
import TessarineTest

// The options sheet driven by touch over the main screen: a type chosen there is on the board as
// soon as the sheet closes, and is still there after a restart.
Item {
    width: 390
    height: 844

    SheetHost {
        id: sheets
        anchors.fill: parent
        host: TestSession.host
    }

    TestCase {
        id: testCase
        name: "Options"
        when: windowShown

        readonly property MainScreenModel game: TestSession.host.mainScreen

        // A touch rebuilds the groups; the new buttons take their places at the next frame.
        function tap(name) {
            wait(50)
            const item = findChild(sheets.currentItem, name)
            verify(item !== null, "no item " + name)
            // Scroll the sheet until the item is in sight, as a finger would.
            const flick = findChild(sheets.currentItem, "sheetText")
            if (flick) {
                const top = item.mapToItem(flick.contentItem, 0, 0).y
                flick.contentY = Math.max(0, Math.min(top - 100, flick.contentHeight - flick.height))
                wait(50)
            }
            mouseClick(item)
        }

        function openOptions() {
            sheets.openOptions()
            verify(sheets.currentItem instanceof SeventhView)
        }

        function closeOptions() {
            tap("backButton")
            tryCompare(sheets, "depth", 1)
        }

        function test_1_a_chosen_type_is_played_at_once_and_kept() {
            compare(game.gameType, "C")
            openOptions()
            tap("item_4 Digit Number")
            tap("item_Prime Numbers Only")
            tap("option_smartMode")
            // Nothing reaches the board before the sheet closes.
            compare(game.gameType, "C")
            closeOptions()
            compare(game.gameType, "I")
            compare(game.board.gridColumns, 4)
            compare(game.board.gridRows, 6)
            compare(game.familyMarks[0], "parkingsign.circle")

            TestSession.restart()
            compare(game.gameType, "I")
            openOptions()
            compare(findChild(sheets.currentItem, "option_smartMode").symbol, "square.fill")
            closeOptions()
        }

        function test_3_colour_blind_marks_every_scoring_colour() {
            openOptions()
            tap("option_colourBlind")
            closeOptions()
            TestSession.restart()
            verify(TestSession.host.options.colourBlind)

            // A scored row: every tile carries the mark of its own colour, and no two colours share one.
            for (const digit of "1009") game.typeText(digit)
            game.submitGuess()
            const marks = {}
            for (let cell = 0; cell < 4; ++cell) {
                const tile = findChild(sheets, "cell_" + cell)
                verify(tile.pattern !== "", tile.colorName)
                verify(findChild(tile, "patternMark") !== null, "the mark is drawn")
                if (marks[tile.colorName] !== undefined) compare(tile.pattern, marks[tile.colorName])
                marks[tile.colorName] = tile.pattern
            }
            const patterns = Object.keys(marks).map(colour => marks[colour])
            compare(new Set(patterns).size, patterns.length)
        }

        function test_4_rules_open_from_the_options_sheet() {
            openOptions()
            tap("rulesButton")
            verify(sheets.currentItem instanceof FourthView)
            compare(TestSession.host.help.rules.length, 10)
            tap("backButton")
            tryCompare(sheets, "depth", 2)
            closeOptions()
        }
    }
}
