pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import Tessarine

// The main screen, with every other screen as a sheet over it. A coming screen is one QML file
// opened with openSheet(); it closes itself with closeSheet().
StackView {
    id: sheets
    required property SessionHost host

    function openSheet(sheet: Component, properties: var): Item {
        return sheets.push(sheet, properties)
    }
    function closeSheet() {
        if (sheets.depth > 1) sheets.pop()
    }

    // The back of whatever sheet is on top, as its own back button does.
    function goBack() {
        const top = sheets.currentItem as SeventhView
        if (top) top.close()
        else closeSheet()
    }

    function openOptions() {
        openSheet(optionsSheet, { options: sheets.host.options })
    }
    function openHelp() {
        openSheet(helpSheet, { help: sheets.host.help })
    }
    function openRules() {
        openSheet(rulesSheet, { help: sheets.host.help })
    }

    Component {
        id: optionsSheet
        SeventhView {
            onBack: sheets.closeSheet()
            onOpenRules: sheets.openRules()
        }
    }
    Component {
        id: helpSheet
        ThirdView { onBack: sheets.closeSheet() }
    }
    Component {
        id: rulesSheet
        FourthView { onBack: sheets.closeSheet() }
    }

    initialItem: ContentView {
        host: sheets.host
        focus: true
        onOpenOptions: sheets.openOptions()
        onOpenHelp: sheets.openHelp()
    }
}
