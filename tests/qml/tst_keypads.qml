import QtQuick
import QtTest
import Tessarine
import TessarineTest

// The keypad of each family: its rows on screen, and the operator keys that are dead.
Item {
    width: 390
    height: 844

    ContentView {
        id: screen
        anchors.fill: parent
        host: TestSession.host
    }

    TestCase {
        name: "Keypads"
        when: windowShown

        readonly property MainScreenModel game: TestSession.host.mainScreen

        // The drawn keys, row by row, in their order on screen.
        function drawnRows() {
            const rows = []
            const keypad = findChild(screen, "keypad")
            for (let i = 0; i < keypad.children.length; ++i) {
                const key = keypad.children[i]
                if (key.gridRow === undefined) continue
                while (rows.length <= key.gridRow) rows.push([])
                rows[key.gridRow][key.gridColumn] = key
            }
            return rows
        }

        function key(symbol) {
            const item = findChild(screen, "key_" + symbol)
            verify(item !== null, "no key " + symbol)
            return item
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
            TestSession.host.chooseGameType(data.type)
            compare(game.gameType, data.type)
            const rows = drawnRows()
            compare(rows.map(row => row.length), data.rows)
            compare(rows[0].map(key => key.symbol).join(""), data.firstRow)
            // Each row is centred: as much room left of its first key as right of its last.
            for (const row of rows) {
                const last = row[row.length - 1]
                fuzzyCompare(row[0].x, findChild(screen, "keypad").width - last.x - last.width, 0.5)
            }
        }

        function test_operators_dead_in_the_first_column() {
            TestSession.host.chooseGameType("M")
            compare(game.currentPosition % game.board.gridColumns, 0)
            compare(key("+").live, false)
            compare(key("X").live, false)
            compare(key("/").live, false)
            compare(key("-").live, true)
            compare(key("7").live, true)
        }

        function test_switched_off_operators_are_black() {
            TestSession.host.chooseGameType("N")
            compare(key("X").colorName, "black")
            compare(key("/").colorName, "black")
            mouseClick(key("7"))
            compare(key("X").live, false)
            compare(key("+").live, true)
            compare(key("X").Accessible.name, "times, black")
        }
    }
}
