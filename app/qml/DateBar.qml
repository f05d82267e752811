import QtQuick

// The shown day with the date list, the current-day button, and the latest open day.
Column {
    id: bar
    signal openDateList()
    spacing: 2

    Row {
        anchors.horizontalCenter: parent.horizontalCenter
        spacing: 6

        IconButton {
            symbol: "calendar"
            name: game.dateListTitle
            onClicked: {
                game.openDateList()
                bar.openDateList()
            }
        }
        Text {
            anchors.verticalCenter: parent.verticalCenter
            width: Math.max(190, implicitWidth)
            text: game.shownDate
            font.pixelSize: 19
            font.bold: true
            horizontalAlignment: Text.AlignHCenter
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
        // Days after today are closed: the arrow's place stays blank unless future games are on.
        IconButton {
            symbol: game.playFutureGames ? "chevron.right" : ""
            name: "Next day"
            enabled: game.playFutureGames
            opacity: 1.0
            onClicked: game.goForward()
        }
        IconButton {
            symbol: "sunrise"
            name: "Today"
            enabled: !game.disableCurrent
            onClicked: game.goToToday()
        }
    }
    Row {
        anchors.horizontalCenter: parent.horizontalCenter
        spacing: 6

        IconButton {
            symbol: "figure.wave"
            name: game.latestLabel
            size: 24
            enabled: !game.disableFirst
            onClicked: game.goToLatestOpen()
        }
        Text {
            anchors.verticalCenter: parent.verticalCenter
            width: 300
            text: game.latestLabel + " " + game.latestValue
            font.pixelSize: 13
            wrapMode: Text.Wrap
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
    }
}
