import QtQuick
import QtQuick.Controls

// The present of the bonus day. All of it stays English in both languages.
Dialog {
    id: alert
    modal: true
    anchors.centerIn: Overlay.overlay
    width: 340
    // The session says when the alert is up; closing it here reports back through the actions.
    readonly property bool wanted: game.showChristmasAlert
    onWantedChanged: wanted ? open() : close()
    Component.onCompleted: if (wanted) open()
    closePolicy: Popup.NoAutoClose

    header: Text {
        topPadding: 16
        leftPadding: 16
        rightPadding: 16
        text: game.christmasAlertTitle
        wrapMode: Text.Wrap
        font.pixelSize: 18
        font.bold: true
        horizontalAlignment: Text.AlignHCenter
        Accessible.role: Accessible.Heading
        Accessible.name: text
    }
    contentItem: Text {
        text: game.christmasMessage
        textFormat: Text.PlainText
        wrapMode: Text.Wrap
        font.pixelSize: 15
        Accessible.role: Accessible.AlertMessage
        Accessible.name: game.christmasAlertTitle
        Accessible.description: text
    }
    footer: DialogButtonBox {
        Button {
            text: game.christmasAlertButton
            DialogButtonBox.buttonRole: DialogButtonBox.RejectRole
            Accessible.name: text
        }
    }
    onClosed: if (game.showChristmasAlert) game.dismissChristmasAlert()
}
