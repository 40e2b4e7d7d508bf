#!/usr/bin/env bash
# Fails, naming the files, when any C++ source differs from what .clang-format makes of it.
set -euo pipefail
cd "$(dirname "$0")/.."
format=$(command -v clang-format-14 || command -v clang-format) || { echo "clang-format is not installed" >&2; exit 1; }
if git rev-parse --is-inside-work-tree >/dev/null 2>&1; then
  mapfile -t files < <(git ls-files '*.cpp' '*.h')
else
  mapfile -t files < <(find . -path ./build -prune -o \( -name '*.cpp' -o -name '*.h' \) -print)
fi
bad=()
for f in "${files[@]}"; do
  "$format" --dry-run --Werror "$f" >/dev/null 2>&1 || bad+=("$f")
done
if [ ${#bad[@]} -gt 0 ]; then
  echo "Not formatted as .clang-format says (run: $format -i FILE):" >&2
  printf '  %s\n' "${bad[@]}" >&2
  exit 1
fi
echo "${#files[@]} files formatted as .clang-format says"
