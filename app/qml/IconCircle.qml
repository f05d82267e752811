import QtQuick
import Tessarine

// The circle around a circled symbol, which the icon font draws without one.
Rectangle {
    required property Icon icon
    anchors.centerIn: icon
    visible: Icons.circled(icon.symbol)
    width: icon.size
    height: icon.size
    radius: icon.size / 2
    color: "transparent"
    border.width: Math.max(1.5, icon.size / 12)
    border.color: icon.color
}
