pragma ComponentBehavior: Bound
import QtQuick
import Tessarine

// The statistics summary: the latest score, the day to go back to, the block of figures, and the
// buttons to the guess distribution, the share sheet and the list of dates and scores.
Rectangle {
    id: screen
    required property StatisticsModel statistics
    readonly property var values: statistics.second
    signal back()
    color: "white"

    Column {
        anchors.fill: parent
        anchors.topMargin: 8
        spacing: 6

        SheetHeader {
            title: screen.values.title
            backButton: screen.values.backButton
            fontSize: screen.values.fontSizeTitle
            onBack: screen.back()
        }
        Text {
            anchors.horizontalCenter: parent.horizontalCenter
            text: screen.values.thankYouLine
            visible: text.length > 0
            font.pixelSize: screen.values.fontSizeText
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
        Repeater {
            model: [screen.values.latestScoreTitle, screen.values.latestScore,
                    screen.values.unfinishedTitle, screen.values.unfinishedDate]
            Text {
                required property string modelData
                required property int index
                anchors.horizontalCenter: parent.horizontalCenter
                text: modelData
                font.pixelSize: screen.values.fontSizeText * 0.9
                font.bold: index % 2 === 0
                Accessible.role: Accessible.StaticText
                Accessible.name: text
            }
        }
        Item { width: 1; height: 8 }
        Repeater {
            model: screen.values.figures
            Text {
                required property var modelData
                x: 16
                width: screen.width - 32
                text: modelData.label + modelData.value
                // A value without a label stands on its own line, set in from the labels.
                leftPadding: modelData.label.length > 0 ? 0 : 24
                font.pixelSize: screen.values.fontSizeText * 0.85
                wrapMode: Text.Wrap
                Accessible.role: Accessible.StaticText
                Accessible.name: text
            }
        }
        Item { width: 1; height: 12 }
        Row {
            anchors.horizontalCenter: parent.horizontalCenter
            spacing: 36
            SheetButton {
                objectName: "distributionButton"
                look: screen.values.distributionButton
                name: "Guess distribution"
                onClicked: screen.statistics.openDistribution()
            }
            SheetButton {
                objectName: "shareStatisticsButton"
                look: screen.values.shareButton
                name: "Share"
                onClicked: screen.statistics.shareStatistics()
            }
            SheetButton {
                objectName: "listButton"
                look: screen.values.listButton
                name: "Dates and scores"
                onClicked: screen.statistics.openList()
            }
        }
    }
}
