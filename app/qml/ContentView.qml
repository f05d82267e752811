import QtQuick

// The main screen, drawn from the session: buttons, the date bar, the board, the score or the
// keypad. Touches and key presses go to the bridge; nothing here decides a rule.
Rectangle {
    id: screen
    color: "white"
    focus: true

    signal openOptions()
    signal openHelp()
    signal openShare()

    Keys.onPressed: (event) => {
        if (event.key === Qt.Key_Backspace || event.key === Qt.Key_Delete) {
            game.clearCell()
            event.accepted = true
        } else if (event.key === Qt.Key_Return || event.key === Qt.Key_Enter) {
            game.submitGuess()
            event.accepted = true
        } else if (event.text.length > 0) {
            event.accepted = game.typeText(event.text)
        }
    }

    Column {
        id: page
        anchors.top: parent.top
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.topMargin: 8
        spacing: 10

        Item {
            width: parent.width
            height: 48

            Row {
                anchors.left: parent.left
                anchors.leftMargin: 8
                anchors.verticalCenter: parent.verticalCenter
                IconButton { symbol: "gearshape"; name: "Options"; onClicked: screen.openOptions() }
                IconButton { symbol: "info.circle"; name: "How to play"; onClicked: screen.openHelp() }
            }
            Text {
                anchors.centerIn: parent
                text: "Tessarine"
                font.pixelSize: 26
                font.bold: true
                color: TilePalette.currentMode
                Accessible.role: Accessible.Heading
                Accessible.name: text
            }
            IconButton {
                anchors.right: parent.right
                anchors.rightMargin: 8
                anchors.verticalCenter: parent.verticalCenter
                symbol: "square.and.arrow.up"
                name: "Share"
                onClicked: screen.openShare()
            }
        }

        DateBar {
            anchors.horizontalCenter: parent.horizontalCenter
            onOpenDateList: dateWheel.open()
        }

        Board {
            id: board
            objectName: "board"
            anchors.horizontalCenter: parent.horizontalCenter
        }

        Column {
            anchors.horizontalCenter: parent.horizontalCenter
            width: parent.width - 32
            spacing: 6
            visible: !game.showKeypad

            Row {
                anchors.horizontalCenter: parent.horizontalCenter
                spacing: 6
                Text {
                    objectName: "scoreLine"
                    text: game.scoreLine
                    font.pixelSize: 24
                    font.bold: true
                    color: TilePalette.currentMode
                    Accessible.role: Accessible.AlertMessage
                    Accessible.name: text
                    Accessible.description: game.scoreMark === "" ? "" : game.scoreMark
                }
                Icon {
                    anchors.verticalCenter: parent.verticalCenter
                    symbol: game.scoreMark
                    size: 26
                    color: TilePalette.fill(game.scoreMarkColor)
                }
            }
            Text {
                width: parent.width
                text: game.definitionLine
                textFormat: Text.PlainText
                wrapMode: Text.Wrap
                font.pixelSize: 14
                horizontalAlignment: Text.AlignHCenter
                visible: text.length > 0
                Accessible.role: Accessible.StaticText
                Accessible.name: text
            }
        }

    }

    // The keypad sits low, under the thumbs; the hint texts go under it.
    Column {
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.bottom: parent.bottom
        anchors.bottomMargin: 24
        width: parent.width - 32
        spacing: 8

        Keypad {
            objectName: "keypad"
            anchors.horizontalCenter: parent.horizontalCenter
            visible: game.showKeypad
        }
        Text {
            anchors.horizontalCenter: parent.horizontalCenter
            text: game.hintsLine
            font.pixelSize: 15
            visible: text.length > 0
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
        Text {
            width: parent.width
            text: game.hintDefinitionLine
            textFormat: Text.PlainText
            wrapMode: Text.Wrap
            font.pixelSize: 14
            horizontalAlignment: Text.AlignHCenter
            visible: text.length > 0
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
    }

    DateWheel { id: dateWheel }
    HintsAlert {}
    ChristmasAlert {}
    ThankYouCover { anchors.fill: parent }
}
