import QtQuick
import Tessarine

// The buttons under the match keypad. Each is shown only when its action applies.
Row {
    id: buttons
    required property MatchModel match
    spacing: 4

    IconButton {
        symbol: "trash.square"
        name: "Clear row"
        visible: buttons.match.showTrash
        onClicked: buttons.match.clearRow()
    }
    IconButton {
        objectName: "walkButton"
        symbol: "figure.walk.diamond"
        name: "Intentional walk"
        tint: buttons.match.walkSelected ? "#ff3b30" : TilePalette.tint
        visible: buttons.match.showWalkButton
        onClicked: buttons.match.toggleWalk()
    }
    IconButton {
        symbol: "arrow.uturn.backward.square"
        name: "Undo choice"
        visible: buttons.match.showUndo
        onClicked: buttons.match.undo()
    }
    IconButton {
        objectName: "pasteButton"
        symbol: "doc.on.clipboard"
        name: buttons.match.texts.paste
        visible: buttons.match.canPaste
        onClicked: buttons.match.paste()
    }
    IconButton {
        symbol: "questionmark.circle"
        name: "Ask the opponent"
        visible: buttons.match.showQuestion
        onClicked: buttons.match.send()
    }
    IconButton {
        symbol: "clear"
        name: "Clear cell"
        visible: buttons.match.showKeypad
        onClicked: buttons.match.clearCell()
    }
    IconButton {
        objectName: "matchSubmitButton"
        symbol: "arrow.down.app"
        name: "Submit"
        enabled: buttons.match.submitEnabled
        onClicked: buttons.match.submit()
    }
}
