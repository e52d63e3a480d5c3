#!/usr/bin/env bash
# Runs a compiler with each path into the sources told from the build folder: clang writes its command line into the symbols.
#
#     relative_paths.sh SOURCES COMMAND...
set -euo pipefail
sources=$1
shift
exec "${@//"$sources"/$(realpath --relative-to . "$sources")}"
