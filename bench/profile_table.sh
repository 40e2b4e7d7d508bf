#!/usr/bin/env bash
# The station table of a ten-mile, forty-curve profile every foot (52,961 CSV rows):
# `gradewise-cli table ... --csv` against a plain Python script that computes and
# writes the same rows. Checks first that both write the same bytes.
set -euo pipefail
cd "$(dirname "$0")/.."
source scripts/packages.sh
scripts/ensure-packages.sh "${BUILD_PACKAGES[@]}" libbenchmark-dev hyperfine python3
cmake --preset bench >/dev/null
cmake --build --preset bench --target gradewise-cli gw_bench
cli=build/bench/cli/gradewise-cli
profile=bench/ten-mile-profile.xml
# Debian's interpreter, not a version manager's wrapper script around it.
python=$(command -v /usr/bin/python3 || command -v python3)

cmp <("$cli" table "$profile" --every 0+01 --csv) <("$python" bench/profile_table.py "$profile" 1)
echo "== Same $("$cli" table "$profile" --every 0+01 --csv | wc -l) lines from both"
echo "== Rows and CSV text in the process (Google Benchmark)"
build/bench/bench/gw_bench --benchmark_filter='TableEveryFoot|ReadTenMile|FormatNumber|Station' \
  --benchmark_repetitions=5 --benchmark_report_aggregates_only=true
echo "== Whole process"
hyperfine -N --warmup 5 --runs 50 "$cli table $profile --every 0+01 --csv" \
  "$python bench/profile_table.py $profile 1"
