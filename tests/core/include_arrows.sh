#!/bin/sh
# The core's includes run one way, so that each part builds on the parts below
# it and the engine library needs only the small core library:
#   model <- st <- files: model includes only model, st only model and st,
#     files only model, st and files; the sensitivity tests' value check also
#     asks the engine's formula test, through the call interface
#     engine/Engine.h, which includes nothing of the core; the analysis of an
#     ST scheme's results (src/st/STAnalysis*) reads result files and asks the
#     engine, so it sits above files, engine, functions and results, and below
#     the windows;
#   the engine binding (src/engine) includes nothing of the application
#     (src/app), and the engine library nothing of the core but model, st and
#     files, which tamsic_project holds;
#   only a ui/ folder includes a header from a ui/ folder.
# Prints each include that runs the wrong way and fails when there is one.
set -u
cd "$1" || exit 2
found=0

# includes FOLDER...: every '#include "..."' line outside ui/ folders.
includes() {
  grep -rnE '^#include +"' --include=*.h --include=*.cpp "$@" | grep -v '/ui/[^:]*:'
}

# refuse WHY PATTERN FOLDER...: includes whose path matches PATTERN are wrong.
refuse() {
  why="$1"; pattern="$2"; shift 2
  wrong=$(includes "$@" | grep -E "#include +\"($pattern)")
  if [ -n "$wrong" ]; then
    echo "$why:"; echo "$wrong"; found=1
  fi
}

# only WHY ALLOWED FOLDER [HEADER] [EXCEPT]: includes of a core folder other
# than ALLOWED (and the one HEADER) are wrong, in files whose path does not
# start with EXCEPT.
only() {
  why="$1"; allowed="$2"; folder="$3"; header="${4:-}"; except="${5:-}"
  wrong=$(includes "$folder" | grep -vE "#include +\"($allowed)/" | grep -vF "#include \"$header\"" |
    { [ -n "$except" ] && grep -v "^$except" || cat; })
  if [ -n "$wrong" ]; then
    echo "$why:"; echo "$wrong"; found=1
  fi
}

only "model includes only model" 'model' "src/model"
only "st includes only model, st and the engine's call interface" 'model|st' "src/st" "engine/Engine.h" \
  "src/st/STAnalysis"
only "the engine's call interface includes nothing of the core" 'none' "src/engine/Engine.h"
refuse "the ST analysis includes nothing of the application, the pages or the notes" '(app|pages|notes)/' \
  src/st/STAnalysis*
only "files includes only model, st and files" 'model|st|files' "src/files"
refuse "the engine binding includes nothing of the application" 'app/' "src/engine"
refuse "the engine library includes of the core only model, st and files" '(app|engine|functions|pages|results)/' "libtamsic"
refuse "only ui/ folders include ui/ headers" '([^"]*/)?ui/' "src" "cli" "libtamsic"

exit "$found"
