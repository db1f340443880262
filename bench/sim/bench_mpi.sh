#!/bin/bash
# Times `tamsic-cli run` of the reference project R2 (bench/projects/R2.tpj:
# one population, K 5000, 100 years, 500 iterations) as one plain process
# and under mpirun with 1, 2 and 4 ranks, each with one thread, so that the
# ranks alone are the parallelism; checks that every run wrote the same
# files and prints the wall time, the speed-up over the plain process and
# the processor time of all processes together (what the sharing costs).
# The best of RUNS runs counts, since a shared machine only ever slows a
# run down. More ranks than cores are oversubscribed and cannot be faster
# than the cores.
#   bench/sim/bench_mpi.sh [BUILD_DIR] [RUNS] [RANKS...]
# e.g. bench/sim/bench_mpi.sh build 3 1 2 4 (the defaults) in a build
# configured with -DTAMSIC_MPI=ON.
set -eu
here=$(cd "$(dirname "$0")/../.." && pwd)
build=$(cd "${1:-$here/build}" && pwd)
runs=${2:-3}
if [ $# -gt 2 ]; then shift 2; else set -- 1 2 4; fi
cli="$build/bin/tamsic-cli"
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
export SOURCE_DATE_EPOCH=1700000000
[ "$(id -u)" -ne 0 ] || export OMPI_ALLOW_RUN_AS_ROOT=1 OMPI_ALLOW_RUN_AS_ROOT_CONFIRM=1
TIMEFORMAT='%R %U %S'

# measure FOLDER COMMAND...: "WALL CPU" of the fastest of RUNS runs, each in a fresh copy of R2.
measure() {
  local folder="$work/$1" best="" run
  shift
  for ((run = 0; run < runs; ++run)); do
    rm -rf "$folder" && mkdir "$folder" && cp "$here/bench/projects/R2.tpj" "$folder"
    { time "$@" "$folder/R2.tpj" --seed 1 --threads 1 > "$folder.out" 2> "$folder.err"; } 2> "$folder.time" ||
      { cat "$folder.err" >&2; exit 1; }
    best=$(awk -v best="$best" '{ if (best == "" || $1 < best + 0) print $1, $2 + $3; else print best }' \
      "$folder.time")
  done
  echo "$best"
}

read -r plain plainCpu <<< "$(measure plain "$cli" run)"
echo "cores: $(nproc); R2, 500 iterations, 1 thread per process, best of $runs"
echo "| processes | wall time | speed-up | processor time |"
echo "|---|---|---|---|"
printf '| 1, no mpirun | %.1f s | 1.00 | %.1f s |\n' "$plain" "$plainCpu"
for ranks in "$@"; do
  read -r wall cpu <<< "$(measure "mpi$ranks" mpirun --oversubscribe -n "$ranks" "$cli" run)"
  diff -r "$work/plain" "$work/mpi$ranks" > /dev/null || { echo "the files of $ranks ranks differ" >&2; exit 1; }
  speedup=$(awk -v a="$plain" -v b="$wall" 'BEGIN { print a / b }')
  printf '| %s ranks | %.1f s | %.2f | %.1f s |\n' "$ranks" "$wall" "$speedup" "$cpu"
done
