pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls

// An alert of buttons, one under the other; `chosen` tells the index of the button pressed.
Dialog {
    id: menu
    required property string heading
    required property list<string> buttons
    signal chosen(int index)
    modal: true
    anchors.centerIn: Overlay.overlay
    width: 300
    closePolicy: Popup.CloseOnEscape | Popup.CloseOnPressOutside

    contentItem: Column {
        spacing: 4
        Text {
            width: parent.width
            text: menu.heading
            font.pixelSize: 17
            font.bold: true
            wrapMode: Text.Wrap
            horizontalAlignment: Text.AlignHCenter
            Accessible.role: Accessible.AlertMessage
            Accessible.name: text
        }
        Repeater {
            model: menu.buttons
            Button {
                required property string modelData
                required property int index
                objectName: "menuButton" + index
                width: parent.width
                text: modelData
                flat: true
                onClicked: {
                    menu.close()
                    menu.chosen(index)
                }
                Accessible.name: text
            }
        }
    }
}
