pragma ComponentBehavior: Bound
import QtQuick
import Tessarine

// The ball and strike lamps of the turn in hand: three balls and two strikes, since the next one
// ends the turn.
Row {
    id: lamps
    required property MatchModel match
    spacing: 18

    component LampGroup: Row {
        id: group
        required property string label
        required property int lamps
        required property int lit
        spacing: 2
        Text {
            anchors.verticalCenter: parent.verticalCenter
            text: group.label
            font.pixelSize: 15
            color: TilePalette.text
            rightPadding: 4
        }
        Repeater {
            model: group.lamps
            delegate: Icon {
                required property int index
                objectName: group.label + "_lamp_" + index
                symbol: index < group.lit ? "checkmark.square.fill" : "square"
                color: index < group.lit ? "#ff3b30" : "#8e8e93"
                size: 22
            }
        }
    }

    LampGroup { label: lamps.match.texts.balls; lamps: 3; lit: lamps.match.ballLamps }
    LampGroup { label: lamps.match.texts.strikes; lamps: 2; lit: lamps.match.strikeLamps }
}
