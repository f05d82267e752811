import QtQuick
import QtTest
import Tessarine
import TessarineTest

// The match screen opened over the main screen, a key typed on its ten-key pad, and leaving it.
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
        name: "Match"
        when: windowShown

        readonly property MatchModel match: TestSession.host.match

        function tap(name) {
            const item = findChild(sheets.currentItem, name)
            verify(item !== null, "no item " + name)
            verify(item.visible, name + " is hidden")
            mouseClick(item)
        }

        function cleanup() {
            TestSession.host.mainScreen.resizeViewport(390, 844)
            match.leave()
            while (sheets.depth > 1) sheets.closeSheet()
        }

        function openMatch() {
            sheets.openChallenge()
            compare(sheets.depth, 2)
            verify(match.active)
            verify(sheets.currentItem.activeFocus, "the match screen takes the keyboard")
        }

        // Type C, answer line 1234: the worked example's key.
        function typeKey(digits) {
            for (const digit of digits) tap("key_" + digit)
        }

        function test_key_entry_data() {
            return [
                { tag: "valid", digits: "806349", title: "Valid 5L Key Entered", status: "Enter 1st Guess", atKey: false },
                { tag: "one digit wrong", digits: "806348", title: "Enter Challenge Key", status: "Invalid Key Entry", atKey: true },
            ]
        }

        function test_key_entry(data) {
            openMatch()
            tap("acceptButton")
            verify(match.atKey)
            compare(match.titleLine, "Enter Challenge Key")
            typeKey(data.digits.slice(0, 5))
            verify(!match.submitEnabled, "five digits are not a key")
            typeKey(data.digits.slice(5))
            compare(match.keyCells.join(""), data.digits)
            tap("matchSubmitButton")
            compare(match.atKey, data.atKey)
            compare(match.statusLine, data.status)
            if (!data.atKey) {
                compare(match.titleLine, data.title)
                compare(match.board.gridRows, 8)
                compare(match.board.gridColumns, 5)
            }
            tap("backButton")
            compare(sheets.depth, 1)
            verify(!match.active)
        }

        // An open match draws its rows and keys for the window as it is now.
        function test_sizes_follow_the_window() {
            openMatch()
            const board = findChild(sheets.currentItem, "matchBoard")
            const before = [board.cellWidth, findChild(sheets.currentItem, "matchKeypad").keyWidth]
            TestSession.host.mainScreen.resizeViewport(320, 600)
            verify(board.cellWidth < before[0], "cells " + board.cellWidth)
            verify(findChild(sheets.currentItem, "matchKeypad").keyWidth < before[1])
        }

        // The initiator's opening guess gives the send button the first label and the choices; a
        // reported walk is submitted from the buttons under the board.
        function test_opening_guess_shows_the_choices() {
            openMatch()
            for (const letter of "CRANE") tap("key_" + letter)
            tap("matchSubmitButton")
            verify(match.showChoices)
            // The key stands in the title as six drawn keycaps, not as the split emoji.
            const key = findChild(sheets.currentItem, "titleKey")
            verify(key.visible)
            verify(/^[0-9]{6}$/.test(key.digits), key.digits)
            verify(!findChild(sheets.currentItem, "titleLine").visible)
            compare(findChild(sheets.currentItem, "sendButton").label, "Start Challenge")
            compare(match.choiceLabels, ["2nd Guess Received", "Opponent Found Answer", "Opponent Walked",
                                         "Opponent Struck Out"])
            // A signal stands without the keypad, and submit still reaches it.
            tap("choice_2")
            verify(!match.showKeypad)
            tap("matchSubmitButton")
            verify(match.showKeypad, "the player's own turn follows the walk")
            tap("backButton")
            compare(sheets.depth, 1)
        }

        // A saved name is the player's text: markup in it is shown as typed, never drawn.
        function test_saved_matches_show_their_names_as_typed() {
            const names = ["<b>Ana</b>", "Lunch"]
            for (const name of names) {
                openMatch()
                for (const letter of "CRANE") tap("key_" + letter)
                tap("matchSubmitButton")
                verify(!match.save("   "), "a blank name is refused")
                compare(match.message, "Name Must Be 1 - 20 Characters")
                verify(match.save(name))
                sheets.closeSheet()
            }
            openMatch()
            compare(match.savedNames, names)
            const shown = findChild(sheets.currentItem, "savedName_0")
            compare(shown.text, names[0])
            compare(shown.textFormat, Text.PlainText)
            verify(shown.visible)
        }
    }
}
