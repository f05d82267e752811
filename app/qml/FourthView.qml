pragma ComponentBehavior: Bound
import QtQuick
import Tessarine

// The challenge's rules, one bulleted paragraph each.
Rectangle {
    id: sheet
    required property HelpModel help
    signal back()

    color: TilePalette.background

    SheetHeader {
        id: header
        anchors.top: parent.top
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.margins: 4
        title: sheet.help.rulesTitle
        backSymbol: sheet.help.backSymbol
        onBack: sheet.back()
    }

    Flickable {
        objectName: "sheetText"
        anchors.top: header.bottom
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        anchors.margins: 14
        contentHeight: content.height + 24
        clip: true

        Column {
            id: content
            width: parent.width
            spacing: 12

            Repeater {
                model: sheet.help.rules
                delegate: Row {
                    id: rule
                    required property string modelData
                    width: content.width
                    spacing: 8
                    Icon {
                        id: bullet
                        symbol: sheet.help.rulesBullet
                        size: 22
                        color: TilePalette.fill("green")
                    }
                    Text {
                        width: rule.width - bullet.width - rule.spacing
                        text: rule.modelData
                        textFormat: Text.PlainText
                        wrapMode: Text.Wrap
                        font.pixelSize: 15
                        color: TilePalette.text
                        Accessible.role: Accessible.StaticText
                        Accessible.name: text
                    }
                }
            }
        }
    }
}
