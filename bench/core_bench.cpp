// Micro-benchmarks of the calculations behind Calc and Calculate TOS.
#include <benchmark/benchmark.h>

#include "core/curve_solver.h"
#include "core/elevations.h"

namespace {

gw::CurveSheet PviCurve() {
    gw::CurveSheet s = gw::NewCurveSheet("English");
    s.txtPVISTA = "12";
    s.txtPVISTAM = "0";
    s.txtPVIEval = "104";
    s.txtG1 = "2";
    s.txtG2 = "-2";
    s.txtLC = "400";
    return s;
}

void SolveFromPvi(benchmark::State& state) {
    // Solving again with the same inputs repeats every step; only the first solve
    // moves the stations.
    gw::CurveSheet s = PviCurve();
    for (auto _ : state) {
        benchmark::DoNotOptimize(gw::Calculate(s));
        benchmark::DoNotOptimize(s.txtSD.data());
    }
}
BENCHMARK(SolveFromPvi);

void SolveFromEnds(benchmark::State& state) {
    gw::CurveSheet input = gw::NewCurveSheet("English");
    gw::SwitchToPVCPVTMode(input);
    input.txtPVCSTA = "10";
    input.txtPVCSTAM = "0";
    input.txtPVCEval = "100";
    input.txtPVTSTA = "14";
    input.txtPVTSTAM = "0";
    input.txtPVTEval = "100";
    input.txtG1 = "2";
    gw::CurveSheet s = input;
    for (auto _ : state) {
        benchmark::DoNotOptimize(gw::Calculate(s));
        benchmark::DoNotOptimize(s.txtSD.data());
    }
}
BENCHMARK(SolveFromEnds);

void CalculateTwentyRows(benchmark::State& state) {
    gw::CurveSheet s = PviCurve();
    gw::Calculate(s);
    gw::CopyCurveStations(s);
    s.elevations.txtVOffset = "0.5";
    s.elevations.txtHOffset = "12";
    s.elevations.txtXSlope = "-2";
    for (int i = 0; i < gw::kRowCount; ++i) {
        s.elevations.rows[i].txtTOTSTA1 = std::to_string(10 + i / 5);
        s.elevations.rows[i].txtTOTSTAM1 = std::to_string((i % 5) * 20);
    }
    for (auto _ : state) {
        benchmark::DoNotOptimize(gw::CalculateTOS(s));
        benchmark::DoNotOptimize(s.elevations.rows[19].txtTotalTopSlab1.data());
    }
}
BENCHMARK(CalculateTwentyRows);

}  // namespace

BENCHMARK_MAIN();
