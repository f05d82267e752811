pragma ComponentBehavior: Bound
import QtQuick
import Tessarine

// What a tile and a key share: a rounded square in its colour with its symbol in bold, the
// colour-blind mark in the top right corner, and a touch. Sizes are fractions of the width, set as
// constants by the type built on it, so that a cell binds no more than it draws.
Rectangle {
    id: square
    required property int index
    required property string glyph
    required property string colorName
    required property string spokenName
    required property string pattern
    // The colour on the face the player sees; a tile lets it lag `colorName` while it turns over.
    property string shownColor: colorName
    // A touch on a square that is not live does nothing.
    property bool live: true
    // The symbol's size, and where it moves to make room for a mark.
    property real glyphScale: 0.6
    property real markedGlyphScale: 0.48
    property real markedShiftX: -0.1
    property real markedShiftY: 0.08
    property real markScale: 0.34
    signal touched(int index)

    color: TilePalette.fill(shownColor)

    Text {
        anchors.centerIn: parent
        anchors.horizontalCenterOffset: square.pattern !== "" ? square.width * square.markedShiftX : 0
        anchors.verticalCenterOffset: square.pattern !== "" ? square.width * square.markedShiftY : 0
        text: square.glyph
        textFormat: Text.PlainText
        font.pixelSize: square.width * (square.pattern !== "" ? square.markedGlyphScale : square.glyphScale)
        font.bold: true
        color: TilePalette.ink(square.shownColor)
    }
    // Made on the square's first colour-blind mark: most boards never need one. Not a Loader: in
    // Qt 6.4 it makes its item in a context of its own, which a bound component refuses.
    property Item mark: null
    function showMark() {
        if (square.pattern !== "" && !square.mark)
            square.mark = Qt.createComponent("PatternMark.qml").createObject(square, { cell: square })
    }
    onPatternChanged: showMark()
    Component.onCompleted: showMark()

    MouseArea {
        anchors.fill: parent
        onClicked: if (square.live) square.touched(square.index)
    }
    Accessible.name: spokenName
    Accessible.onPressAction: if (live) square.touched(square.index)
}
