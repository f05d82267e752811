import QtQuick

// The fatal stop: the core could not go on (a store that will not open, a missing list).
Rectangle {
    id: root
    required property string message
    color: "white"

    Column {
        anchors.centerIn: parent
        width: parent.width - 40
        spacing: 16

        Text {
            width: parent.width
            text: "Fatal error"
            font.pixelSize: 28
            font.bold: true
            horizontalAlignment: Text.AlignHCenter
            Accessible.role: Accessible.Heading
            Accessible.name: text
        }
        Text {
            width: parent.width
            text: root.message
            textFormat: Text.PlainText
            wrapMode: Text.Wrap
            font.pixelSize: 17
            horizontalAlignment: Text.AlignHCenter
            Accessible.role: Accessible.AlertMessage
            Accessible.name: text
        }
    }
}
