import QtQuick
import QtQuick.Window

Window {
    width: 390
    height: 844
    visible: true
    title: "Tessarine"
    ContentView { anchors.fill: parent }
}
