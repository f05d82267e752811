import QtQuick

// The moves of one tile, made on its first move: a tile turns over (one column after another) to
// show its score, shakes when its row is refused, and bounces on a win. A board at rest needs none.
Item {
    id: motion
    required property Item tile
    required property int gridColumn
    required property Scale face
    required property Translate nudge
    // True from half way through a turn, when the new face shows; `landed` once the turn is done.
    property bool turned: false
    signal landed()

    function turnOver() {
        motion.turned = false
        flip.restart()
    }
    function shake() {
        shaking.restart()
    }
    function bounce() {
        bouncing.restart()
    }
    function stop() {
        flip.stop()
        motion.face.yScale = 1
    }

    SequentialAnimation {
        id: flip
        PauseAnimation { duration: motion.gridColumn * 70 }
        NumberAnimation { target: motion.face; property: "yScale"; to: 0; duration: 90 }
        PropertyAction { target: motion; property: "turned"; value: true }
        NumberAnimation { target: motion.face; property: "yScale"; to: 1; duration: 90 }
        onFinished: motion.landed()
    }
    SequentialAnimation {
        id: shaking
        NumberAnimation { target: motion.nudge; property: "x"; to: -6; duration: 35 }
        NumberAnimation { target: motion.nudge; property: "x"; to: 6; duration: 70 }
        NumberAnimation { target: motion.nudge; property: "x"; to: -3; duration: 60 }
        NumberAnimation { target: motion.nudge; property: "x"; to: 0; duration: 35 }
    }
    SequentialAnimation {
        id: bouncing
        PauseAnimation { duration: motion.gridColumn * 60 }
        NumberAnimation { target: motion.nudge; property: "y"; to: -motion.tile.height * 0.3; duration: 110 }
        NumberAnimation { target: motion.nudge; property: "y"; to: 0; duration: 160 }
    }
}
