pragma Singleton
import QtQuick
import Tessarine

// The tile colours as drawn, by the names the core gives them, and the ink that reads on each,
// and the screen's own colours in the light or dark appearance of the system.
// Every pair of fill and ink reaches a contrast of 4.5:1: light fills take black letters, and
// gray, blue and purple are shades dark enough for white ones.
QtObject {
    readonly property bool dark: Appearance.dark
    readonly property var fills: ({
        white: "#ffffff", gray: "#636366", green: "#34c759", blue: "#0062cc", yellow: "#ffcc00",
        orange: "#ff9500", red: "#ff3b30", cyan: "#32ade6", purple: "#8944ab", black: "#000000",
        pink: "#ff2d55"
    })
    readonly property var darkInk: ["white", "yellow", "cyan", "green", "orange", "red", "pink"]

    // An empty tile takes the screen's own colour in the dark, so it does not glare.
    function fill(name: string): color {
        if (name === "currentMode") return currentMode
        if (name === "white" && dark) return "#2c2c2e"
        return fills[name] !== undefined ? fills[name] : fill("white")
    }
    function ink(name: string): color {
        if (name === "white" && dark) return "#ffffff"
        return darkInk.indexOf(name) >= 0 ? "#000000" : "#ffffff"
    }
    // Text and symbols that must stand out on any background.
    readonly property color currentMode: dark ? "#40c8e0" : "#000000"
    readonly property color background: dark ? "#000000" : "#ffffff"
    readonly property color text: dark ? "#ffffff" : "#000000"
    readonly property color secondaryText: dark ? "#aeaeb2" : "#3c3c43"
    readonly property color tint: dark ? "#0a84ff" : "#007aff"
    readonly property color groupBackground: dark ? "#1c1c1e" : "#f2f2f7"
}
