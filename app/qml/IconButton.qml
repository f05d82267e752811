import QtQuick

// A touch button showing one system symbol.
Item {
    id: button
    required property string symbol
    required property string name
    property color tint: "#007aff"
    property real size: 30
    signal clicked()

    implicitWidth: Math.max(44, size + 12)
    implicitHeight: Math.max(44, size + 12)
    opacity: enabled ? 1.0 : 0.35

    Icon {
        anchors.centerIn: parent
        symbol: button.symbol
        size: button.size
        color: button.tint
    }
    MouseArea {
        anchors.fill: parent
        onClicked: button.clicked()
    }
    Accessible.ignored: symbol === ""
    Accessible.role: Accessible.Button
    Accessible.name: name
    Accessible.onPressAction: if (enabled) button.clicked()
}
