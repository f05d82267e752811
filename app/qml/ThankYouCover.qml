import QtQuick
import Tessarine

// Covers the screen while the app is not active.
Rectangle {
    id: cover
    required property AlertsModel alerts
    color: TilePalette.background
    visible: cover.alerts.thankYouFlag

    Text {
        anchors.centerIn: parent
        text: cover.alerts.thankYou
        font.pixelSize: 30
        font.bold: true
        color: TilePalette.currentMode
        Accessible.role: Accessible.AlertMessage
        Accessible.name: text
    }
    MouseArea { anchors.fill: parent }
}
