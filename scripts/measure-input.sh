#!/usr/bin/env bash
# Key to frame on the main screen, with the tiles' motion on: the app types five words through its
# window as a keyboard would, headless, and prints the main thread's work per key and the time
# from each key to the frame that shows it; then a burst of keys 5 ms apart, none to be dropped.
#
#   scripts/measure-input.sh [--runs N]
set -euo pipefail
here="$(cd "$(dirname "$0")/.." && pwd)"
runs=3
[ "${1:-}" = "--runs" ] && runs="$2"
app="${TESSARINE_APP:-$(ls -t "$here"/build/*/app/tessarine 2>/dev/null | head -n 1)}"
[ -x "$app" ] || { echo "no app binary found; build first or set TESSARINE_APP" >&2; exit 1; }
for ((run = 1; run <= runs; run++)); do
  data="$(mktemp -d)"
  QT_QPA_PLATFORM=offscreen TESSARINE_DATA_DIR="$data" TESSARINE_TODAY=2023-06-01 TESSARINE_INPUT_TIMING=1 \
    timeout 60 "$app" 2>/dev/null
  rm -rf "$data"
done
