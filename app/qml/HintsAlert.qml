import QtQuick
import QtQuick.Controls
import Tessarine

// The question raised by the hints button.
Dialog {
    id: alert
    required property AlertsModel alerts
    modal: true
    anchors.centerIn: Overlay.overlay
    width: 320
    // The session says when the alert is up; closing it here reports back through the actions.
    readonly property bool wanted: alert.alerts.showHintsAlert
    onWantedChanged: wanted ? open() : close()
    Component.onCompleted: if (wanted) open()
    closePolicy: Popup.CloseOnEscape | Popup.CloseOnPressOutside
    background: Rectangle {
        color: TilePalette.groupBackground
        radius: 12
    }

    contentItem: Text {
        color: TilePalette.text
        text: alert.alerts.hintsAlertTitle
        wrapMode: Text.Wrap
        font.pixelSize: 17
        font.bold: true
        horizontalAlignment: Text.AlignHCenter
        Accessible.role: Accessible.AlertMessage
        Accessible.name: text
    }
    footer: DialogButtonBox {
        background: Rectangle {
            color: TilePalette.groupBackground
            radius: 12
        }
        Button {
            objectName: "confirmHintButton"
            text: alert.alerts.hintsAlertConfirm
            onClicked: alert.accept()
            Accessible.name: text
        }
    }
    onAccepted: alert.alerts.confirmHint()
    onClosed: if (alert.alerts.showHintsAlert) alert.alerts.dismissHintsAlert()
}
