pragma ComponentBehavior: Bound
import QtQuick
import Tessarine

// While waiting: the send button, then what the opponent may have done.
Column {
    id: choices
    required property MatchModel match
    spacing: 6

    component LabelButton: Rectangle {
        id: button
        required property string symbol
        required property string label
        property color tint: TilePalette.tint
        signal clicked()
        width: choices.width
        height: 44
        radius: 8
        color: TilePalette.groupBackground
        Row {
            anchors.centerIn: parent
            spacing: 8
            Icon { symbol: button.symbol; color: button.tint; size: 24 }
            Text {
                anchors.verticalCenter: parent.verticalCenter
                text: button.label
                font.pixelSize: 17
                color: button.tint
            }
        }
        MouseArea { anchors.fill: parent; onClicked: button.clicked() }
        Accessible.role: Accessible.Button
        Accessible.name: label
        Accessible.onPressAction: button.clicked()
    }

    LabelButton {
        objectName: "sendButton"
        symbol: "square.and.arrow.up"
        label: choices.match.sendLabel
        onClicked: choices.match.send()
    }
    Repeater {
        model: choices.match.choiceLabels
        delegate: LabelButton {
            required property int index
            required property string modelData
            objectName: "choice_" + index
            symbol: "circle.circle"
            label: modelData
            tint: TilePalette.text
            onClicked: choices.match.choose(index)
        }
    }
}
