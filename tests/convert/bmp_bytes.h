#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <vector>

namespace vendrel::test {

/// A BMP file of one pixel built byte by byte, so that any of its fields may lie.
struct BmpBytes {
    int Width = 1;
    int Height = 1;
    int Bits = 24;
    int Compression = 0;
    int HeaderSize = 40;
    int ColorsUsed = 0;
    int PixelOffset = -1;  // -1: right behind header and palette
    std::vector<std::uint32_t> Masks = {};
    std::vector<std::uint32_t> Palette = {};  // 0xRRGGBB
    std::vector<int> Pixels = {1, 2, 3, 0};   // bytes as they stand in the file

    [[nodiscard]] std::string Make() const {
        const std::size_t masksInside =
            HeaderSize > 40 ? static_cast<std::size_t>(HeaderSize - 40) / 4 : 0;
        std::string info;
        if (HeaderSize == 12) {
            Put(info, 12);
            Put(info, static_cast<std::uint32_t>(Width | Height << 16));
            Put(info, static_cast<std::uint32_t>(1 | Bits << 16));
            return Assemble(info, 3);
        }
        for (const int field :
             {HeaderSize, Width, Height, 1 | Bits << 16, Compression, 0, 0, 0, ColorsUsed, 0}) {
            Put(info, static_cast<std::uint32_t>(field));
        }
        for (std::size_t i = 0; i < std::max(masksInside, Masks.size()); ++i) {
            Put(info, i < Masks.size() ? Masks[i] : 0);
        }
        return Assemble(info, 4);
    }

  private:
    [[nodiscard]] std::string Assemble(std::string info, int entryBytes) const {
        for (const std::uint32_t color : Palette) {
            Put(info, color, entryBytes);
        }
        std::string file = "BM";
        Put(file, 0);
        Put(file, 0);
        Put(file, static_cast<std::uint32_t>(PixelOffset < 0 ? static_cast<int>(info.size()) + 14
                                                             : PixelOffset));
        file += info;
        for (const int byte : Pixels) {
            file += static_cast<char>(byte);
        }
        return file;
    }

    static void Put(std::string& bytes, std::uint32_t value, int count = 4) {
        for (int i = 0; i < count; ++i) {
            bytes += static_cast<char>(value >> 8 * i & 255);
        }
    }
};

}  // namespace vendrel::test
