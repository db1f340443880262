#!/bin/sh
# tamsic-cli st: the scheme's scenarios generated into a copy or back into the
# project (its earlier version kept as the backup), generated again with the
# same result, run like any other scenario; a scheme with problems lists them,
# exits with 1 and writes nothing.
set -u
cli="$1"
examples="$2"
. "$(dirname "$0")/harness.sh"
fail() { echo "FAIL: $1"; cat "$work/err"; failures=$((failures + 1)); }

sed 's/^NumIter="500"/NumIter="4"/; s/^NumYears="100"/NumYears="5"/' "$examples/Koalas.tpj" > "$work/K.tpj"
cp "$work/K.tpj" "$work/original.tpj"

"$cli" st "$work/K.tpj" --out "$work/G.tpj" > "$work/out" 2> "$work/err" || fail "generate into a copy"
grep -q '6\. ST\.Bushfires twice as often' "$work/out" || fail "the generated scenarios listed"
cmp -s "$work/K.tpj" "$work/original.tpj" || fail "the project itself untouched by --out"
"$cli" info "$work/G.tpj" > "$work/info" 2> "$work/err" || fail "the copy reads back"
grep -q '^Scenarios: 6' "$work/info" || fail "three ST scenarios after the three of the project"
grep -q '"Northern ridge";"=(65)\*0.9";"10"' "$work/G.tpj" || fail "the baseline's value put into the function"

"$cli" st "$work/K.tpj" > /dev/null 2> "$work/err" || fail "generate in place"
cmp -s "$work/K.tpj.bak" "$work/original.tpj" || fail "the project as it was kept as K.tpj.bak"
cp "$work/K.tpj" "$work/once.tpj"
"$cli" st "$work/K.tpj" > /dev/null 2> "$work/err" || fail "generate again"
cmp -s "$work/K.tpj" "$work/once.tpj" || fail "generating again replaces the ST scenarios"

"$cli" run "$work/K.tpj" --scenario "ST.Breeding +10%" --seed 2 > "$work/out" 2> "$work/err" || fail "run"
grep -q '^ST.Breeding +10%;5;4;' "$work/out" || fail "the ST scenario's summary"

sed -e 's/^ST.ItemVal_2_1="8"/ST.ItemVal_2_1="108"/' \
  -e 's/^ST.ItemVar_0_2="PercentBreed_Pop3"/ST.ItemVar_0_2="PercentBreed_Pop4"/' "$work/original.tpj" > "$work/bad.tpj"
cp "$work/bad.tpj" "$work/bad-before.tpj"
"$cli" st "$work/bad.tpj" > /dev/null 2> "$work/err"
code=$?
[ "$code" -eq 1 ] || fail "a scheme with problems exits with 1 (exit $code)"
grep -qF 'item 0 (Breeding -10%): Not a variable of the baseline scenario: PercentBreed_Pop4' "$work/err" ||
  fail "a name that is not a variable"
grep -qF 'item 2 (Bushfires twice as often): CatastrophesFreq_Pop2_Cat1: Enter a number between 0 and 100.' \
  "$work/err" || fail "a value the check refuses"
cmp -s "$work/bad.tpj" "$work/bad-before.tpj" && [ ! -e "$work/bad.tpj.bak" ] || fail "nothing written"

"$cli" st "$work/none.tpj" > /dev/null 2> "$work/err"
[ $? -eq 1 ] && grep -q 'does not exist' "$work/err" || fail "a missing project"

finish "cli st"
