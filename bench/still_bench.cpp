// What a frame of a banner costs beside the same filling done bare: the same rectangles, the same samples of the same
// textures, and one colour for all of it, mixed with what is there or only stored.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>

#include "container/archive.h"
#include "generate/channel.h"
#include "still/part.h"

namespace bannersmith::still {

namespace {

PartFiles Files() {
    const auto archive = Archive::Read(Real_Size_Channel());
    PartFiles files;
    files.layout = archive->Layout();
    const std::string folder = "meta/banner.bin/arc/";
    files.start = *archive->Find_File(folder + "anim/banner_Start.brlan");
    files.loop = *archive->Find_File(folder + "anim/banner_Loop.brlan");
    files.texture = [archive, folder](const std::string& name) { return archive->Find_File(folder + "timg/" + name); };
    return files;
}

void Frame(benchmark::State& state) {
    Still still(Files());
    std::size_t frame = still.Start_Frames();
    for (auto _ : state) benchmark::DoNotOptimize(still.Draw({}, frame++, nullptr).picture.texels.data());
}

/// A rectangle that was drawn, and its textures.
struct Bare {
    std::size_t left, top, right, bottom;
    std::vector<Sampler> samplers;
};

template <bool Mixes>
void BareFill(benchmark::State& state) {
    Still still(Files());
    Textures textures(Files().texture);
    std::vector<Bare> all;
    const Scene& scene = still.Layout();
    for (const Region& region : still.Draw({}, still.Start_Frames(), nullptr).regions) {
        const auto pixel = [](float at, float most) {
            return static_cast<std::size_t>(std::clamp(std::ceil(at - 0.5F), 0.F, most));
        };
        Bare bare{pixel(region.corners[0].x, 608),
                  pixel(region.corners[0].y, 456),
                  pixel(region.corners[3].x, 608),
                  pixel(region.corners[3].y, 456),
                  {}};
        const Material& material = scene.materials[scene.Find_Material(region.material)];
        const Shader shader(material);
        for (const Tap& tap : shader.Taps()) {
            const TextureMap& map = material.maps[tap.map];
            bare.samplers.emplace_back(*textures.Find(scene.textures[map.texture], map.s, map.t), map.s, map.t);
        }
        all.push_back(std::move(bare));
    }
    std::vector<Lanes> row(Sampler::MostPixels);
    const Lanes color = Everywhere(77);
    std::vector<Lanes> stored(608 * 456 / 2 + Sampler::MostPixels);
    for (auto _ : state) {
        Canvas canvas(608, 456, {0, 0, 0, 255});
        for (Bare& bare : all) {
            const double width = static_cast<double>(bare.right - bare.left),
                         height = static_cast<double>(bare.bottom - bare.top);
            for (std::size_t y = bare.top; y < bare.bottom; ++y) {
                for (std::size_t x = bare.left; x < bare.right; x += Sampler::MostPixels) {
                    const std::size_t count = std::min(bare.right - x, Sampler::MostPixels);
                    for (Sampler& sampler : bare.samplers) {
                        const double w = static_cast<double>(sampler.Source().Width()),
                                     h = static_cast<double>(sampler.Source().Height());
                        sampler.Take({static_cast<double>(x - bare.left) * w / width, w / width},
                                     {static_cast<double>(y - bare.top) * h / height, 0}, count, row.data());
                        benchmark::DoNotOptimize(row.data());
                    }
                    if (Mixes)
                        canvas.Put(x, y, count, {&color, true}, {}, {});
                    else
                        std::fill_n(&stored[(y * 608 + x) / 2], count / 2, color);
                }
            }
        }
        benchmark::DoNotOptimize(stored.data());
        if (Mixes) benchmark::DoNotOptimize(canvas.Taken().texels.data());
    }
}

BENCHMARK(Frame)->Unit(benchmark::kMillisecond);
BENCHMARK(BareFill<true>)->Unit(benchmark::kMillisecond);
BENCHMARK(BareFill<false>)->Unit(benchmark::kMillisecond);

}  // namespace

}  // namespace bannersmith::still

BENCHMARK_MAIN();
