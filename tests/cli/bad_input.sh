#!/bin/sh
# Bad input to tamsic-cli ends with the program's message on stderr and a
# non-zero exit code, never with a crash.
set -u
cli="$1"
examples="$2"
. "$(dirname "$0")/harness.sh"

# expect_failure DESCRIPTION MESSAGE COMMAND...: exit 1 with MESSAGE on stderr
# (EXPECTED_CODE=2 for a usage error).
expect_failure() {
  description="$1"; message="$2"; shift 2
  "$@" >"$work/out" 2>"$work/err"
  code=$?
  if [ "$code" -ne "${EXPECTED_CODE:-1}" ] || ! grep -qF -- "$message" "$work/err"; then
    echo "FAIL: $description (exit $code)"; cat "$work/err"; failures=$((failures + 1))
  fi
}

expect_failure "missing file" "The project does not exist" "$cli" info "$work/none.tpj"
printf '[General Project Information]\r\n' > "$work/plain.tpj"
expect_failure "no signature" "is not a Tamsic project file" "$cli" info "$work/plain.tpj"
sed '/^\[2 Mortality\]/,$d' "$examples/Koalas.tpj" > "$work/cut.tpj"
expect_failure "missing section" "Unable to find section 2 Mortality" "$cli" info "$work/cut.tpj"
sed 's/^MortMales={Empty;/MortMales={/' "$examples/Koalas.tpj" > "$work/ragged.tpj"
expect_failure "ragged grid" "There is a problem with the data" "$cli" resave "$work/ragged.tpj" "$work/out.tpj"
[ ! -e "$work/out.tpj" ] || { echo "FAIL: a damaged project was saved"; failures=$((failures + 1)); }
expect_failure "unwritable target" "Cannot write" "$cli" resave "$examples/Koalas.tpj" "$work/no/such/folder.tpj"
: > "$work/empty.tpj"
expect_failure "run of an empty file" "is not a Tamsic project file" "$cli" run "$work/empty.tpj"
expect_failure "run of a file that is no project" "is not a Tamsic project file" "$cli" run "$work/plain.tpj"
sed '/^\[1 Scenario Notes\]/,$d; s/^NumScene=.*/NumScene="0"/' "$examples/Gorillas.tpj" > "$work/none.tpj"
expect_failure "run of a project without scenarios" "holds no scenario to run" "$cli" run "$work/none.tpj"
sed 's/^NumScene=.*/NumScene="many"/' "$examples/Koalas.tpj" > "$work/count.tpj"
expect_failure "scenario count not a number" "NumScene" "$cli" resave "$work/count.tpj" "$work/count-out.tpj"
[ ! -e "$work/count-out.tpj" ] || { echo "FAIL: a project whose scenarios were not read was saved"; failures=$((failures + 1)); }
EXPECTED_CODE=2 expect_failure "unknown option" "--bogus" "$cli" run "$examples/Koalas.tpj" --bogus
EXPECTED_CODE=2 expect_failure "no command" "A subcommand is required" "$cli"

"$cli" info "$examples/Koalas.tpj" > "$work/info" || { echo "FAIL: info on the example"; failures=$((failures + 1)); }
grep -q "ST items: 3" "$work/info" || { echo "FAIL: info lists the ST items"; failures=$((failures + 1)); }
"$cli" resave "$examples/Koalas.tpj" "$work/a.tpj" && "$cli" resave "$work/a.tpj" "$work/b.tpj" &&
  sed 's/^ProjectPath=.*//;s/^ReportLocation=.*//' "$work/a.tpj" > "$work/a" &&
  sed 's/^ProjectPath=.*//;s/^ReportLocation=.*//' "$work/b.tpj" > "$work/b" &&
  cmp -s "$work/a" "$work/b" || { echo "FAIL: resave is not stable"; failures=$((failures + 1)); }

finish "cli bad input"
