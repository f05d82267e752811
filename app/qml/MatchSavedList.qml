pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import Tessarine

// The saved matches of this game type: one gets its own continue button, several a list to pick
// from. Deleting asks first. Names were typed by a player and are drawn as plain text.
Column {
    id: saved
    required property MatchModel match
    spacing: 6

    Button {
        objectName: "continueButton"
        anchors.horizontalCenter: parent.horizontalCenter
        visible: saved.match.savedNames.length === 1
        text: saved.match.texts.continueSaved
        onClicked: saved.match.continueSaved(0)
    }
    Text {
        anchors.horizontalCenter: parent.horizontalCenter
        visible: saved.match.savedNames.length > 1
        text: saved.match.texts.selectTitle
        font.pixelSize: 15
        color: TilePalette.text
    }
    Repeater {
        model: saved.match.savedNames.length > 1 ? saved.match.savedNames : []
        delegate: Row {
            id: line
            required property int index
            required property string modelData
            anchors.horizontalCenter: parent.horizontalCenter
            spacing: 8
            Text {
                objectName: "savedName_" + line.index
                anchors.verticalCenter: parent.verticalCenter
                width: 180
                text: line.modelData
                textFormat: Text.PlainText
                color: TilePalette.text
                elide: Text.ElideRight
                font.pixelSize: 16
            }
            Button {
                text: saved.match.texts.selectButton
                onClicked: saved.match.continueSaved(line.index)
            }
            IconButton {
                symbol: "trash.square"
                name: saved.match.texts.remove
                tint: "#ff3b30"
                onClicked: confirm.ask(line.index, line.modelData)
            }
        }
    }
    IconButton {
        anchors.horizontalCenter: parent.horizontalCenter
        visible: saved.match.savedNames.length === 1
        symbol: "trash.square"
        name: saved.match.texts.remove
        tint: "#ff3b30"
        onClicked: confirm.ask(0, saved.match.savedNames[0])
    }

    Dialog {
        id: confirm
        property int choice: -1
        property string name: ""
        function ask(index: int, savedName: string) {
            confirm.choice = index
            confirm.name = savedName
            confirm.open()
        }
        parent: Overlay.overlay
        anchors.centerIn: parent
        modal: true
        title: saved.match.texts.deleteTitle
        Label {
            text: confirm.name
            textFormat: Text.PlainText
        }
        footer: DialogButtonBox {
            Button { text: saved.match.texts.remove; onClicked: confirm.accept() }
            Button { text: saved.match.texts.cancel; onClicked: confirm.reject() }
        }
        onAccepted: saved.match.deleteSaved(confirm.choice)
    }
}
