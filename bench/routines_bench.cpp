// The layout routines and what a save does in memory, beside memcpy of the same bytes.
#include <benchmark/benchmark.h>

#include <cstdlib>
#include <cstring>

#include "banner/banner.h"
#include "large_banner.h"
#include "layout/text_box.h"

using namespace bannersmith;

namespace {

std::string Layout(const benchmark::State& state) {
    return Large_Banner(static_cast<std::size_t>(state.range(0)), static_cast<std::size_t>(state.range(1)));
}

void Memcpy(benchmark::State& state) {
    const std::string from = Layout(state);
    std::string to = from;
    for (auto _ : state) {
        std::memcpy(to.data(), from.data(), from.size());
        benchmark::ClobberMemory();
    }
}

void Get(benchmark::State& state) {
    const std::string data = Layout(state);
    for (auto _ : state) benchmark::DoNotOptimize(Get_Text(data, "T_PF"));
}

void Set(benchmark::State& state) {
    std::string data = Layout(state);
    const std::u16string texts[] = {u"One text", u"Another, longer text"};
    std::size_t i = 0;
    for (auto _ : state) data = Set_Text(std::move(data), "T_Play_GER", texts[i++ % 2]);
}

/// From the layout as loaded to the bytes as written.
void SaveSequence(benchmark::State& state) {
    const Banner banner = Banner::From_Bytes(Layout(state));
    for (auto _ : state) {
        const auto plan = banner.Plan_Save();
        benchmark::DoNotOptimize(plan->files.back().bytes.data());
    }
}

void Load(benchmark::State& state) {
    const std::string file = Layout(state);
    for (auto _ : state) benchmark::DoNotOptimize(Banner::From_Bytes(file).Bytes().data());
}

void SetAll(benchmark::State& state) {
    Banner banner = Banner::From_Bytes(Layout(state), {}, 0);
    int year = 1000;
    for (auto _ : state) {
        const std::u16string value = year++ % 2 == 0 ? u"1999" : u"85";
        if (!banner.Apply(SetFieldEverywhere{Field::year, value})) std::abort();
    }
}

void Sizes(benchmark::internal::Benchmark* routine) {
    for (const long bytes : {64L << 10, 1L << 20, 16L << 20}) routine->Args({bytes, 40});
    for (const long boxes : {400L, 4000L, 40000L}) routine->Args({boxes * 144, boxes});
    routine->Unit(benchmark::kMicrosecond);
}

BENCHMARK(Memcpy)->Apply(Sizes);
BENCHMARK(Get)->Apply(Sizes);
BENCHMARK(Set)->Apply(Sizes);
BENCHMARK(SaveSequence)->Apply(Sizes);
BENCHMARK(Load)->Apply(Sizes);
BENCHMARK(SetAll)->Apply(Sizes);

}  // namespace

BENCHMARK_MAIN();
