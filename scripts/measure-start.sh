#!/usr/bin/env bash
# First frame and resident memory of the installed app next to an empty Qt Quick window of the same
# size, both headless, measured in the same run and interleaved so that a busy machine weighs on both.
#
#   scripts/measure-start.sh [--runs N] [--app PATH] [--build DIR] [--history 18000|100000] [--steps]
#
# With --history the app starts over stores holding that many day records (scripts/make-history.sh),
# copied afresh for each run, on the day after the history ends.
#
# With --steps it also gives the median time from the start to each step of the app's own start
# (the core on its thread, QGuiApplication, the QML engine, the screens compiled, the core handed over, the screens
# made, the first frame).
#
# Without --app the build is installed (stripped) into a temporary prefix and that copy is timed, from
# a working folder outside the tree, with a fresh HOME and empty stores each run.
set -euo pipefail
cd "$(dirname "$0")/.."
runs=10 app="" build=build/release history="" steps=""
while (($#)); do
  case "$1" in
    --runs) runs="$2"; shift 2 ;;
    --app) app="$2"; shift 2 ;;
    --build) build="$2"; shift 2 ;;
    --history) history="$2"; shift 2 ;;
    --steps) steps=1; shift ;;
    *) echo "usage: $0 [--runs N] [--app PATH] [--build DIR] [--history 18000|100000] [--steps]" >&2; exit 2 ;;
  esac
done
bare="$PWD/$build/bench/bare_window/tessarine_bare_window"
[ -x "$bare" ] || cmake --build "$build" --target tessarine_bare_window >/dev/null
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
if [ -z "$app" ]; then
  cmake --install "$build" --prefix "$work/prefix" --strip >/dev/null
  app="$work/prefix/bin/tessarine"
fi
stores=()
if [ -n "$history" ]; then
  scripts/make-history.sh "$work/history" "$history"
  stores=(TESSARINE_DATA_DIR="$work/home/data" TESSARINE_TODAY=2033-06-01)
fi

# One run: prints "first-frame-ms resident-kB cpu-ms" from the program's own first-frame line and the
# user plus system time that bash counts for it.
run_once() {
  local home="$work/home" start out cpu TIMEFORMAT='%3U %3S'
  rm -rf "$home" && mkdir -m 700 -p "$home"
  [ -n "$history" ] && cp -r "$work/history" "$home/data"
  start=$(date +%s%3N)
  { time out=$(cd "$work" && env -u XDG_DATA_HOME -u XDG_CONFIG_HOME HOME="$home" QT_QPA_PLATFORM=offscreen \
    XDG_RUNTIME_DIR="$home" TESSARINE_FIRST_FRAME=1 TESSARINE_START_STEPS=1 "${stores[@]}" timeout 60 "$1" \
    2>/dev/null); } 2>"$work/time"
  awk -v start="$start" '/^start-step/ {print $2, $3 - start}' <<<"$out" >>"$work/steps"
  cpu=$(awk '{printf "%d", ($1 + $2) * 1000}' "$work/time")
  awk -v start="$start" -v cpu="$cpu" '/^first-frame-epoch-ms/ {ms = $2 - start} /^resident-kB/ {kb = $2}
    END {if (ms == "") exit 1; print ms, kb, cpu}' <<<"$out"
}

# Median of a column of numbers.
median() { sort -n | awk '{v[NR] = $1} END {print (NR % 2) ? v[(NR + 1) / 2] : (v[NR / 2] + v[NR / 2 + 1]) / 2}'; }

run_once "$bare" >/dev/null && run_once "$app" >/dev/null  # warm the file cache
: >"$work/steps"
: >"$work/bare" && : >"$work/app"
for _ in $(seq "$runs"); do
  run_once "$bare" >>"$work/bare"
  run_once "$app" >>"$work/app"
done
column() { cut -d' ' -f"$2" "$work/$1" | median; }
report() {
  printf '%-22s first frame %4s ms (best %s), CPU to exit %4s ms, resident %s MB\n' "$1" "$(column "$2" 1)" \
    "$(cut -d' ' -f1 "$work/$2" | sort -n | head -1)" "$(column "$2" 3)" \
    "$(column "$2" 2 | awk '{printf "%.1f", $1 / 1024}')"
}
echo "medians of $runs runs each"
report "bare Qt Quick window" bare
report "tessarine" app
# The ratio of the medians, the median of the ratios of runs made one after the other (a slow spell of
# the machine weighs on both halves of a pair), and the ratio of the best runs.
ratios=$(paste -d' ' "$work/app" "$work/bare" | awk '{printf "%.4f\n", $1 / $4}' | median)
awk -v a="$(column app 1)" -v b="$(column bare 1)" -v r="$ratios" \
  -v best="$(cut -d' ' -f1 "$work/app" | sort -n | head -1) $(cut -d' ' -f1 "$work/bare" | sort -n | head -1)" \
  'BEGIN {split(best, m, " "); printf "first frame, app / bare: %.2f (median of pairs %.2f, best runs %.2f)\n", a / b, r, m[1] / m[2]}'
if [ -n "$steps" ]; then
  printf 'steps of the app, median ms from the start:'
  for step in main application engine compiled core created; do
    printf ' %s %s' "$step" "$(awk -v s="$step" '$1 == s {print $2}' "$work/steps" | median)"
  done
  printf ' frame %s\n' "$(column app 1)"
fi
