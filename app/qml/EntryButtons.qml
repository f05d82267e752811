import QtQuick
import Tessarine

// The buttons under the keypad: clear the row, move the green letters, hints, clear the cell,
// submit.
Row {
    id: buttons
    required property MainScreenModel game
    spacing: 10

    IconButton {
        objectName: "clearRowButton"
        symbol: "trash.square"
        name: "Clear row"
        onClicked: buttons.game.clearRow()
    }
    IconButton {
        symbol: "checkmark.square"
        name: "Move correct letters"
        tint: "#34c759"
        enabled: buttons.game.greenButtonEnabled
        onClicked: buttons.game.moveCorrectLetters()
    }
    IconButton {
        symbol: "lightbulb"
        name: "Hints"
        tint: "#ff9500"
        visible: buttons.game.hasHintsButton
        enabled: buttons.game.hintsEnabled
        onClicked: buttons.game.pressHints()
    }
    IconButton {
        symbol: "clear"
        name: "Clear cell"
        onClicked: buttons.game.clearCell()
    }
    IconButton {
        objectName: "submitButton"
        symbol: "arrow.down.app"
        name: "Submit guess"
        enabled: buttons.game.submitEnabled
        onClicked: buttons.game.submitGuess()
    }
}
