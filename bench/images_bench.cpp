#include <benchmark/benchmark.h>

#include <filesystem>
#include <string>

#include "convert/bitmap_reader.h"
#include "convert/bitmap_writer.h"
#include "convert/photo_import.h"
#include "convert/scaling.h"

namespace vendrel {
namespace {

// Soft shapes with some grain, as a photo has them.
Surface Photo(int width, int height) {
    Surface photo(width, height);
    unsigned grain = 1;
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            grain = grain * 1664525U + 1013904223U;
            const int noise = static_cast<int>(grain >> 28);
            photo.Set(x, y, Rgb(x * 240 / width + noise, y * 240 / height + noise, 90 + noise));
        }
    }
    return photo;
}

/// A file that goes away with the benchmark.
class PhotoFile {
  public:
    PhotoFile(int width, int height) { WriteBitmap(path_, Photo(width, height)); }
    ~PhotoFile() { std::filesystem::remove(path_); }
    PhotoFile(const PhotoFile&) = delete;
    PhotoFile& operator=(const PhotoFile&) = delete;
    [[nodiscard]] const std::filesystem::path& Path() const { return path_; }

  private:
    std::filesystem::path path_ = std::filesystem::temp_directory_path() / "vendrel-bench.bmp";
};

void CountPixels(benchmark::State& state) {
    state.SetItemsProcessed(state.iterations() * state.range(0) * state.range(1));
}

void ReadAll(benchmark::State& state) {
    const PhotoFile file(static_cast<int>(state.range(0)), static_cast<int>(state.range(1)));
    for ([[maybe_unused]] const auto step : state) {
        benchmark::DoNotOptimize(ReadBitmap(file.Path()));
    }
    CountPixels(state);
}

void Import(benchmark::State& state) {
    const PhotoFile file(static_cast<int>(state.range(0)), static_cast<int>(state.range(1)));
    const ScreenSize screen = ScreenSize::FromPixels(1920, 1080);
    for ([[maybe_unused]] const auto step : state) {
        benchmark::DoNotOptimize(ReadPhoto(file.Path(), screen, 8, PhotoFit::Keep));
    }
    CountPixels(state);
}

void Scale(benchmark::State& state) {
    const Surface photo = Photo(static_cast<int>(state.range(0)), static_cast<int>(state.range(1)));
    for ([[maybe_unused]] const auto step : state) {
        benchmark::DoNotOptimize(ScaleTo(photo, 960, 720));
    }
    CountPixels(state);
}

void Write(benchmark::State& state) {
    const Surface photo = Photo(static_cast<int>(state.range(0)), static_cast<int>(state.range(1)));
    const PhotoFile file(1, 1);
    for ([[maybe_unused]] const auto step : state) {
        WriteBitmap(file.Path(), photo);
    }
    CountPixels(state);
}

// The working size, a phone's photo, sixteen megapixels: time per pixel must not grow.
void Sizes(benchmark::internal::Benchmark* sizes) {
    sizes->Args({960, 720})->Args({2048, 1536})->Args({4608, 3456})->Unit(benchmark::kMillisecond);
}

BENCHMARK(ReadAll)->Apply(Sizes);
BENCHMARK(Import)->Apply(Sizes)->Args({320, 240});
BENCHMARK(Scale)->Apply(Sizes)->Args({320, 240});
BENCHMARK(Write)->Apply(Sizes);

}  // namespace
}  // namespace vendrel
