import QtQuick
import QtTest
import Tessarine

// Every screen and shared piece loads headless without an error.
TestCase {
    id: testCase
    name: "Screens"
    width: 390
    height: 844
    when: windowShown

    function test_loads_data() {
        return [
            { tag: "ContentView", file: "ContentView.qml", props: {} },
            { tag: "FatalErrorView", file: "FatalErrorView.qml", props: { message: "Core Data Store failed " } },
            { tag: "Board", file: "Board.qml", props: {} },
            { tag: "Keypad", file: "Keypad.qml", props: {} },
            { tag: "DateBar", file: "DateBar.qml", props: {} },
            { tag: "ThankYouCover", file: "ThankYouCover.qml", props: {} },
            { tag: "DateWheel", file: "DateWheel.qml", props: {} },
            { tag: "HintsAlert", file: "HintsAlert.qml", props: {} },
            { tag: "ChristmasAlert", file: "ChristmasAlert.qml", props: {} },
        ]
    }

    function test_loads(data) {
        const component = Qt.createComponent("qrc:/Tessarine/qml/" + data.file)
        compare(component.status, Component.Ready, component.errorString())
        const screen = createTemporaryObject(component, testCase, data.props)
        verify(screen !== null, data.file)
    }

    function test_board_is_the_empty_first_game() {
        compare(game.gameType, "C")
        compare(game.gameLetters, 5)
        compare(game.gameRows, 6)
        compare(game.cellLetters.length, 30)
        compare(game.cellLetters.filter(letter => letter !== "").length, 0)
        compare(game.keyLabels.slice(0, 10).join(""), "QWERTYUIOP")
    }

    // A symbol name that the table does not know would draw nothing at all.
    function test_every_symbol_of_the_main_screen_has_a_glyph() {
        const names = ["gearshape", "info.circle", "square.and.arrow.up", "trash.square", "clear",
                       "arrow.down.app", "calendar", "chevron.right", "sunrise", "figure.wave",
                       "star.fill", "exclamationmark.questionmark", "questionmark", "exclamationmark.2",
                       "exclamationmark.triangle.fill", "multiply", "questionmark.circle",
                       "graduationcap.fill", "parkingsign.circle"]
        for (const name of names)
            verify(Icons.glyph(name).length === 1, name)
        compare(Icons.glyph("graduationcap.blank"), "")
    }
}
