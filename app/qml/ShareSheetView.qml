import QtQuick
import QtQuick.Controls
import Tessarine

// The app's own share sheet: the text as the receiver will see it, and a button that copies it.
Rectangle {
    id: sheet
    required property ClipboardShareSink sink
    signal back()
    color: "white"

    SheetHeader {
        id: header
        anchors.top: parent.top
        anchors.topMargin: 8
        title: sheet.sink.title
        backButton: ({ symbol: "chevron.left", color: "blue" })
        onBack: sheet.back()
    }
    Rectangle {
        id: message
        anchors.top: header.bottom
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.topMargin: 12
        width: parent.width - 48
        height: Math.min(shared.implicitHeight + 24, sheet.height - 220)
        radius: 14
        color: "#e9e9eb"
        clip: true

        Text {
            id: shared
            objectName: "sharedText"
            anchors.fill: parent
            anchors.margins: 12
            text: sheet.sink.text
            textFormat: Text.PlainText
            wrapMode: Text.Wrap
            font.pixelSize: 20
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
    }
    Column {
        anchors.top: message.bottom
        anchors.topMargin: 16
        anchors.horizontalCenter: parent.horizontalCenter
        spacing: 8
        Button {
            objectName: "copyButton"
            anchors.horizontalCenter: parent.horizontalCenter
            text: sheet.sink.copyButton
            font.pixelSize: 18
            onClicked: sheet.sink.copy()
            Accessible.name: text
        }
        Text {
            objectName: "copiedNote"
            anchors.horizontalCenter: parent.horizontalCenter
            text: sheet.sink.copiedNote
            font.pixelSize: 15
            color: "#34c759"
            Accessible.role: Accessible.AlertMessage
            Accessible.name: text
        }
    }
}
