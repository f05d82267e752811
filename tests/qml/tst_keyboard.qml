import QtQuick
import QtTest
import Tessarine
import TessarineTest

// The physical keyboard on the main screen: it keeps working after every popup, Backspace and the
// arrows edit the row, a refused guess is explained, and a lost game names its answer.
Item {
    width: 390
    height: 844

    SheetHost {
        id: sheets
        anchors.fill: parent
        host: TestSession.host
        focus: true
    }
    property Item screen: null

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

        // As the app starts: the main screen has the keyboard before anything is touched.
        function initTestCase() {
            verify(sheets.mainScreen.activeFocus)
        }

        function init() {
            sheets.closeSheet()
            screen = sheets.mainScreen
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

        function test_2_typing_after_each_popup_and_sheet() {
            const closeTop = () => keyClick(Qt.Key_Escape)
            const popups = [
                ["date wheel", () => TestSession.host.dateBar.openDateList(), closeTop],
                ["options", () => sheets.openOptions(), () => sheets.goBack()],
                ["how to play", () => sheets.openHelp(), () => sheets.closeSheet()],
                ["statistics", () => TestSession.host.statistics.openStatistics(), () => sheets.closeSheet()],
                ["challenge", () => sheets.openChallenge(), () => sheets.closeSheet()],
            ]
            for (const [name, open, close] of popups) {
                open()
                wait(50)
                close()
                wait(50)
                type("S")
                compare(rowText(0)[0], "S", "typing stopped after the " + name)
                game.clearRow()
            }
        }

        function setSmartMode(on) {
            const options = TestSession.host.options
            options.open()
            options.setOption("smartMode", on)
            options.close()
        }

        function guess(word) {
            game.clearRow()
            type(word)
            keyClick(Qt.Key_Return)
        }

        // The day's answer has an N in the wrong spot of CRANE and no C, R or A.
        function test_3_refusals_are_explained() {
            guess("QZXQZ")
            compare(message(), "The word QZXQZ is not a valid word.")
            type("C")
            compare(message(), "")
            guess("CRANE")
            guess("CRANE")
            compare(message(), "The word CRANE was used previously.")
            setSmartMode(true)
            guess("SLOTH")
            verify(message().startsWith("The letter N is in the mystery word but in the wrong spot, but on the next "
                                        + "guess N was not used in any position."), message())
            setSmartMode(false)
        }

        function test_4_a_lost_game_names_its_answer() {
            const words = ["PLUMB", "DWARF", "GHOST", "TIMID", "BLIMP", "CHUMP", "FIELD", "WORLD"]
                .filter(word => word !== testAnswer)
            for (const word of words) {
                if (!game.showKeypad) break
                guess(word)
            }
            compare(game.showKeypad, false)
            compare(game.scoreLine, "Picking up")
            compare(findChild(screen, "lostAnswer").text, testAnswer)
            compare(game.hintsLine, "")
        }
    }
}
