import QtQuick
import QtQuick.Controls

// The question raised by the hints button.
Dialog {
    id: alert
    modal: true
    anchors.centerIn: Overlay.overlay
    width: 320
    // The session says when the alert is up; closing it here reports back through the actions.
    readonly property bool wanted: game.showHintsAlert
    onWantedChanged: wanted ? open() : close()
    Component.onCompleted: if (wanted) open()
    closePolicy: Popup.CloseOnEscape | Popup.CloseOnPressOutside

    contentItem: Text {
        text: game.hintsAlertTitle
        wrapMode: Text.Wrap
        font.pixelSize: 17
        font.bold: true
        horizontalAlignment: Text.AlignHCenter
        Accessible.role: Accessible.AlertMessage
        Accessible.name: text
    }
    footer: DialogButtonBox {
        Button {
            objectName: "confirmHintButton"
            text: game.hintsAlertConfirm
            DialogButtonBox.buttonRole: DialogButtonBox.AcceptRole
            Accessible.name: text
        }
    }
    onAccepted: game.confirmHint()
    onClosed: if (game.showHintsAlert) game.dismissHintsAlert()
}
