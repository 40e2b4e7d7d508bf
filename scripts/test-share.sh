#!/usr/bin/env bash
# How much of the code is tests: non-blank, non-comment lines of the C++ in tests/ and
# fuzz/ and of the shell scripts in tests/ (the end-to-end and install layers), against
# every other C++ line of the tree, with the figures by folder.
set -euo pipefail
cd "$(dirname "$0")/.."

cpp_lines() {  # C++ files on stdin; drops blank lines, // comments and /* */ blocks
  xargs -r cat | sed -e 's://.*$::' |
    awk '/\/\*/ { inside = 1 } { if (!inside && $0 ~ /[^[:space:]]/) n++ } /\*\// { inside = 0 } END { print n + 0 }'
}
shell_lines() {  # shell scripts on stdin; drops blank lines and # comments
  xargs -r cat | grep -v '^[[:space:]]*#' | grep -c '[^[:space:]]' || true
}

files=$(git ls-files '*.cpp' '*.h')
tests=$(grep -E '^(tests|fuzz)/' <<<"$files" | cpp_lines)
scripts=$(git ls-files 'tests/*.sh' | shell_lines)
code=$(grep -vE '^(tests|fuzz)/' <<<"$files" | cpp_lines)
echo "tests: $tests C++ + $scripts shell = $((tests + scripts)) lines; code: $code lines;" \
  "tests are $(((tests + scripts) * 100 / code)) % of the code"
for d in core files commands ui shell platform print cli app bench; do
  printf '  %-9s code %5s\n' "$d" "$(grep -E "^$d/" <<<"$files" | cpp_lines)"
done
for d in tests/core tests/files tests/ui tests/cli tests/display fuzz; do
  printf '  %-13s tests %5s\n' "$d" "$(grep -E "^$d/" <<<"$files" | cpp_lines)"
done
printf '  %-13s tests %5s (shell)\n' "tests/e2e" "$(git ls-files 'tests/e2e/*.sh' | shell_lines)"
printf '  %-13s tests %5s (shell)\n' "tests/install" "$(git ls-files 'tests/install/*.sh' | shell_lines)"
