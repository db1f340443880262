#!/bin/sh
# An installation works from its own folders: the programs are found through
# the links in bin/, find the string table, the manual and the engine beside themselves,
# and the desktop entry opens projects of the file type the package registers.
set -u
build="$1"
examples="$2"
. "$(dirname "$0")/harness.sh"
fail() { echo "FAIL: $1"; failures=$((failures + 1)); }

cmake --install "$build" --prefix "$work/usr" > /dev/null || fail "install"
for program in tamsic tamsic-cli; do
  [ -L "$work/usr/bin/$program" ] && [ -x "$work/usr/bin/$program" ] || fail "bin/$program links to the program"
done

sed 's/^NumIter="500"/NumIter="4"/; s/^NumYears="100"/NumYears="5"/' "$examples/Gorillas.tpj" > "$work/G.tpj"
"$work/usr/bin/tamsic-cli" run "$work/G.tpj" --seed 2 > "$work/out" 2> "$work/err" || { fail "installed run"; cat "$work/err"; }
grep -q '^Baseline;5;4;' "$work/out" || fail "the installed run's summary"
ls "$work"/usr/lib*/tamsic/examples/Koalas.tpj > /dev/null 2>&1 || fail "the examples beside the program"
ls "$work"/usr/lib*/tamsic/manual/contents.html "$work"/usr/lib*/tamsic/manual/images/*.png > /dev/null 2>&1 ||
  fail "the manual beside the program"

desktop="$work/usr/share/applications/tamsic.desktop"
mime="$work/usr/share/mime/packages/tamsic.xml"
grep -q '^Exec=tamsic %f$' "$desktop" || fail "the desktop entry opens a file"
type=$(sed -n 's/^MimeType=\(.*\);$/\1/p' "$desktop")
grep -q "mime-type type=\"$type\"" "$mime" && grep -q 'glob pattern="\*.tpj"' "$mime" || fail "the file type of .tpj"
[ -s "$work/usr/share/icons/hicolor/scalable/apps/tamsic.svg" ] || fail "the icon"

finish "install"
