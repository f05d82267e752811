import QtQuick
import Tessarine

// The phone-sized window. It shows the main screen with its sheets, or the fatal stop when the
// core has failed.
Window {
    id: window
    required property SessionHost host
    width: 390
    height: 844
    visible: true
    title: "Tessarine"
    color: TilePalette.background

    // The board's sizes follow the screen's.
    function reportViewport() {
        window.host.mainScreen.resizeViewport(window.width, window.height)
    }
    onWidthChanged: reportViewport()
    onHeightChanged: reportViewport()
    Component.onCompleted: reportViewport()

    // The fatal stop covers everything; the main screen underneath no longer takes a touch.
    // Sizes as bindings rather than anchors: they hold before the screens first lay out their
    // texts, so no text is laid out twice, nor for a width it never has.
    SheetHost {
        objectName: "sheets"
        width: window.width
        height: window.height
        host: window.host
        focus: true
        visible: !fatal.visible
    }
    LazyLoader {
        id: fatal
        anchors.fill: parent
        file: "FatalErrorView.qml"
        wanted: window.host.fatalMessage.length > 0
        visible: wanted
        properties: ({ message: window.host.fatalMessage })
    }
}
