import QtQuick
import QtQuick.Controls
import Tessarine

// The present of the bonus day. All of it stays English in both languages.
Dialog {
    id: alert
    required property AlertsModel alerts
    modal: true
    anchors.centerIn: Overlay.overlay
    width: 340
    // The session says when the alert is up; closing it here reports back through the actions.
    readonly property bool wanted: alert.alerts.showChristmasAlert
    onWantedChanged: wanted ? open() : close()
    Component.onCompleted: if (wanted) open()
    closePolicy: Popup.NoAutoClose
    background: Rectangle {
        color: TilePalette.groupBackground
        radius: 12
    }

    header: Text {
        color: TilePalette.text
        topPadding: 16
        leftPadding: 16
        rightPadding: 16
        text: alert.alerts.christmasAlertTitle
        wrapMode: Text.Wrap
        font.pixelSize: 18
        font.bold: true
        horizontalAlignment: Text.AlignHCenter
        Accessible.role: Accessible.Heading
        Accessible.name: text
    }
    contentItem: Text {
        color: TilePalette.text
        text: alert.alerts.christmasMessage
        textFormat: Text.PlainText
        wrapMode: Text.Wrap
        font.pixelSize: 15
        Accessible.role: Accessible.AlertMessage
        Accessible.name: alert.alerts.christmasAlertTitle
        Accessible.description: text
    }
    footer: DialogButtonBox {
        background: Rectangle {
            color: TilePalette.groupBackground
            radius: 12
        }
        Button {
            text: alert.alerts.christmasAlertButton
            onClicked: alert.reject()
            Accessible.name: text
        }
    }
    onClosed: if (alert.alerts.showChristmasAlert) alert.alerts.dismissChristmasAlert()
}
