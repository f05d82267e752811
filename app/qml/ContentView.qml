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

    // Popups and sheets take the keyboard while they are up; the board takes it back after.
    function takeKeyboard() {
        screen.forceActiveFocus()
    }

    Keys.onPressed: (event) => {
        if (event.key === Qt.Key_Backspace) {
            screen.game.backspace()
            event.accepted = true
        } else if (event.key === Qt.Key_Delete) {
            screen.game.clearCell()
            event.accepted = true
        } else if (event.key === Qt.Key_Left || event.key === Qt.Key_Right) {
            screen.game.moveCursor(event.key === Qt.Key_Left ? -1 : 1)
            event.accepted = true
        } else if (event.key === Qt.Key_Return || event.key === Qt.Key_Enter) {
            screen.game.submitGuess()
            event.accepted = true
        } else if (event.text.length > 0) {
            event.accepted = screen.game.typeText(event.text)
        }
    }

    // The phone layout, as wide as fits the window's height, centred. Its sizes are bindings, not
    // anchors, so that the texts inside first lay out at the width they keep.
    Item {
        id: layout
        x: (screen.width - width) / 2
        width: Math.min(screen.width, screen.game.layoutWidth)
        height: screen.height

        Column {
            id: page
            y: 8
            width: layout.width
            spacing: 10

            // The bars of buttons keep a phone's width even where the board is drawn narrower.
            Item {
                anchors.horizontalCenter: parent.horizontalCenter
                width: Math.max(parent.width, Math.min(screen.width - 8, 400))
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
                    font.pixelSize: parent.width < 340 ? 21 : 26
                    font.bold: true
                    color: TilePalette.currentMode
                    Accessible.role: Accessible.Heading
                    Accessible.name: text
                }
                IconButton {
                    anchors.right: parent.right
                    anchors.rightMargin: 8
                    anchors.verticalCenter: parent.verticalCenter
                    objectName: "shareGameButton"
                    symbol: "square.and.arrow.up"
                    name: "Share"
                    enabled: screen.game.shareEnabled
                    onClicked: screen.game.shareGame()
                }
            }

            DateBar {
                anchors.horizontalCenter: parent.horizontalCenter
                width: Math.max(parent.width, Math.min(screen.width - 8, 400))
                dates: screen.host.dateBar
                onOpenDateList: dateWheel.open()
                onOpenStatistics: screen.host.statistics.openStatistics()
            }

            Board {
                objectName: "board"
                anchors.horizontalCenter: parent.horizontalCenter
                model: screen.game.board
                cellWidth: screen.game.cellWidth
                familyMarks: screen.game.familyMarks
                rowMarks: screen.game.rowMarks
                rowMarkColors: screen.game.rowMarkColors
                rowMarkNames: screen.game.rowMarkNames
                animate: !screen.game.reducedMotion
                celebrate: !screen.game.showKeypad && screen.game.lostAnswerLine.length === 0
                onCellTouched: (index) => screen.game.touchCell(index)
            }

            // Why the last guess was refused; its place is kept so nothing below moves.
            Text {
                objectName: "refusalMessage"
                anchors.horizontalCenter: parent.horizontalCenter
                width: parent.width - 32
                height: 52
                text: screen.game.refusalMessage
                textFormat: Text.PlainText
                wrapMode: Text.Wrap
                maximumLineCount: 4
                elide: Text.ElideRight
                fontSizeMode: Text.VerticalFit
                minimumPixelSize: 10
                font.pixelSize: 14
                color: TilePalette.currentMode
                horizontalAlignment: Text.AlignHCenter
                visible: screen.game.showKeypad
                Accessible.role: Accessible.AlertMessage
                Accessible.name: text
                Accessible.ignored: text.length === 0
            }

            // Made once a game is over: most starts open on a game still in play.
            LazyLoader {
                anchors.horizontalCenter: parent.horizontalCenter
                width: parent.width - 32
                file: "ScoreLines.qml"
                wanted: !screen.game.showKeypad
                visible: wanted
                properties: ({ game: screen.game })
            }
        }

        // The keypad sits low, under the thumbs; the hint texts go under it.
        Column {
            anchors.horizontalCenter: parent.horizontalCenter
            anchors.bottom: parent.bottom
            anchors.bottomMargin: 12
            width: parent.width - 16
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
            // The hint lines keep their place while empty, so the keys never move under a finger.
            Text {
                anchors.horizontalCenter: parent.horizontalCenter
                height: 20
                text: screen.game.hintsLine
                // The size of the lines around it: one font fewer to load at the start.
                font.pixelSize: 14
                color: TilePalette.text
                Accessible.role: Accessible.StaticText
                Accessible.name: text
                Accessible.ignored: text.length === 0
            }
            Text {
                width: parent.width
                height: 36
                text: screen.game.hintDefinitionLine
                textFormat: Text.PlainText
                color: TilePalette.text
                wrapMode: Text.Wrap
                maximumLineCount: 2
                elide: Text.ElideRight
                font.pixelSize: 14
                horizontalAlignment: Text.AlignHCenter
                Accessible.role: Accessible.StaticText
                Accessible.name: text
                Accessible.ignored: text.length === 0
            }
        }
    }

    LazyLoader {
        id: dateWheel
        file: "DateWheel.qml"
        wanted: screen.host.dateBar.selectingDate
        properties: ({ dates: screen.host.dateBar })
        onClosed: screen.takeKeyboard()
    }
    LazyLoader {
        file: "HintsAlert.qml"
        wanted: screen.host.alerts.showHintsAlert
        properties: ({ alerts: screen.host.alerts })
        onClosed: screen.takeKeyboard()
    }
    LazyLoader {
        file: "ChristmasAlert.qml"
        wanted: screen.host.alerts.showChristmasAlert
        properties: ({ alerts: screen.host.alerts })
        onClosed: screen.takeKeyboard()
    }
    LazyLoader {
        anchors.fill: parent
        file: "ThankYouCover.qml"
        wanted: screen.host.alerts.thankYouFlag
        properties: ({ alerts: screen.host.alerts })
    }
}
