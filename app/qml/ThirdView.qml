pragma ComponentBehavior: Bound
import QtQuick
import Tessarine

// How to play the chosen game type: the name's dictionary entry, the rules in short, colour
// examples beside rows of real tiles, the options, Smart Mode errors, the buttons beside their
// icons and the marks beside their symbols. All of it comes from the model.
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
        title: sheet.help.helpTitle
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
            spacing: 16

            Repeater {
                model: sheet.help.helpSections
                delegate: Column {
                    id: section
                    required property var modelData
                    required property int index
                    width: content.width
                    spacing: 10

                    Text {
                        width: parent.width
                        visible: text.length > 0
                        text: section.modelData.heading
                        textFormat: Text.PlainText
                        font.pixelSize: 18
                        font.bold: true
                        color: TilePalette.currentMode
                        Accessible.role: Accessible.Heading
                        Accessible.name: text
                    }
                    Repeater {
                        model: section.modelData.lines
                        delegate: HelpLine {
                            width: section.width
                            // The first section is the dictionary entry of the game's name.
                            entry: section.index === 0
                        }
                    }
                }
            }
        }
    }
}
