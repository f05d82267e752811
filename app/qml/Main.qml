import QtQuick
import QtQuick.Window

// The phone-sized window. It shows the main screen, or the fatal stop when the core has failed.
Window {
    id: window
    width: 390
    height: 844
    visible: true
    title: "Tessarine"
    color: "white"

    Binding {
        target: game
        property: "viewport"
        value: Qt.size(window.width, window.height)
    }

    Loader {
        anchors.fill: parent
        sourceComponent: game.fatalMessage.length > 0 ? fatalScreen : mainScreen
        focus: true
    }

    Component {
        id: mainScreen
        ContentView { focus: true }
    }
    Component {
        id: fatalScreen
        FatalErrorView { message: game.fatalMessage }
    }
}
