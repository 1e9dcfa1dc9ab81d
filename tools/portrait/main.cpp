// Paints the sample portrait that Vendrel shows before a photo is loaded. The picture is drawn from
// shapes and strokes alone and comes out the same every time. To make the pictures again, from the
// project's folder:
//
//   cmake --preset dev && cmake --build --preset dev --target vendrel_portrait
//   PROGRAM Data/PBNLady.bmp Pictures/PBNLady.bmp
//
// where PROGRAM is the vendrel_portrait just built.

#include <cstdint>
#include <exception>
#include <fstream>
#include <iostream>
#include <stdexcept>
#include <string>
#include <vector>

#include "canvas.h"
#include "sitter.h"

namespace {

using vendrel::portrait::Canvas;

void AppendLittleEndian(std::string& bytes, std::uint32_t value, int count) {
    for (int i = 0; i < count; ++i)
        bytes.push_back(static_cast<char>(value >> (8 * i) & 0xFFU));
}

std::string BitmapHeader(std::uint32_t pixelBytes) {
    constexpr std::uint32_t kHeaderBytes = 54;
    std::string bytes = "BM";
    AppendLittleEndian(bytes, kHeaderBytes + pixelBytes, 4);
    AppendLittleEndian(bytes, 0, 4);
    AppendLittleEndian(bytes, kHeaderBytes, 4);
    AppendLittleEndian(bytes, 40, 4);
    AppendLittleEndian(bytes, Canvas::kWidth, 4);
    AppendLittleEndian(bytes, Canvas::kHeight, 4);
    AppendLittleEndian(bytes, 1, 2);
    AppendLittleEndian(bytes, 24, 2);
    AppendLittleEndian(bytes, 0, 4);
    AppendLittleEndian(bytes, pixelBytes, 4);
    for (int i = 0; i < 4; ++i)
        AppendLittleEndian(bytes, i < 2 ? 2835 : 0, 4);
    return bytes;
}

// Rows from the bottom, blue first; a row of 720 pixels needs no padding.
std::string Bitmap(const std::vector<std::uint8_t>& pixels) {
    std::string bytes = BitmapHeader(static_cast<std::uint32_t>(pixels.size()));
    constexpr std::size_t kRow = Canvas::kWidth * 3;
    static_assert(kRow % 4 == 0);
    for (std::size_t row = Canvas::kHeight; row-- > 0;) {
        for (std::size_t i = row * kRow; i < (row + 1) * kRow; i += 3) {
            for (const std::size_t channel : {2U, 1U, 0U})
                bytes.push_back(static_cast<char>(pixels[i + channel]));
        }
    }
    return bytes;
}

std::vector<std::uint8_t> Portrait() {
    namespace portrait = vendrel::portrait;
    Canvas canvas;
    portrait::PaintBackdrop(canvas);
    portrait::PaintBackHair(canvas);
    portrait::PaintBust(canvas);
    portrait::PaintFace(canvas);
    portrait::PaintFeatures(canvas);
    portrait::PaintFrontHair(canvas);
    return canvas.Dry();
}

}  // namespace

int main(int argc, char** argv) {
    try {
        if (argc < 2)
            throw std::runtime_error("usage: vendrel_portrait FILE.bmp [FILE.bmp ...]");
        const std::string bitmap = Bitmap(Portrait());
        for (int i = 1; i < argc; ++i) {
            std::ofstream file(argv[i], std::ios::binary);
            file.write(bitmap.data(), static_cast<std::streamsize>(bitmap.size()));
            if (!file.flush())
                throw std::runtime_error(std::string(argv[i]) + " cannot be written");
        }
        return 0;
    } catch (const std::exception& failure) {
        std::cerr << failure.what() << '\n';
        return 1;
    }
}
