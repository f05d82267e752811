import QtQuick
import QtTest
import Tessarine
import TessarineTest

// The physical keyboard on the main screen: it keeps working after every popup, Backspace and the
// arrows edit the row, a refused guess is explained, and a lost game names its answer.
Item {
    width: 390
    height: 844

    ContentView {
        id: screen
        anchors.fill: parent
        host: TestSession.host
    }

    TestCase {
        name: "Keyboard"
        when: windowShown

        readonly property MainScreenModel game: TestSession.host.mainScreen
        readonly property string testAnswer: TestSession.answer

        function rowText(row) {
            let text = ""
            for (let column = 0; column < 5; ++column)
                text += findChild(screen, "cell_" + (row * 5 + column)).glyph
            return text
        }

        function type(word) {
            for (const letter of word) keyClick(letter)
        }

        function message() {
            return findChild(screen, "refusalMessage").text
        }

        function init() {
            screen.forceActiveFocus()
        }

        function test_1_backspace_and_arrows() {
            type("CRA")
            keyClick(Qt.Key_Backspace)
            compare(rowText(0), "CR")
            type("ANE")
            keyClick(Qt.Key_Backspace)  // the cursor wrapped to the first cell: the E goes
            compare(rowText(0), "CRAN")
            type("E")
            keyClick(Qt.Key_Right)
            keyClick(Qt.Key_Right)
            keyClick(Qt.Key_Right)
            keyClick(Qt.Key_Left)
            type("O")
            compare(rowText(0), "CRONE")
            game.clearRow()
        }

        function test_2_typing_after_each_popup() {
            const popups = [
                () => TestSession.host.dateBar.openDateList(),
            ]
            for (const openPopup of popups) {
                openPopup()
                wait(50)
                keyClick(Qt.Key_Escape)
                wait(50)
                type("S")
                compare(rowText(0)[0], "S", "typing stopped after a popup")
                game.clearRow()
            }
        }

        function test_3_refusals_are_explained() {
            type("QZXQZ")
            keyClick(Qt.Key_Return)
            compare(message(), "The word QZXQZ is not a valid word.")
            type("C")
            compare(message(), "")
            game.clearRow()
        }

        function test_4_a_lost_game_names_its_answer() {
            const words = ["CRANE", "SLOTH", "PLUMB", "DWARF", "GHOST", "TIMID", "BLIMP"]
                .filter(word => word !== testAnswer).slice(0, 6)
            for (const word of words) {
                game.clearRow()
                type(word)
                keyClick(Qt.Key_Return)
            }
            compare(game.showKeypad, false)
            compare(game.scoreLine, "Picking up")
            compare(findChild(screen, "lostAnswer").text, testAnswer)
            compare(game.hintsLine, "")
        }
    }
}
