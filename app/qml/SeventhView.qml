pragma ComponentBehavior: Bound
import QtQuick
import Tessarine

// The options sheet: the game types in their four groups, the word languages, the options, the
// colour-blind marks, and the door to the challenge with its rules. Every touch goes to the model;
// the back button closes the sheet, which applies a real change at once.
Rectangle {
    id: sheet
    required property OptionsModel options
    signal back()
    signal openRules()
    signal openChallenge()

    color: TilePalette.background
    Component.onCompleted: if (!options.isOpen) options.open()

    function close() {
        sheet.options.close()
        sheet.back()
    }

    SheetHeader {
        id: header
        anchors.top: parent.top
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.margins: 4
        title: sheet.options.title
        onBack: sheet.close()
    }

    Flickable {
        objectName: "sheetText"
        anchors.top: header.bottom
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        anchors.margins: 12
        contentHeight: content.height + 24
        clip: true

        Column {
            id: content
            width: parent.width
            spacing: 14

            Repeater {
                model: sheet.options.groups
                delegate: GameGroupBox {
                    required property int index
                    width: content.width
                    onGroupChosen: sheet.options.chooseGroup(index)
                    onItemChosen: (item) => sheet.options.chooseItem(index, item)
                }
            }

            Repeater {
                model: sheet.options.optionRows
                delegate: CheckRow {
                    required property var modelData
                    objectName: "option_" + modelData.name
                    width: content.width
                    visible: modelData.name !== "playChallenge"
                    label: modelData.label
                    symbol: modelData.symbol
                    onToggled: sheet.options.setOption(modelData.name, !modelData.on)
                }
            }
            CheckRow {
                objectName: "option_colourBlind"
                width: content.width
                label: sheet.options.colourBlindLabel
                symbol: sheet.options.colourBlind ? "square.fill" : "square"
                onToggled: sheet.options.setColourBlind(!sheet.options.colourBlind)
            }

            ChallengeBox {
                width: content.width
                options: sheet.options
                onPlay: sheet.openChallenge()
                onRules: sheet.openRules()
            }
        }
    }
}
