pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import Tessarine

// The wheel of selectable days; one line per day, today first.
Popup {
    id: wheel
    required property DateBarModel dates
    modal: true
    focus: true
    anchors.centerIn: Overlay.overlay
    width: 330
    padding: 16
    closePolicy: Popup.CloseOnEscape | Popup.CloseOnPressOutside
    background: Rectangle {
        color: TilePalette.groupBackground
        radius: 12
    }

    // The session opens the list; opening lands on the line of the day on the board.
    readonly property bool wanted: wheel.dates.selectingDate
    onWantedChanged: if (wanted) open()
    Component.onCompleted: if (wanted) open()
    onAboutToShow: tumbler.currentIndex = wheel.dates.selectedDateIndex

    Column {
        width: parent.width
        spacing: 12

        Text {
            color: TilePalette.text
            anchors.horizontalCenter: parent.horizontalCenter
            text: wheel.dates.dateListTitle
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
            model: wheel.dates.allDatesInfo
            delegate: Text {
                color: TilePalette.text
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
            Accessible.name: wheel.dates.dateListTitle
        }
        Button {
            objectName: "selectDateButton"
            anchors.horizontalCenter: parent.horizontalCenter
            text: wheel.dates.dateListButton
            Accessible.name: text
            onClicked: {
                wheel.close()
                wheel.dates.pickDate(tumbler.currentIndex)
            }
        }
    }
}
