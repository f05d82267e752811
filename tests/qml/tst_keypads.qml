import QtQuick
import QtTest
import Tessarine

// The keypad of each family: its rows on screen, and the operator keys that are dead.
Item {
    width: 390
    height: 844

    ContentView {
        id: screen
        anchors.fill: parent
    }

    TestCase {
        name: "Keypads"
        when: windowShown

        function rowLengths() {
            return game.keyRows.map(row => row.length)
        }

        function test_rows_data() {
            return [
                { tag: "English QWERTY", type: "C", rows: [10, 9, 7], firstRow: "QWERTYUIOP" },
                { tag: "Spanish QWERTY", type: "X", rows: [10, 10, 7], firstRow: "QWERTYUIOP" },
                { tag: "numbers", type: "K", rows: [3, 3, 3, 1], firstRow: "789" },
                { tag: "equations", type: "M", rows: [4, 4, 4, 2], firstRow: "789+" },
            ]
        }

        function test_rows(data) {
            game.chooseGameType(data.type)
            compare(game.gameType, data.type)
            compare(rowLengths(), data.rows)
            compare(game.keyRows[0].map(i => game.keyLabels[i]).join(""), data.firstRow)
            for (const label of game.keyLabels)
                verify(findChild(screen, "key_" + label) !== null, "no key " + label)
        }

        function test_operators_dead_in_the_first_column() {
            game.chooseGameType("M")
            compare(game.currentPosition % game.gameLetters, 0)
            const live = label => game.keysLive[game.keyLabels.indexOf(label)]
            compare(live("+"), false)
            compare(live("X"), false)
            compare(live("/"), false)
            compare(live("-"), true)
            compare(live("7"), true)
        }

        function test_switched_off_operators_are_black() {
            game.chooseGameType("N")
            compare(game.keyColors[game.keyLabels.indexOf("X")], "black")
            compare(game.keyColors[game.keyLabels.indexOf("/")], "black")
            mouseClick(findChild(screen, "key_7"))
            compare(game.keysLive[game.keyLabels.indexOf("X")], false)
            compare(game.keysLive[game.keyLabels.indexOf("+")], true)
        }
    }
}
