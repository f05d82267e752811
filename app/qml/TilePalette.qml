pragma Singleton
import QtQuick

// The tile colours as drawn, by the names the core gives them, and the ink that reads on each.
// Every pair of fill and ink reaches a contrast of 4.5:1: light fills take black letters, and
// gray, blue and purple are shades dark enough for white ones.
QtObject {
    readonly property var fills: ({
        white: "#ffffff", gray: "#636366", green: "#34c759", blue: "#0062cc", yellow: "#ffcc00",
        orange: "#ff9500", red: "#ff3b30", cyan: "#32ade6", purple: "#8944ab", black: "#000000",
        pink: "#ff2d55",
        currentMode: "#000000"
    })
    readonly property var darkInk: ["white", "yellow", "cyan", "green", "orange", "red", "pink"]

    function fill(name) { return fills[name] !== undefined ? fills[name] : fills.white }
    function ink(name) { return darkInk.indexOf(name) >= 0 ? "#000000" : "#ffffff" }
    // Text and symbols that must stand out on the light background.
    readonly property color currentMode: "#000000"
}
