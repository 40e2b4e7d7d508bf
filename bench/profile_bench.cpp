// The station table of a ten-mile profile every foot, and the number and station
// formatting it spends its time in.
#include <benchmark/benchmark.h>

#include <fstream>
#include <iterator>
#include <random>

#include "cli/profile_source.h"
#include "cli/profile_table.h"
#include "core/numbers.h"
#include "core/stations.h"

namespace {

gw::cli::ProfileSource TenMiles() {
    std::ifstream in(GW_TEN_MILE_PROFILE, std::ios::binary);
    const std::string bytes(std::istreambuf_iterator<char>(in), {});
    return gw::cli::ReadProfileSource(GW_TEN_MILE_PROFILE, bytes, std::nullopt);
}

void TableEveryFoot(benchmark::State& state) {
    const gw::cli::ProfileSource source = TenMiles();
    size_t rows = 0;
    for (auto _ : state) {
        const gw::ProfileRowsOutcome table = gw::ProfileRows(*source.profile, 1);
        const std::string csv = gw::cli::ProfileTableCsv(table.rows, false);
        benchmark::DoNotOptimize(csv.data());
        rows = table.rows.size();
    }
    state.counters["rows"] = static_cast<double>(rows);
    state.SetItemsProcessed(state.iterations() * static_cast<int64_t>(rows));
}
BENCHMARK(TableEveryFoot)->Unit(benchmark::kMillisecond);

void ReadTenMileProfile(benchmark::State& state) {
    for (auto _ : state) benchmark::DoNotOptimize(TenMiles().profile->pieces().data());
}
BENCHMARK(ReadTenMileProfile)->Unit(benchmark::kMicrosecond);

std::vector<double> Values(double low, double high) {
    std::mt19937_64 rng(3);
    std::uniform_real_distribution<double> value(low, high);
    std::vector<double> v(4096);
    for (double& x : v) x = value(rng);
    return v;
}

// Elevations and grades: below a million, where the number format is written directly.
void FormatNumberDirect(benchmark::State& state) {
    const std::vector<double> values = Values(-1000, 5000);
    size_t i = 0;
    for (auto _ : state) benchmark::DoNotOptimize(gw::FormatNumber(values[i++ % values.size()]).size());
}
BENCHMARK(FormatNumberDirect);

// A million and more: through the 15-digit text, the path every number took before.
void FormatNumberThroughText(benchmark::State& state) {
    const std::vector<double> values = Values(1e6, 5e6);
    size_t i = 0;
    for (auto _ : state) benchmark::DoNotOptimize(gw::FormatNumber(values[i++ % values.size()]).size());
}
BENCHMARK(FormatNumberThroughText);

void StationTextAppended(benchmark::State& state) {
    const std::vector<double> values = Values(0, 52800);
    std::string out;
    size_t i = 0;
    for (auto _ : state) {
        out.clear();
        gw::AppendStationText(out, values[i++ % values.size()], false);
        benchmark::DoNotOptimize(out.data());
    }
}
BENCHMARK(StationTextAppended);

// The way a station's texts were made before: SplitStation's whole and plus texts.
void StationThroughSplitStation(benchmark::State& state) {
    const std::vector<double> values = Values(0, 52800);
    size_t i = 0;
    for (auto _ : state) {
        const gw::StationTexts t = gw::SplitStation(values[i++ % values.size()], gw::kEnglish);
        benchmark::DoNotOptimize(t.plus.data());
    }
}
BENCHMARK(StationThroughSplitStation);

}  // namespace
