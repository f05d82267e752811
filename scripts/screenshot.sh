#!/usr/bin/env bash
# Takes a headless screenshot of the app's main screen.
#
#   scripts/screenshot.sh OUT.png [--today YYYY-MM-DD] [--data DIR] [--settings RECORD] [--script "STEPS"]
#
# --today     pins the day (default 2023-06-01)
# --data      the data directory to use; default a fresh temporary one, removed afterwards
# --settings  writes the options record (e.g. "ANNYYYNNY": game type A, then the eight flags) into a
#             fresh settings store before the start; needs the sqlite3 command
# --size      the window as WIDTHxHEIGHT (default 390x844)
# --script    steps replayed after the first frame: words are typed as key presses, and "enter",
#             "backspace", "clearrow", "green", "hint", "confirm", "today", "latest", "type:T",
#             "pick:N", "stats", "distribution", "list", "sort:N", "share", "sharestats",
#             "sharelist", "copy", "cell:N" are the buttons and sheets (see app/screenshot.h)
#             "challenge" opens the match screen and "m:accept", "m:type:TEXT", "m:submit", "m:choose:N",
#             ... drive it (app/match_script.h)
#             "pick:N", "colourblind" are the buttons, and "options", "help", "rules",
#             "back" open and close the sheets (see app/screenshot.h)
# The app binary is $TESSARINE_APP, else the newest build/*/app/tessarine.
set -euo pipefail
here="$(cd "$(dirname "$0")/.." && pwd)"
out="" today="2023-06-01" data="" settings="" script="" size=""
while (($#)); do
  case "$1" in
    --today) today="$2"; shift 2 ;;
    --data) data="$2"; shift 2 ;;
    --settings) settings="$2"; shift 2 ;;
    --script) script="$2"; shift 2 ;;
    --size) size="$2"; shift 2 ;;
    -*) echo "unknown option $1" >&2; exit 2 ;;
    *) out="$1"; shift ;;
  esac
done
[ -n "$out" ] || { echo "usage: $0 OUT.png [--today D] [--data DIR] [--settings RECORD] [--script STEPS]" >&2; exit 2; }

app="${TESSARINE_APP:-$(ls -t "$here"/build/*/app/tessarine 2>/dev/null | head -n 1)}"
[ -x "$app" ] || { echo "no app binary found; build first or set TESSARINE_APP" >&2; exit 1; }

cleanup=""
if [ -z "$data" ]; then
  data="$(mktemp -d)"
  cleanup="$data"
fi
trap '[ -z "$cleanup" ] || rm -rf "$cleanup"' EXIT

if [ -n "$settings" ]; then
  sqlite3 "$data/TessarineSettingsData.sqlite" \
    "CREATE TABLE IF NOT EXISTS entries (id INTEGER PRIMARY KEY AUTOINCREMENT, text TEXT);
     DELETE FROM entries; INSERT INTO entries (text) VALUES ('0000'); INSERT INTO entries (text) VALUES ('$settings');"
fi

case "$out" in /*) ;; *) out="$PWD/$out" ;; esac
# Shots show the settled board, not a tile half-way through turning over.
QT_QPA_PLATFORM=offscreen TESSARINE_REDUCED_MOTION="${TESSARINE_REDUCED_MOTION:-1}" TESSARINE_DATA_DIR="$data" TESSARINE_TODAY="$today" \
  TESSARINE_SCRIPT="$script" TESSARINE_WINDOW_SIZE="$size" TESSARINE_SCREENSHOT="$out" timeout 60 "$app"
