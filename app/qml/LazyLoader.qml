import QtQuick

// A screen part made from its file the first time it is wanted, and kept after: the popups, the
// score lines of a finished game, the covers. Its type is compiled only then, so a part that
// most starts never show costs the first frame nothing.
Loader {
    id: lazy
    required property string file
    // The model's wish to show the part. A popup opens and closes on it itself.
    required property bool wanted
    // The part's own properties, its required ones among them.
    required property var properties
    signal closed()

    // The part as made, untyped: each file makes a type of its own.
    readonly property var part: lazy.item

    function make() {
        if (!lazy.item) lazy.setSource(lazy.file, lazy.properties)
    }
    // Opens a popup even when the model's wish has not changed since it last closed.
    function open() {
        make()
        if (lazy.part) lazy.part.open()
    }
    // Later in the same turn of the event loop, once the properties' own bindings have caught up.
    onWantedChanged: if (wanted) Qt.callLater(lazy.make)
    Component.onCompleted: if (wanted) make()
    onLoaded: if (lazy.part.closed) lazy.part.closed.connect(lazy.closed)
}
