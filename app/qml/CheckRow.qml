import QtQuick
import Tessarine

// One row of the options sheet: its "square.fill" or "square" box and its label; a touch flips it.
Item {
    id: row
    required property string label
    required property string symbol
    signal toggled()

    implicitHeight: Math.max(40, text.implicitHeight + 12)
    Icon {
        id: box
        anchors.left: parent.left
        anchors.verticalCenter: parent.verticalCenter
        symbol: row.symbol
        size: 26
        color: TilePalette.tint
    }
    Text {
        id: text
        anchors.left: box.right
        anchors.leftMargin: 10
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        text: row.label
        textFormat: Text.PlainText
        wrapMode: Text.Wrap
        font.pixelSize: 16
        color: TilePalette.text
    }
    MouseArea {
        anchors.fill: parent
        onClicked: row.toggled()
    }
    Accessible.role: Accessible.CheckBox
    Accessible.name: label
    Accessible.checked: symbol === "square.fill"
    Accessible.onPressAction: row.toggled()
}
