import QtQuick
import QtTest
import Tessarine
import TessarineTest

// A short game of "C" played on the main screen, by touch and by the keyboard.
Item {
    width: 390
    height: 844

    ContentView {
        id: screen
        anchors.fill: parent
        host: TestSession.host
    }

    TestCase {
        id: testCase
        name: "Play"
        when: windowShown

        readonly property MainScreenModel game: TestSession.host.mainScreen
        readonly property string testAnswer: TestSession.answer

        function tap(name) {
            const item = findChild(screen, name)
            verify(item !== null, "no item " + name)
            mouseClick(item)
        }

        function typeByTouch(word) {
            for (const letter of word) tap("key_" + letter)
        }

        function rowCells(row, role) {
            const cells = []
            for (let column = 0; column < 5; ++column)
                cells.push(findChild(screen, "cell_" + (row * 5 + column))[role])
            return cells
        }

        function rowColors(row) {
            return rowCells(row, "colorName")
        }

        // The first valid word that is not today's answer, so the game goes on after it.
        function openingWord() {
            return testAnswer === "CRANE" ? "SLOTH" : "CRANE"
        }

        function test_game_by_touch_and_keyboard() {
            compare(testAnswer.length, 5)
            typeByTouch(openingWord())
            compare(rowCells(0, "glyph").join(""), openingWord())
            verify(game.submitEnabled)
            tap("submitButton")
            compare(game.activeRow, 1)
            // The row marks follow the accepted row, even while they are hidden.
            compare(game.rowMarkColors.slice(0, 2), ["red", "blue"])
            for (const color of rowColors(0))
                verify(["gray", "green", "blue", "yellow", "orange"].indexOf(color) >= 0, color)

            // A word that is not on the list turns the row cyan and leaves it open.
            screen.forceActiveFocus()
            for (const letter of "QZXQZ") keyClick(letter)
            keyClick(Qt.Key_Return)
            compare(rowColors(1), ["cyan", "cyan", "cyan", "cyan", "cyan"])
            compare(game.activeRow, 1)
            keyClick(Qt.Key_Backspace)
            compare(game.submitEnabled, false)

            // Clearing the row and typing the answer wins on the second row.
            tap("clearRowButton")
            typeByTouch(testAnswer)
            tap("submitButton")
            compare(rowColors(1), ["green", "green", "green", "green", "green"])
            compare(game.showKeypad, false)
            compare(game.scoreLine, "Eagle")
            const tile = findChild(screen, "cell_5")
            compare(tile.Accessible.name, "row 2, column 1, " + testAnswer[0] + ", green")
        }
    }
}
