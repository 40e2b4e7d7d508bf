#!/usr/bin/env bash
# Reruns the benchmarks written up in docs/benchmarks.md.
set -euo pipefail
cd "$(dirname "$0")/.."
source scripts/packages.sh
scripts/ensure-packages.sh "${BUILD_PACKAGES[@]}" libbenchmark-dev hyperfine
cmake --preset bench >/dev/null
cmake --build --preset bench
echo "== Calculations (Google Benchmark)"
build/bench/bench/gw_bench --benchmark_repetitions=5 --benchmark_report_aggregates_only=true
echo "== Whole process: gradewise-cli against a C++ program that does nothing"
hyperfine -N --warmup 20 --runs 300 \
  build/bench/bench/gw_empty_program \
  "build/bench/cli/gradewise-cli solve examples/english-crest.gwf" \
  "build/bench/cli/gradewise-cli solve --elevations --json examples/english-crest.gwf" \
  "build/bench/cli/gradewise-cli table examples/english-crest.gwf --every 0+50" \
  "build/bench/cli/gradewise-cli plot examples/english-crest.gwf" \
  "build/bench/cli/gradewise-cli check examples/english-crest.gwf --speed 50"
