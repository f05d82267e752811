pragma ComponentBehavior: Bound
import QtQuick
import Tessarine

// A challenge key drawn as keycaps: each digit on a small rounded key. The emoji font of Qt 6.4
// splits a keycap emoji into its digit and an empty box, so the screen draws the caps itself; the
// texts that leave the app keep the emoji.
Row {
    id: caps
    required property string digits
    property real size: 26
    spacing: 4

    Accessible.role: Accessible.StaticText
    Accessible.name: caps.digits.split("").join(" ")

    Repeater {
        model: caps.digits.length
        delegate: Rectangle {
            id: cap
            required property int index
            width: caps.size
            height: caps.size
            radius: caps.size * 0.2
            color: TilePalette.groupBackground
            border.width: 1
            border.color: "#8e8e93"
            Accessible.ignored: true

            Text {
                anchors.centerIn: parent
                text: caps.digits[cap.index]
                font.pixelSize: caps.size * 0.65
                font.bold: true
                color: TilePalette.text
            }
        }
    }
}
