import QtQuick
import QtQuick.Controls
import Tessarine

// Asks for the name of a match to continue later. The core trims and checks it; a refusal stays
// open with the core's message.
Dialog {
    id: dialog
    required property MatchModel match
    signal saved()

    parent: Overlay.overlay
    anchors.centerIn: parent
    width: 320
    modal: true
    title: dialog.match.texts.saveTitle
    onOpened: nameField.text = ""

    Column {
        width: parent.width
        spacing: 8
        TextField {
            id: nameField
            objectName: "saveName"
            width: parent.width
            placeholderText: dialog.match.texts.namePrompt
        }
        Text {
            width: parent.width
            text: dialog.match.message
            textFormat: Text.PlainText
            color: "#ff3b30"
            wrapMode: Text.Wrap
            visible: text.length > 0
        }
    }
    footer: DialogButtonBox {
        Button {
            text: dialog.match.texts.save
            onClicked: if (dialog.match.save(nameField.text)) { dialog.close(); dialog.saved() }
        }
        Button { text: dialog.match.texts.cancel; onClicked: dialog.reject() }
    }
}
