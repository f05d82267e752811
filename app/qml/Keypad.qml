import QtQuick

// The keys of the game's family in their rows, and the buttons under them.
Column {
    id: keypad
    spacing: 6

    Repeater {
        model: game.keyRows
        delegate: Row {
            id: keyRow
            required property var modelData
            anchors.horizontalCenter: parent.horizontalCenter
            spacing: 4

            Repeater {
                model: keyRow.modelData
                delegate: Key {
                    required property int modelData
                    keyIndex: modelData
                    label: game.keyLabels[modelData] || ""
                    colorName: game.keyColors[modelData] || "white"
                    live: game.keysLive[modelData] || false
                    onPressed: (keyIndex) => game.pressKey(keyIndex)
                }
            }
        }
    }

    Row {
        anchors.horizontalCenter: parent.horizontalCenter
        spacing: 10

        IconButton {
            objectName: "clearRowButton"
            symbol: "trash.square"
            name: "Clear row"
            onClicked: game.clearRow()
        }
        IconButton {
            symbol: "checkmark.square"
            name: "Move correct letters"
            tint: "#34c759"
            enabled: game.greenButtonEnabled
            onClicked: game.moveCorrectLetters()
        }
        IconButton {
            symbol: "lightbulb"
            name: "Hints"
            tint: "#ff9500"
            visible: game.hasHintsButton
            enabled: game.hintsEnabled
            onClicked: game.pressHints()
        }
        IconButton {
            symbol: "clear"
            name: "Clear cell"
            onClicked: game.clearCell()
        }
        IconButton {
            objectName: "submitButton"
            symbol: "arrow.down.app"
            name: "Submit guess"
            enabled: game.submitEnabled
            onClicked: game.submitGuess()
        }
    }
}
