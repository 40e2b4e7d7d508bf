#!/usr/bin/env bash
# Reruns the figures in docs/reliability.md: the fuzzers, the whole suite under the
# sanitizers, the fault and huge-file tests, and the soak.
# Usage: scripts/reliability.sh [fuzz|sanitizers|faults|soak]...   (default: all)
set -euo pipefail
cd "$(dirname "$0")/.."
source scripts/packages.sh
steps=("$@")
[ ${#steps[@]} -gt 0 ] || steps=(fuzz sanitizers faults soak)
runs="${FUZZ_RUNS:-1000000}"

for step in "${steps[@]}"; do
  case "$step" in
    fuzz)
      scripts/ensure-packages.sh "${BUILD_PACKAGES[@]}" "${FUZZ_PACKAGES[@]}"
      cmake --preset fuzz >/dev/null
      cmake --build --preset fuzz
      work=$(mktemp -d)
      cp -r fuzz/corpus/curve_file "$work/file"
      cp -r fuzz/corpus/commands "$work/commands"
      cp -r fuzz/corpus/profile_files "$work/profile_files"
      cp -r fuzz/corpus/profile_commands "$work/profile_commands"
      mkdir -p "$work/calc"
      targets=(curve_file:file calculations:calc commands:commands profile_files:profile_files
               profile_commands:profile_commands)
      # FUZZ_TARGETS="profile_files profile_commands" runs only those.
      for target in "${targets[@]}"; do
        [ -z "${FUZZ_TARGETS:-}" ] || [[ " $FUZZ_TARGETS " == *" ${target%%:*} "* ]] || continue
        name=${target%%:*}; corpus=$work/${target##*:}
        echo "== fuzz_$name: $runs runs"
        (cd "$work" && "$OLDPWD/build/fuzz/fuzz/fuzz_$name" -runs="$runs" -timeout=10 -rss_limit_mb=2048 \
          -print_final_stats=1 "$corpus" 2>&1 | grep -E 'Done|DONE|stat::|ERROR|SUMMARY' )
      done
      rm -rf "$work" ;;
    sanitizers)
      scripts/test-sanitizers.sh ;;
    faults)
      scripts/ensure-packages.sh "${BUILD_PACKAGES[@]}" "${TEST_PACKAGES[@]}"
      cmake --preset dev >/dev/null
      cmake --build --preset dev
      QT_QPA_PLATFORM=offscreen ctest --preset dev -R \
        'SaveFault|FailedSave|HugeFile|BadInput|BadArguments|SettingsStore|Placement|CurveFileRead|SaveAsIntoAMissing|ReplaceFile|OutputThatCannotBeWritten|BeyondComputing|StationSteps|CannotBeComputed|UnusualFiles|TwoCopies|open_files_at_start' ;;
    soak)
      scripts/ensure-packages.sh "${BUILD_PACKAGES[@]}" libbenchmark-dev
      cmake --preset bench >/dev/null
      cmake --build --preset bench --target gw_soak
      build/bench/bench/gw_soak 5000 ;;
    *) echo "unknown step: $step" >&2; exit 2 ;;
  esac
done
