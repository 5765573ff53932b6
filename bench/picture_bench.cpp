#include <benchmark/benchmark.h>
#include <png.h>
#include <zlib.h>

#include <cstring>

#include "media/BitmapTreatment.h"

namespace tamber {
namespace {

constexpr Long Width = 4000;
constexpr Long Height = 3000;

/// A picture with the gradients and the grain of a photograph, red, green, blue and alpha.
Bytes PhotoPixels() {
    Bytes pixels(static_cast<std::size_t>(Width) * Height * 4);
    std::uint32_t state = 1;
    Byte* pixel = pixels.data();
    for (int y = 0; y < Height; ++y)
        for (int x = 0; x < Width; ++x, pixel += 4) {
            state = state * 1664525 + 1013904223;
            const int grain = static_cast<int>(state >> 29);
            pixel[0] = static_cast<Byte>(x * 240 / Width + grain);
            pixel[1] = static_cast<Byte>(y * 240 / Height + grain);
            pixel[2] = static_cast<Byte>((x + y) * 120 / Height % 240 + grain);
            pixel[3] = x < Width / 4 ? static_cast<Byte>(x * 255 / (Width / 4)) : Byte{255};
        }
    return pixels;
}

const Bytes& PhotoPng() {
    static const Bytes file = [] {
        const Bytes pixels = PhotoPixels();
        png_image image{};
        image.version = PNG_IMAGE_VERSION;
        image.width = Width;
        image.height = Height;
        image.format = PNG_FORMAT_RGBA;
        png_alloc_size_t size = PNG_IMAGE_PNG_SIZE_MAX(image);
        Bytes png(size);
        png_image_write_to_memory(&image, png.data(), &size, 0, pixels.data(), 0, nullptr);
        png.resize(size);
        return png;
    }();
    return file;
}

/// From a file to the finished buffer of the tag.
void PngToBuffer(benchmark::State& state) {
    const Bytes& file = PhotoPng();
    for (auto _ : state) {
        clsDib dib;
        BitmapBuffers buffers;
        if (!dib.LoadFromMemory(file) || !PrepareBitmap(std::move(dib), {}, buffers))
            state.SkipWithError("not read");
        benchmark::DoNotOptimize(buffers.bufBmp.data());
    }
}

/// What the two libraries take for it by themselves: decoding the file's pixels, and compressing
/// the bytes that the finished buffer holds.
void LibrariesAlone(benchmark::State& state) {
    const Bytes& file = PhotoPng();
    clsDib dib;
    BitmapBuffers buffers;
    if (!dib.LoadFromMemory(file) || !PrepareBitmap(std::move(dib), {}, buffers))
        state.SkipWithError("not read");
    Bytes prepared(static_cast<std::size_t>(Width) * Height * 4);
    uLongf length = prepared.size();
    uncompress(prepared.data(), &length, buffers.bufBmp.data(), buffers.bufBmp.size());

    for (auto _ : state) {
        png_image image{};
        image.version = PNG_IMAGE_VERSION;
        png_image_begin_read_from_memory(&image, file.data(), file.size());
        image.format = PNG_FORMAT_RGBA;
        Bytes pixels(PNG_IMAGE_SIZE(image));
        png_image_finish_read(&image, nullptr, pixels.data(), 0, nullptr);
        Bytes stream(compressBound(prepared.size()));
        uLongf size = stream.size();
        compress(stream.data(), &size, prepared.data(), prepared.size());
        benchmark::DoNotOptimize(pixels.data());
        benchmark::DoNotOptimize(stream.data());
    }
}

/// The blur of a picture's alpha, whose cost does not grow with its reach.
void BlurAlpha(benchmark::State& state) {
    clsDib dib;
    dib.Create(1000, 1000, 32);
    dib.MkAlphaTable();
    for (std::size_t i = 0; i < dib.ADib.size(); ++i) dib.ADib[i] = static_cast<Byte>(i * 37);
    for (auto _ : state) dib.BlendAlpha(static_cast<Long>(state.range(0)));
}

BENCHMARK(PngToBuffer)->Unit(benchmark::kMillisecond);
BENCHMARK(LibrariesAlone)->Unit(benchmark::kMillisecond);
BENCHMARK(BlurAlpha)->Arg(1)->Arg(100)->Arg(1000)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tamber
