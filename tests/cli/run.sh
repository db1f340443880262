#!/bin/sh
# tamsic-cli run: the result files and summary of a run, and a clear message
# with exit code 1 for a scenario that is not there or an input that is wrong.
set -u
cli="$1"
examples="$2"
. "$(dirname "$0")/harness.sh"
fail() { echo "FAIL: $1"; cat "$work/err"; failures=$((failures + 1)); }
temp="$(dirname "$cli")/Temp"
before=$(ls "$temp" 2>/dev/null | wc -l)

sed 's/^NumIter="500"/NumIter="6"/; s/^NumYears="100"/NumYears="10"/' "$examples/Koalas.tpj" > "$work/K.tpj"
"$cli" run "$work/K.tpj" --scenario Managed --seed 3 --threads 2 > "$work/out" 2> "$work/err" || fail "run"
grep -q '^Managed;10;6;' "$work/out" || fail "summary line printed"
for ext in dat run out; do
  [ -s "$work/Koalas in three fragments_Managed.$ext" ] || fail "the .$ext file"
done
grep -q '^Managed;10;6;' "$work/Koalas in three fragments.sum" || fail "the project summary"
cp "$work/Koalas in three fragments_Managed.dat" "$work/first.dat"
"$cli" run "$work/K.tpj" --scenario Managed --seed 3 --threads 1 > /dev/null 2> "$work/err" || fail "second run"
cmp -s "$work/first.dat" "$work/Koalas in three fragments_Managed.dat" || fail "same seed, same yearly data"

"$cli" run "$work/K.tpj" --scenario Nope > /dev/null 2> "$work/err"
[ $? -eq 1 ] && grep -q 'There is no scenario "Nope"' "$work/err" || fail "unknown scenario"
sed 's/"Northern ridge";"65";"10"/"Northern ridge";"=65*(N";"10"/' "$work/K.tpj" > "$work/bad.tpj"
"$cli" run "$work/bad.tpj" --scenario Baseline > /dev/null 2> "$work/err"
[ $? -eq 1 ] && grep -q 'Error: scenario "Baseline": RepRates1, Northern ridge' "$work/err" || fail "function that does not compile"

# A run that failed part way goes on with --resume: the scenario finished
# keeps its files, the one that failed runs, and the record of the run goes.
awk '/^RepRates1=/ { n++; if (n == 2) sub(/"Northern ridge";"65"/, "\"Northern ridge\";\"=65*(N\"") } { print }' \
  "$work/K.tpj" > "$work/half.tpj"
"$cli" run "$work/half.tpj" --scenario Baseline --scenario Managed > /dev/null 2> "$work/err"
[ $? -eq 1 ] && [ -f "$work/Koalas in three fragments.resume" ] || fail "a failed run keeps its record"
"$cli" run "$work/K.tpj" --scenario Baseline --scenario Managed --resume > "$work/out" 2> "$work/err" || fail "resume"
grep -q '^Managed;10;6;' "$work/out" && ! grep -q '^Baseline;' "$work/out" || fail "resume runs only what was left"
grep -q "finished before kept)$" "$work/out" || fail "the summary heading of a resumed run"
[ ! -f "$work/Koalas in three fragments.resume" ] || fail "a finished run leaves no record"
"$cli" run "$work/K.tpj" --resume > /dev/null 2> "$work/err"
[ $? -eq 1 ] && grep -q 'no unfinished run' "$work/err" || fail "nothing to resume"

# SIGTERM stops a run as Ctrl+C does: the engine is asked to stop, and the
# reply says the run was cancelled. The loop waits for the first progress
# bar without sleeping; the run goes without its estimate, so that the
# signal finds the run itself under way.
sed 's/^NumIter="6"/NumIter="100000"/' "$work/K.tpj" > "$work/long.tpj"
"$cli" run "$work/long.tpj" --scenario Managed --no-estimate > /dev/null 2> "$work/long.err" &
pid=$!
tries=0
until grep -q 'iterations' "$work/long.err" 2>/dev/null || [ "$tries" -ge 20000 ]; do tries=$((tries + 1)); done
kill -TERM "$pid"
wait "$pid"
code=$?
[ "$code" -eq 1 ] && grep -q 'cancelled' "$work/long.err" || fail "SIGTERM stops the run (exit $code)"

# Failed and cancelled runs too leave no work copy of the project behind.
[ "$(ls "$temp" 2>/dev/null | wc -l)" -eq "$before" ] || fail "work files left in $temp"

finish "cli run"
