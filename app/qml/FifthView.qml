pragma ComponentBehavior: Bound
import QtQuick
import Tessarine

// The dates and scores: the finished games in the order of the sort menu, with a date format
// menu and the share button.
Rectangle {
    id: screen
    required property StatisticsModel statistics
    readonly property var values: statistics.fifth
    signal back()
    color: "white"

    SheetHeader {
        id: header
        anchors.top: parent.top
        anchors.topMargin: 8
        title: screen.values.title
        backButton: screen.values.backButton
        onBack: screen.back()
    }
    Row {
        id: buttons
        anchors.top: header.bottom
        anchors.horizontalCenter: parent.horizontalCenter
        spacing: 36
        SheetButton {
            objectName: "sortButton"
            look: screen.values.sortButton
            name: screen.values.sortMenuTitle
            onClicked: sortMenu.open()
        }
        SheetButton {
            objectName: "dateFormatButton"
            look: screen.values.dateFormatButton
            name: screen.values.dateFormatMenuTitle
            onClicked: dateFormatMenu.open()
        }
        SheetButton {
            objectName: "shareListButton"
            look: screen.values.shareButton
            name: "Share"
            onClicked: screen.statistics.shareList()
        }
    }
    ListView {
        objectName: "dateList"
        anchors.top: buttons.bottom
        anchors.bottom: parent.bottom
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.margins: 16
        clip: true
        model: screen.values.lines
        delegate: Text {
            required property string modelData
            text: modelData
            font.pixelSize: screen.values.fontSize * 0.6
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
    }

    ChoiceMenu {
        id: sortMenu
        objectName: "sortMenu"
        heading: screen.values.sortMenuTitle
        buttons: screen.values.sortMenuButtons
        onChosen: (index) => screen.statistics.pressSort(index)
    }
    ChoiceMenu {
        id: dateFormatMenu
        heading: screen.values.dateFormatMenuTitle
        buttons: [screen.values.dateFormatCancel].concat(screen.values.dateFormats)
        onChosen: (index) => {
            if (index > 0) screen.statistics.chooseDateFormat(screen.values.dateFormats[index - 1])
        }
    }
}
