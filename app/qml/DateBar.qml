import QtQuick
import Tessarine

// The shown day with the date list, the current-day button, and the latest open day.
Column {
    id: bar
    required property DateBarModel dates
    signal openDateList()
    signal openStatistics()
    spacing: 2

    Row {
        anchors.horizontalCenter: parent.horizontalCenter
        spacing: 6

        IconButton {
            symbol: "calendar"
            name: bar.dates.dateListTitle
            onClicked: {
                bar.dates.openDateList()
                bar.openDateList()
            }
        }
        Text {
            anchors.verticalCenter: parent.verticalCenter
            // Narrow phones take room from the date, never from the buttons.
            width: Math.max(100, Math.min(190, bar.width - 4 * 44 - 4 * 6))
            text: bar.dates.shownDate
            // A long date shrinks to its width, measured once at full size rather than searched for
            // size by size.
            font.pixelSize: Math.max(12, Math.min(19, Math.floor(19 * width / Math.max(1, fullSize.advanceWidth))))
            TextMetrics {
                id: fullSize
                font.pixelSize: 19
                font.bold: true
                text: bar.dates.shownDate
            }
            font.bold: true
            color: TilePalette.text
            horizontalAlignment: Text.AlignHCenter
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
        // Days after today are closed: the arrow's place stays blank unless future games are on.
        IconButton {
            symbol: bar.dates.playFutureGames ? "chevron.right" : ""
            name: "Next day"
            enabled: bar.dates.playFutureGames
            opacity: 1.0
            onClicked: bar.dates.goForward()
        }
        IconButton {
            symbol: "sunrise"
            name: "Today"
            enabled: bar.dates.currentEnabled
            onClicked: bar.dates.goToToday()
        }
        IconButton {
            objectName: "statisticsButton"
            symbol: "chart.bar"
            name: "Statistics"
            onClicked: bar.openStatistics()
        }
    }
    Row {
        anchors.horizontalCenter: parent.horizontalCenter
        spacing: 6

        IconButton {
            symbol: "figure.wave"
            name: bar.dates.latestLabel
            size: 24
            enabled: bar.dates.latestEnabled
            onClicked: bar.dates.goToLatestOpen()
        }
        Text {
            anchors.verticalCenter: parent.verticalCenter
            width: Math.max(100, Math.min(300, bar.width - 24 - 6))
            text: bar.dates.latestLabel + " " + bar.dates.latestValue
            font.pixelSize: 13
            wrapMode: Text.Wrap
            color: TilePalette.text
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
    }
}
