import Tessarine

// A sheet's button drawn as the core describes it: its symbol, colour, opacity and whether a touch
// does anything.
IconButton {
    id: button
    required property var look
    symbol: look.symbol
    tint: TilePalette.fill(look.color)
    enabled: look.enabled
    opacity: look.opacity
}
