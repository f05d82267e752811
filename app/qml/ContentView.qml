pragma ComponentBehavior: Bound
import QtQuick
import Tessarine

// The main screen, drawn from the session: buttons, the date bar, the board, the score or the
// keypad. Touches and key presses go to the screen models; nothing here decides a rule.
Rectangle {
    id: screen
    required property SessionHost host
    readonly property MainScreenModel game: host.mainScreen
    color: TilePalette.background
    focus: true

    signal openOptions()
    signal openHelp()
    signal openShare()

    Keys.onPressed: (event) => {
        if (event.key === Qt.Key_Backspace || event.key === Qt.Key_Delete) {
            screen.game.clearCell()
            event.accepted = true
        } else if (event.key === Qt.Key_Return || event.key === Qt.Key_Enter) {
            screen.game.submitGuess()
            event.accepted = true
        } else if (event.text.length > 0) {
            event.accepted = screen.game.typeText(event.text)
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
            dates: screen.host.dateBar
            onOpenDateList: dateWheel.open()
        }

        Board {
            objectName: "board"
            anchors.horizontalCenter: parent.horizontalCenter
            model: screen.game.board
            cellWidth: screen.game.cellWidth
            familyMarks: screen.game.familyMarks
            rowMarks: screen.game.rowMarks
            rowMarkColors: screen.game.rowMarkColors
            onCellTouched: (index) => screen.game.touchCell(index)
        }

        ScoreLines {
            anchors.horizontalCenter: parent.horizontalCenter
            width: parent.width - 32
            game: screen.game
            visible: !screen.game.showKeypad
        }
    }

    // The keypad sits low, under the thumbs; the hint texts go under it.
    Column {
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.bottom: parent.bottom
        anchors.bottomMargin: 24
        width: parent.width - 32
        spacing: 8

        Column {
            anchors.horizontalCenter: parent.horizontalCenter
            spacing: 6
            visible: screen.game.showKeypad

            Keypad {
                objectName: "keypad"
                anchors.horizontalCenter: parent.horizontalCenter
                model: screen.game.keypad
                keyWidth: screen.game.keypadWidth
                onKeyPressed: (index) => screen.game.pressKey(index)
            }
            EntryButtons {
                anchors.horizontalCenter: parent.horizontalCenter
                game: screen.game
            }
        }
        Text {
            anchors.horizontalCenter: parent.horizontalCenter
            text: screen.game.hintsLine
            font.pixelSize: 15
            color: TilePalette.text
            visible: text.length > 0
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
        Text {
            width: parent.width
            text: screen.game.hintDefinitionLine
            textFormat: Text.PlainText
            color: TilePalette.text
            wrapMode: Text.Wrap
            font.pixelSize: 14
            horizontalAlignment: Text.AlignHCenter
            visible: text.length > 0
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
    }

    DateWheel { id: dateWheel; dates: screen.host.dateBar }
    HintsAlert { alerts: screen.host.alerts }
    ChristmasAlert { alerts: screen.host.alerts }
    ThankYouCover { anchors.fill: parent; alerts: screen.host.alerts }
}
