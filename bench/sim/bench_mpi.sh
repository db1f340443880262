#!/bin/sh
# Times `tamsic-cli run` of the reference project R2 (bench/projects/R2.tpj:
# one population, K 5000, 100 years, 500 iterations) as one plain process
# and under mpirun with 1, 2 and 4 ranks, each with one thread, so that the
# ranks alone are the parallelism; checks that every run wrote the same
# files and prints the speed-up over the plain process. The best of RUNS
# runs counts, since a shared machine only ever slows a run down. More ranks
# than cores are oversubscribed and cannot be faster than the cores.
#   bench/sim/bench_mpi.sh [BUILD_DIR] [RUNS] [RANKS...]
# e.g. bench/sim/bench_mpi.sh build 3 1 2 4 (the defaults) in a build
# configured with -DTAMSIC_MPI=ON.
set -eu
here=$(cd "$(dirname "$0")/../.." && pwd)
build=$(cd "${1:-$here/build}" && pwd)
runs=${2:-3}
[ $# -gt 2 ] && shift 2 || set -- 1 2 4
cli="$build/bin/tamsic-cli"
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
export SOURCE_DATE_EPOCH=1700000000
[ "$(id -u)" -ne 0 ] || export OMPI_ALLOW_RUN_AS_ROOT=1 OMPI_ALLOW_RUN_AS_ROOT_CONFIRM=1

# seconds FOLDER COMMAND...: the best wall time of RUNS runs in a fresh copy of R2.
seconds() {
  folder="$work/$1"; shift
  best=""
  run=0
  while [ "$run" -lt "$runs" ]; do
    rm -rf "$folder" && mkdir "$folder" && cp "$here/bench/projects/R2.tpj" "$folder"
    start=$(date +%s.%N)
    "$@" "$folder/R2.tpj" --seed 1 --threads 1 > "$folder.out" 2> "$folder.err" || { cat "$folder.err" >&2; exit 1; }
    best=$(awk -v start="$start" -v now="$(date +%s.%N)" -v best="$best" \
      'BEGIN { took = now - start; print (best == "" || took < best) ? took : best }')
    run=$((run + 1))
  done
  echo "$best"
}

plain=$(seconds plain "$cli" run)
echo "cores: $(nproc); R2, 500 iterations, 1 thread per process, best of $runs"
echo "| processes | wall time | speed-up |"
echo "|---|---|---|"
printf '| 1, no mpirun | %.1f s | 1.00 |\n' "$plain"
for ranks in "$@"; do
  took=$(seconds "mpi$ranks" mpirun --oversubscribe -n "$ranks" "$cli" run)
  diff -r "$work/plain" "$work/mpi$ranks" > /dev/null || { echo "the files of $ranks ranks differ" >&2; exit 1; }
  printf '| %s ranks | %.1f s | %.2f |\n' "$ranks" "$took" "$(awk -v a="$plain" -v b="$took" 'BEGIN { print a / b }')"
done
