#!/usr/bin/env bash
# Runs cppcheck over src/: warnings, performance, portability and style. Fails on any finding.
#   cppcheck.sh FOLDER      where it keeps what it found out, so that only changed files are read again
# A finding that is none is suppressed where it stands, with the reason after a ";". The two kinds that are
# switched off altogether:
#   useStlAlgorithm  a loop of two lines is often the plainer text
#   shadowFunction   a local variable may be called like the getter that nothing else in the function needs;
#                    variables that hide variables are an error of the compiler's (-Wshadow)
# And one in one file:
#   unusedStructMember  src/base/Text.cpp: it does not see that the members of the table are read
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."
# What the build defines for single files; cppcheck cannot take it out of compile_commands.json.
definitions=(-D 'KALVORA_VERSION=L""' -D 'KALVORA_SITE_URL=L""' -D 'KALVORA_SKINS_URL=L""')

# check NAME OPTION...: a pass with a folder of its own for what it found out.
check() {
  local folder=$1
  shift
  mkdir -p "$folder"
  cppcheck -j 2 --quiet --error-exitcode=1 --cppcheck-build-dir="$folder" --std=c++20 \
    --library=windows --enable=warning,performance,portability,style --inline-suppr \
    --suppress=useStlAlgorithm --suppress=shadowFunction \
    --suppress=unusedStructMember:src/base/Text.cpp --template='{file}:{line}: {message} [{id}]' \
    -I src "${definitions[@]}" "$@" src
}

# Once as Windows builds it and once as the native tests do: with definitions given, no others are tried.
check "$1/windows" --platform=win64
check "$1/native" --platform=unix64 -D __unix__
