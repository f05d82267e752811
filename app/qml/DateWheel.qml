import QtQuick
import QtQuick.Controls

// The wheel of selectable days; one line per day, today first.
Popup {
    id: wheel
    modal: true
    focus: true
    anchors.centerIn: Overlay.overlay
    width: 330
    padding: 16
    closePolicy: Popup.CloseOnEscape | Popup.CloseOnPressOutside

    // The session opens the list; opening lands on the line of the day on the board.
    readonly property bool wanted: game.selectingDate
    onWantedChanged: if (wanted) open()
    Component.onCompleted: if (wanted) open()
    onAboutToShow: tumbler.currentIndex = game.selectedDateIndex

    contentItem: Column {
        spacing: 12

        Text {
            anchors.horizontalCenter: parent.horizontalCenter
            text: game.dateListTitle
            font.pixelSize: 19
            font.bold: true
            Accessible.role: Accessible.Heading
            Accessible.name: text
        }
        Tumbler {
            id: tumbler
            objectName: "dateTumbler"
            width: parent.width
            height: 200
            visibleItemCount: 5
            wrap: false
            model: game.allDatesInfo
            delegate: Text {
                required property string modelData
                required property int index
                text: modelData
                font.pixelSize: 16
                horizontalAlignment: Text.AlignHCenter
                verticalAlignment: Text.AlignVCenter
                opacity: 1.0 - Math.abs(Tumbler.displacement) / (tumbler.visibleItemCount / 2)
                Accessible.role: Accessible.ListItem
                Accessible.name: modelData
            }
            Accessible.role: Accessible.List
            Accessible.name: game.dateListTitle
        }
        Button {
            objectName: "selectDateButton"
            anchors.horizontalCenter: parent.horizontalCenter
            text: game.dateListButton
            Accessible.name: text
            onClicked: {
                wheel.close()
                game.pickDate(tumbler.currentIndex)
            }
        }
    }
}
