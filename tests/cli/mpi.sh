#!/bin/sh
# tamsic-cli run under mpirun: 1, 2 and 4 processes on this machine write
# every file byte for byte as one process does with the same seed (the
# seed drawn by rank 0 when none is given), rank 0 alone prints; a fault in
# an iteration of another rank ends the run with one process's message and
# no partial files, and --resume goes on from there.
set -u
cli="$1"
examples="$2"
mpirun="$3"
. "$(dirname "$0")/harness.sh"
fail() { echo "FAIL: $1"; failures=$((failures + 1)); }
# A fixed date in the output reports, so that whole files compare.
export SOURCE_DATE_EPOCH=1700000000 OMPI_ALLOW_RUN_AS_ROOT=1 OMPI_ALLOW_RUN_AS_ROOT_CONFIRM=1
temp="$(dirname "$cli")/Temp"
before=$(ls "$temp" 2>/dev/null | wc -l)

# Koalas: three populations, three scenarios, the extra files of options A,
# N and Y; Captive red pandas: the genetic files. Seven iterations, no
# multiple of 2 or 4, so that scenarios begin on different ranks.
few='s/^NumIter="500"/NumIter="7"/; s/^NumYears="100"/NumYears="8"/; s/^NumYears="50"/NumYears="8"/'
extra='s/^SpecialOptions5="0"/SpecialOptions5="1"/; s/^SpecialOptions9="0"/SpecialOptions9="1"/;
  s/^SpecialOptions6="0"/SpecialOptions6="1"/; s/^SpecialOptions6txt=Empty/SpecialOptions6txt="3"/'
sed "$few; $extra" "$examples/Koalas.tpj" > "$work/K.tpj"
sed "$few" "$examples/Captive.tpj" > "$work/C.tpj"

# run FOLDER PROJECT RANKS ARGUMENTS...: the project alone in a fresh folder,
# run by one plain process (RANKS 0) or under mpirun; stdout and stderr beside the folder.
run() {
  folder="$work/$1"; project="$2"; ranks="$3"; shift 3
  mkdir "$folder"
  cp "$work/$project" "$examples"/Captive-*.txt "$folder"
  if [ "$ranks" -eq 0 ]; then
    "$cli" run "$folder/$project" "$@" > "$folder.out" 2> "$folder.err"
  else
    "$mpirun" --oversubscribe -n "$ranks" "$cli" run "$folder/$project" "$@" > "$folder.out" 2> "$folder.err"
  fi
}
same() {
  diff -r "$work/$1" "$work/$2" > /dev/null && cmp -s "$work/$1.out" "$work/$2.out" ||
    fail "$2: files or summary differ from $1"
}

run K K.tpj 0 --seed 7 || fail "plain run of K"
run C C.tpj 0 --seed 7 --scenario Unmanaged --scenario "Mean kinship" || fail "plain run of C"
ls "$work/K" | grep -q '\.cen$' && ls "$work/C" | grep -q '\.frq$' || fail "the extra and genetic files written"
for ranks in 1 2; do
  run "K$ranks" K.tpj "$ranks" --seed 7 || fail "K with $ranks ranks"
  same K "K$ranks"
done
run C4 C.tpj 4 --seed 7 --scenario Unmanaged --scenario "Mean kinship" --threads 1 || fail "C with 4 ranks"
same C C4

# With no seed given, rank 0 draws one for all.
run K4 K.tpj 4 || fail "K with 4 ranks"
seed=$(sed -n 's/^Message: .* with seed \([0-9]*\).*/\1/p' "$work/K4.out")
run Kseed K.tpj 0 --seed "$seed" || fail "plain run of K with the seed drawn"
same Kseed K4

# Managed fails in iterations 3 and up, first in iteration 3, which rank 1
# runs (the 10th item of the run); rank 0's own iteration 6 fails too, later
# in its run. Baseline, finished before, keeps its files.
awk '/^RepRates1=/ { n++; if (n == 2) sub(/"Northern ridge";"65"/, "\"Northern ridge\";\"=65/(Y-R+2)\"") } { print }' \
  "$work/K.tpj" > "$work/F.tpj"
run F F.tpj 0 --seed 7 --scenario Baseline --scenario Managed
[ $? -eq 1 ] || fail "a plain run with a fault fails"
message=$(grep '^Error: ' "$work/F.err")
run F4 F.tpj 4 --seed 7 --scenario Baseline --scenario Managed
[ $? -ne 0 ] || fail "a run of 4 ranks with a fault fails"
[ "$(grep -c '^Error: ' "$work/F4.err")" -eq 1 ] && grep -qF "$message (iteration 3, rank 1 of 4)" "$work/F4.err" ||
  { fail "the fault of the lowest iteration, printed once by rank 0"; cat "$work/F4.err"; }
diff -r "$work/F" "$work/F4" > /dev/null || fail "the files of a failed run"
ls "$work/F4" | grep -q 'Baseline\.dat' && ! ls "$work/F4" | grep -q 'Managed\|\.part' || fail "no partial files"

# Mended, the run goes on with Managed under MPI and ends as one plain run of both.
cp "$work/K.tpj" "$work/F4/F.tpj"
"$mpirun" --oversubscribe -n 4 "$cli" run "$work/F4/F.tpj" --scenario Baseline --scenario Managed --resume \
  > /dev/null 2> "$work/resume.err" || fail "resume with 4 ranks"
cp "$work/K.tpj" "$work/F.tpj"
run R F.tpj 0 --seed 7 --scenario Baseline --scenario Managed
diff -r "$work/R" "$work/F4" > /dev/null || fail "a resumed run ends as one run"

# Ctrl+C on mpirun cancels the run: no half-written extra file stays. The
# loop waits for the first progress bar without sleeping.
mkdir "$work/L"
sed 's/^NumIter="7"/NumIter="100000"/' "$work/K.tpj" > "$work/L/L.tpj"
"$mpirun" --oversubscribe -n 2 "$cli" run "$work/L/L.tpj" --scenario Managed > /dev/null 2> "$work/L.err" &
pid=$!
tries=0
until grep -q 'iterations' "$work/L.err" 2>/dev/null || [ "$tries" -ge 200000 ]; do tries=$((tries + 1)); done
kill -INT "$pid"
wait "$pid"
code=$?
[ "$code" -ne 0 ] && grep -q 'cancelled' "$work/L.err" || fail "Ctrl+C cancels the run (exit $code)"
! ls "$work/L" | grep -q 'Managed\|\.part' || fail "a cancelled run leaves no extra files"

[ "$(ls "$temp" 2>/dev/null | wc -l)" -eq "$before" ] || fail "work files left in $temp"

finish "cli mpi"
