#!/bin/sh
# The estimate in tamsic-cli: `estimate` prints it and writes nothing; `run`
# prints it first on stderr, or not with --no-estimate; a run whose memory
# cannot be had (here under an address-space limit) is refused with the
# scenario, its figure and what is available, by the estimate and, without
# it, by the engine's own check, and leaves no result file.
set -u
cli="$1"
examples="$2"
. "$(dirname "$0")/harness.sh"
fail() { echo "FAIL: $1"; cat "$work/out" "$work/err"; failures=$((failures + 1)); }

sed 's/^NumIter="500"/NumIter="6"/; s/^NumYears="100"/NumYears="10"/' "$examples/Koalas.tpj" > "$work/K.tpj"
"$cli" estimate "$work/K.tpj" --scenario Managed --threads 2 > "$work/out" 2> "$work/err" || fail "estimate"
grep -q '^Estimate: .* at the peak, from a pilot of [0-9]* iterations with 2 threads; .* available$' "$work/out" &&
  grep -q '^  Managed: .* at the peak, 6 iterations, [0-9]* in the pilot$' "$work/out" || fail "the estimate printed"
[ "$(ls "$work")" = "$(printf 'K.tpj\nerr\nout')" ] || fail "the estimate wrote files: $(ls "$work")"

"$cli" run "$work/K.tpj" --scenario Managed > "$work/out" 2> "$work/err" || fail "run"
grep -q '^Estimate: ' "$work/err" && grep -q '^Managed;10;6;' "$work/out" || fail "the estimate before the run"
"$cli" run "$work/K.tpj" --scenario Managed --no-estimate > "$work/out" 2> "$work/err" || fail "run without it"
! grep -q 'Estimate' "$work/err" && grep -q '^Managed;10;6;' "$work/out" || fail "--no-estimate"

mkdir "$work/big"
# Three populations of 30000 growing to K = 60000, on 64 threads: gigabytes.
sed 's/^NumIter="500"/NumIter="64"/
     s/"Carrying Capacity (K)";"300";"150";"80"/"Carrying Capacity (K)";"60000";"60000";"60000"/
     s/"Initial population size": "Northern ridge";"250": "River flats";"120": "Eastern remnant";"40"/'\
'"Initial population size": "Northern ridge";"30000": "River flats";"30000": "Eastern remnant";"30000"/' \
  "$examples/Koalas.tpj" > "$work/big/B.tpj"
refused='needs about .* GB at its peak, more than the .* this machine has available; lower its'
(ulimit -v 1500000 && exec "$cli" run "$work/big/B.tpj" --scenario Baseline --threads 64) > "$work/out" 2> "$work/err"
[ $? -eq 1 ] && grep -q "^Error: scenario \"Baseline\" $refused" "$work/err" || fail "refused by the estimate"
(ulimit -v 1500000 && exec "$cli" run "$work/big/B.tpj" --scenario Baseline --threads 64 --no-estimate) \
  > "$work/out" 2> "$work/err"
[ $? -eq 1 ] && grep -q "^Error: scenario \"Baseline\": $refused" "$work/err" || fail "refused by the run"
[ -z "$(ls "$work/big" | grep -v '\.tpj$\|\.resume$')" ] || fail "a refused run wrote results: $(ls "$work/big")"

finish "cli estimate"
