pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import Tessarine

// The match screen: the key or the board of eight shared rows, the lamps, the status lines, the
// keypad or the choices, and the end banner. Everything shown comes from the match model.
Rectangle {
    id: screen
    required property SessionHost host
    readonly property MatchModel match: host.match
    color: TilePalette.background
    focus: true

    signal done()
    signal openRules()
    signal openStatistics()

    function leave() {
        screen.match.leave()
        screen.done()
    }

    Keys.onPressed: (event) => {
        if (event.key === Qt.Key_Backspace || event.key === Qt.Key_Delete) {
            screen.match.clearCell()
            event.accepted = true
        } else if (event.key === Qt.Key_Return || event.key === Qt.Key_Enter) {
            screen.match.submit()
            event.accepted = true
        } else if (event.key === Qt.Key_Escape) {
            screen.leave()
            event.accepted = true
        } else if (event.text.length > 0) {
            event.accepted = screen.match.typeText(event.text)
        }
    }

    Column {
        id: page
        anchors.top: parent.top
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.topMargin: 8
        spacing: 6

        SheetHeader {
            title: screen.match.texts.heading
            onBack: screen.leave()
            leading: IconButton { symbol: "info.circle"; name: "Rules"; onClicked: screen.openRules() }
            IconButton {
                objectName: "saveButton"
                symbol: "square.and.arrow.down"
                name: screen.match.texts.saveTitle
                visible: screen.match.canSave
                onClicked: saveDialog.open()
            }
            IconButton { symbol: "chart.bar"; name: "Statistics"; onClicked: screen.openStatistics() }
        }

        Text {
            objectName: "titleLine"
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            text: screen.match.titleLine
            font.pixelSize: 20
            color: TilePalette.text
            visible: screen.match.titleKeyDigits === ""
        }
        KeycapRow {
            objectName: "titleKey"
            anchors.horizontalCenter: parent.horizontalCenter
            digits: screen.match.titleKeyDigits
            visible: digits !== ""
        }
        Text {
            objectName: "statusLine"
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            text: screen.match.statusLine
            font.pixelSize: 17
            font.bold: true
            color: TilePalette.tint
        }
        Text {
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            text: screen.match.statusSecondLine
            font.pixelSize: 15
            color: TilePalette.text
            visible: text.length > 0
        }
        MatchLamps {
            anchors.horizontalCenter: parent.horizontalCenter
            match: screen.match
            visible: !screen.match.atKey
        }
        MatchKeyEntry {
            anchors.horizontalCenter: parent.horizontalCenter
            match: screen.match
            visible: screen.match.atKey
        }
        Board {
            objectName: "matchBoard"
            anchors.horizontalCenter: parent.horizontalCenter
            visible: !screen.match.atKey
            model: screen.match.board
            cellWidth: screen.match.cellWidth
            onCellTouched: (index) => screen.match.touchCell(index)
        }
        Text {
            objectName: "matchMessage"
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
            text: screen.match.message
            textFormat: Text.PlainText
            font.pixelSize: 14
            color: TilePalette.secondaryText
            visible: text.length > 0
        }
    }

    Column {
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.bottom: parent.bottom
        anchors.bottomMargin: 20
        width: parent.width - 32
        spacing: 8

        Button {
            objectName: "acceptButton"
            anchors.horizontalCenter: parent.horizontalCenter
            visible: screen.match.canAccept
            text: screen.match.texts.accept
            onClicked: screen.match.accept()
        }
        MatchSavedList {
            width: parent.width
            match: screen.match
            visible: screen.match.canAccept && screen.match.savedNames.length > 0
        }
        MatchChoices {
            width: parent.width
            match: screen.match
            visible: screen.match.showChoices
        }
        Keypad {
            objectName: "matchKeypad"
            anchors.horizontalCenter: parent.horizontalCenter
            visible: screen.match.showKeypad && !screen.match.atKey
            model: screen.match.keypad
            keyWidth: screen.match.keyWidth
            onKeyPressed: (index) => screen.match.pressKey(index)
        }
        // A signal fill stands without the keypad; it still needs submit and undo.
        MatchButtons {
            anchors.horizontalCenter: parent.horizontalCenter
            match: screen.match
            visible: !screen.match.gameOver && (screen.match.showKeypad || screen.match.submitEnabled
                                                || screen.match.showUndo || screen.match.showWalkButton)
        }
    }

    MatchBanner {
        anchors.centerIn: parent
        anchors.verticalCenterOffset: -40
        match: screen.match
    }
    MatchSaveDialog {
        id: saveDialog
        match: screen.match
        onSaved: screen.done()
    }
}
