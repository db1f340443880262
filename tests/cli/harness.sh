# Sourced by the command-line tests: a work folder that goes on exit, a count
# of the failures, and `finish NAME`, which reports and exits with that count.
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
failures=0
finish() {
  [ "$failures" -eq 0 ] && echo "$1: all passed"
  exit "$failures"
}
