#!/usr/bin/env bash
# Builds the Debian package, unpacks it into a staging root and starts the installed app from there as
# a new user would: from another working folder, with a fresh HOME, headless. Needs no network and no
# root: the package's declared dependencies must already be installed here, as apt would ensure.
#
#   deb_test.sh BUILD_DIR
set -euo pipefail
build=$(cd "$1" && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
fail() {
  echo "FAIL: $*" >&2
  exit 1
}

(cd "$build" && cpack -G DEB -B "$work/out" >"$work/cpack.log" 2>&1) || { cat "$work/cpack.log"; fail "cpack"; }
deb=$(ls "$work"/out/tessarine_*.deb)
root="$work/root"
dpkg-deb -x "$deb" "$root"
echo "built $(basename "$deb"), $(stat -c %s "$deb") bytes"

# Every dependency group ("a | b (>= 1.0)") must be met by an installed package.
depends=$(dpkg-deb -f "$deb" Depends)
IFS=',' read -ra groups <<<"$depends"
for group in "${groups[@]}"; do
  met=0
  IFS='|' read -ra choices <<<"$group"
  for choice in "${choices[@]}"; do
    read -r name op version <<<"$(tr -d '()' <<<"$choice")"
    status=$(dpkg-query -W -f='${Status} ${Version}' "$name" 2>/dev/null) || continue
    [[ $status == "install ok installed "* ]] || continue
    [ -z "${op:-}" ] || dpkg --compare-versions "${status##* }" "$op" "$version" || continue
    met=1
  done
  ((met)) || fail "dependency not installed here: $group"
done

# What a desktop needs to list, launch and describe the app.
entry="$root/usr/share/applications/org.tessarine.Tessarine.desktop"
for file in "$entry" "$root/usr/share/icons/hicolor/scalable/apps/org.tessarine.Tessarine.svg" \
  "$root/usr/share/metainfo/org.tessarine.Tessarine.metainfo.xml" "$root/usr/bin/tessarine-cli"; do
  [ -s "$file" ] || fail "missing from the package: ${file#"$root"}"
done
desktop-file-validate "$entry" || fail "desktop entry"
appstreamcli validate --no-net "$root/usr/share/metainfo/org.tessarine.Tessarine.metainfo.xml" >/dev/null ||
  fail "AppStream metadata"
command=$(sed -n 's/^Exec=\([^ ]*\).*/\1/p' "$entry")
for binary in "$command" tessarine-cli; do
  file -L "$root/usr/bin/$binary" | grep -q ", stripped" || fail "$binary is not stripped"
done

# Start it the way the menu does, by the entry's command on PATH, far from the build tree.
home="$work/home" elsewhere="$work/elsewhere"
mkdir -m 700 -p "$home" "$elsewhere"
out=$(cd "$elsewhere" && env -u XDG_DATA_HOME -u XDG_CONFIG_HOME -u TESSARINE_DATA_DIR -u TESSARINE_TODAY \
  PATH="$root/usr/bin:$PATH" HOME="$home" XDG_RUNTIME_DIR="$home" QT_QPA_PLATFORM=offscreen \
  TESSARINE_FIRST_FRAME=1 QML_IMPORT_TRACE=1 timeout 60 "$command" 2>"$work/stderr") ||
  { tail -20 "$work/stderr"; fail "the installed app did not reach its first frame"; }
grep -q '^first-frame-epoch-ms [0-9]' <<<"$out" || fail "no first frame: $out"
! grep "uses the system's fonts" "$work/stderr" || fail "the game's font configuration was not used"
ls "$home"/.local/share/Tessarine/Tessarine/TessarineCoreDataModel.sqlite >/dev/null ||
  fail "no stores in the fresh account's data folder"

# shlibdeps cannot see QML modules: each one the screens loaded must come from a declared package.
grep -o 'loaded "/[^"]*/qmldir"' "$work/stderr" | cut -d'"' -f2 | sort -u | while read -r qmldir; do
  owner=$(dpkg -S "$qmldir" | cut -d: -f1)
  grep -Eq "(^|[ ,|])$owner([ ,|(]|$)" <<<"$depends" || fail "QML module $qmldir comes from $owner, not in Depends"
done

# The installed CLI reads the lists installed beside it, not the source tree's.
expected=$("$build/tools/tessarine-cli" answer C 100)
[ "$(cd "$elsewhere" && "$root/usr/bin/tessarine-cli" answer C 100)" = "$expected" ] || fail "installed CLI answer"
rm "$root/usr/share/tessarine/lists/5LetterAnswers.txt"
if (cd "$elsewhere" && "$root/usr/bin/tessarine-cli" answer C 100 >/dev/null 2>&1); then
  fail "the installed CLI did not read its installed lists"
fi
echo "package installs and starts: $(grep resident <<<"$out")"
