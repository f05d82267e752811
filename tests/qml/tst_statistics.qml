import QtQuick
import QtTest
import Tessarine
import TessarineTest

// The statistics sheets and the share sheet, opened and closed by touch over the main screen, and
// a finished game's grid copied to the clipboard.
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
        name: "Statistics"
        when: windowShown

        readonly property SessionHost host: TestSession.host

        // A sheet takes touches once its push or pop has ended.
        function tap(name) {
            const item = findChild(sheets.currentItem, name)
            verify(item !== null, "no item " + name)
            mouseClick(item)
        }

        function backToMainScreen() {
            while (sheets.depth > 1) tap("backButton")
        }

        function cleanup() {
            backToMainScreen()
        }

        // Statistics first, so that no game has been played yet.
        function test_1_sheets_open_and_close() {
            tap("statisticsButton")
            compare(sheets.depth, 2)
            compare(host.statistics.second.title, "STATISTICS")
            // Before a first game the list button is dim and does nothing.
            verify(!findChild(sheets.currentItem, "listButton").enabled)
            tap("listButton")
            compare(sheets.depth, 2)
            tap("distributionButton")
            compare(sheets.depth, 3)
            compare(host.statistics.sixth.bars.length, 6)
            tap("backButton")
            compare(sheets.depth, 2)
            tap("shareStatisticsButton")
            compare(sheets.depth, 3)
            verify(findChild(sheets.currentItem, "sharedText").text.startsWith("STATISTICS\nTessarine 5L\n\n"))
            tap("backButton")
            tap("backButton")
            compare(sheets.depth, 1)
        }

        function test_2_finished_grid_is_copied() {
            const game = host.mainScreen
            verify(!findChild(sheets.currentItem, "shareGameButton").enabled)
            for (const letter of TestSession.answer) game.typeText(letter)
            game.submitGuess()
            verify(!game.showKeypad)
            // A touched tile is hidden from the grid; the share is two taps from the finished game.
            mouseClick(findChild(sheets.currentItem, "cell_0"))
            compare(findChild(sheets.currentItem, "cell_0").borderWidth, 4.0)
            tap("shareGameButton")
            compare(sheets.depth, 2)
            compare(findChild(sheets.currentItem, "copiedNote").text, "")
            tap("copyButton")
            compare(findChild(sheets.currentItem, "copiedNote").text, "Copied to the clipboard")
            const grid = TestSession.clipboardText()
            verify(grid.startsWith("Tessarine 5L\n"), grid)
            verify(grid.indexOf("⬛🟩🟩🟩🟩⭐️\n\nHole-in-one ⭐️") > 0, grid)
        }

        function test_3_list_sorts_and_shares() {
            tap("statisticsButton")
            tap("listButton")
            compare(sheets.depth, 3)
            compare(host.statistics.fifth.lines.length, 1)
            // The sort menu's buttons are the core's choices by index: "Score ascending" is the fourth.
            tap("sortButton")
            const menu = findChild(sheets.currentItem, "sortMenu")
            tryCompare(menu, "opened", true)
            const scoreAscending = findChild(menu.contentItem, "menuButton3")
            compare(scoreAscending.text, "Score ascending")
            mouseClick(scoreAscending)
            tryCompare(menu, "visible", false)
            tap("shareListButton")
            compare(sheets.depth, 4)
            verify(findChild(sheets.currentItem, "sharedText").text.endsWith(",Hole-in-one,-3"))
        }
    }
}
