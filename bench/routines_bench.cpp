// The layout routines and what a save does in memory, beside memcpy of the same bytes.
#include <benchmark/benchmark.h>

#include <cstring>

#include "gameinfo/game_info.h"
#include "large_banner.h"
#include "layout/file_length.h"
#include "layout/mod_globals.h"
#include "layout/text_box.h"
#include "mainwindow/region_force.h"

using namespace bannersmith;

namespace {

std::string Banner(const benchmark::State& state) {
    return Large_Banner(static_cast<std::size_t>(state.range(0)), static_cast<std::size_t>(state.range(1)));
}

std::vector<std::string> Names() {
    std::vector<std::string> names;
    for (const char* code : {"ENG", "GER", "FRA", "ITA", "SPA", "NED", "JPN", "NONE"}) {
        for (const char* prefix : {"T_VCTitle_", "T_Year_", "T_Play_", "T_ESRB_"}) {
            names.push_back(std::string(prefix) + code);
        }
    }
    names.emplace_back("T_PF");
    return names;
}

void Memcpy(benchmark::State& state) {
    const std::string from = Banner(state);
    std::string to = from;
    for (auto _ : state) {
        std::memcpy(to.data(), from.data(), from.size());
        benchmark::ClobberMemory();
    }
}

void Get(benchmark::State& state) {
    const std::string data = Banner(state);
    for (auto _ : state) benchmark::DoNotOptimize(Get_Text(data, "T_PF"));
}

void Set(benchmark::State& state) {
    std::string data = Banner(state);
    const std::u16string texts[] = {u"One text", u"Another, longer text"};
    std::size_t i = 0;
    for (auto _ : state) data = Set_Text(std::move(data), "T_Play_GER", texts[i++ % 2]);
}

/// From the layout as loaded to the bytes as written. The copy that a failed save would bring back is
/// part of it.
void SaveSequence(benchmark::State& state) {
    const std::string loaded = Banner(state);
    const std::vector<std::string> names = Names();
    for (auto _ : state) {
        std::string data = loaded;
        data = Rewrite_Texts(std::move(data), names);
        data = Set_File_Len(std::move(data));
        Region_Force(data, "NONE");
        data = AddPadding(std::move(data), {true, 0});
        benchmark::DoNotOptimize(data.data());
    }
}

void Load(benchmark::State& state) {
    const std::string file = Banner(state);
    GameInfo info;
    for (auto _ : state) {
        BrlytData = CutPadding(file);
        info.Refill();
    }
}

void SetAll(benchmark::State& state) {
    BrlytData = Banner(state);
    GameInfo info;
    info.Refill();
    int year = 1000;
    for (auto _ : state) {
        info.txtYear.Set(std::u16string(year++ % 2 == 0 ? u"1999" : u"85"));
        info.cmdSetAll_Click(1);
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
