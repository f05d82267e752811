import QtQuick

// Covers the screen while the app is not active.
Rectangle {
    color: "white"
    visible: game.thankYouFlag

    Text {
        anchors.centerIn: parent
        text: game.thankYou
        font.pixelSize: 30
        font.bold: true
        color: TilePalette.currentMode
        Accessible.role: Accessible.AlertMessage
        Accessible.name: text
    }
    MouseArea { anchors.fill: parent }
}
