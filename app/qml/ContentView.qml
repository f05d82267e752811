import QtQuick

Rectangle {
    color: "white"
    Text { anchors.centerIn: parent; text: "Tessarine" }
}
