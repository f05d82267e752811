#!/usr/bin/env bash
# The first screen of every game type on one sheet, to look at all 29 boards and keypads at once.
#
#   scripts/contact-sheet.sh OUT.png [--script "STEPS"] [--dark]
#
# Each type starts from fresh stores holding only its options record (the Spanish word types with
# Spanish words); --script plays the same steps on each, --dark forces the dark appearance.
set -euo pipefail
here="$(cd "$(dirname "$0")/.." && pwd)"
out="" script="" appearance="light"
while (($#)); do
  case "$1" in
    --script) script="$2"; shift 2 ;;
    --dark) appearance="dark"; shift ;;
    -*) echo "unknown option $1" >&2; exit 2 ;;
    *) out="$1"; shift ;;
  esac
done
[ -n "$out" ] || { echo "usage: $0 OUT.png [--script STEPS] [--dark]" >&2; exit 2; }
case "$out" in /*) ;; *) out="$PWD/$out" ;; esac

shots="$(mktemp -d)"
trap 'rm -rf "$shots"' EXIT
for type in A B C D E F V W X Y Z Ñ 2 3 G H I J K L M N O S T U P Q R; do
  case "$type" in V|W|X|Y|Z|Ñ) words=N ;; *) words=Y ;; esac
  TESSARINE_APPEARANCE="$appearance" "$here/scripts/screenshot.sh" "$shots/$type.png" \
    --settings "${type}NNYY${words}NYY" --script "$script" 2>/dev/null >/dev/null
done
cd "$shots"
"$here/scripts/montage.py" "$out" 8 --scale 0.5 A.png B.png C.png D.png E.png F.png V.png W.png X.png Y.png \
  Z.png Ñ.png 2.png 3.png G.png H.png I.png J.png K.png L.png M.png N.png O.png S.png T.png U.png P.png Q.png R.png
echo "Saved $out"
