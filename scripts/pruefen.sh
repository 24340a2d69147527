#!/usr/bin/env bash
# Static checks of src, apps and simulator: clang-tidy with the list of .clang-tidy, where every finding is an error,
# and cppcheck. With arguments, of these files alone.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/pakete.sh
pakete_sicherstellen bauen pruefen statisch
cmake --preset dev >/dev/null
if [ $# -gt 0 ]; then
  dateien=("$@")
else
  mapfile -t dateien < <(git ls-files 'src/*.cpp' 'apps/*.cpp' 'simulator/*.cpp')
fi
rot=0
printf '%s\n' "${dateien[@]}" |
  xargs -P "$(nproc)" -n 4 clang-tidy -p build/dev --quiet --extra-arg=-Wno-unknown-warning-option 2>/dev/null || rot=1
# Debian's cppcheck does not read all of C++20 (syntaxError), counts values that are moved as copied (passedByValue),
# takes the reference of a base class for a temporary (returnTempReference) and the braces of a table for a comma operator
# (constStatement).
cppcheck --std=c++20 --language=c++ --enable=warning,performance,portability --inline-suppr --error-exitcode=1 --quiet \
  -j "$(nproc)" --suppress=missingInclude --suppress=syntaxError --suppress=passedByValue --suppress=returnTempReference --suppress=constStatement -I src -I . \
  "${dateien[@]}" || rot=1
[ "$rot" -eq 0 ] && echo "clang-tidy und cppcheck: nichts gefunden"
exit "$rot"
