#include "convert/bitmap_writer.h"

#include <gtest/gtest.h>

#include "convert/bitmap_reader.h"
#include "convert/dib_section.h"
#include "support/error.h"
#include "support/pictures.h"
#include "support/temp_folder.h"

namespace vendrel {
namespace {

TEST(BitmapWriter, WritesTheBytesThatEveryProgramReads) {
    const test::TempFolder folder;
    const Surface picture = test::PictureOf({{Rgb(1, 2, 3)}, {Rgb(250, 251, 252)}});
    const std::string golden(
        "BM\x3E\0\0\0\0\0\0\0\x36\0\0\0"
        "\x28\0\0\0\1\0\0\0\2\0\0\0\1\0\x18\0\0\0\0\0\x08\0\0\0\x7C\x15\0\0\x7C\x15\0\0\0\0\0\0\0\0"
        "\0\0\xFC\xFB\xFA\0\3\2\1\0",
        62);
    WriteBitmap(folder / "new/x.BMP", picture);
    EXPECT_EQ(folder.Read("new/x.BMP"), golden);

    cDIBSection image;
    ASSERT_TRUE(image.CreateFromPicture(picture));
    BitmapStream stream(folder / "image.BMP", 1, 2);
    stream.Write({image.DIBSectionBitsPtr(), 4});
    stream.Write({image.DIBSectionBitsPtr() + 4, 4});
    stream.Commit();
    EXPECT_EQ(folder.Read("image.BMP"), golden);
}

TEST(BitmapWriter, WhatItWritesIsReadBack) {
    const test::TempFolder folder;
    // Rows of 603 bytes: the last block is not full, rows are padded.
    const Surface picture =
        test::PictureOf(201, 1000, [](int x, int y) { return (x * 7919 + y * 104729) & 0xFFFFFF; });
    WriteBitmap(folder / "x.bmp", picture);
    EXPECT_EQ(ReadBitmap(folder / "x.bmp"), picture);
}

TEST(BitmapWriter, RefusesNothingAndLeavesTheOldFile) {
    const test::TempFolder folder;
    const auto file = folder.Write("x.bmp", "old");
    EXPECT_THROW(WriteBitmap(file, Surface()), FileError);
    { const BitmapStream forgotten(file, 1, 1); }
    EXPECT_EQ(folder.Read("x.bmp"), "old");
}

}  // namespace
}  // namespace vendrel
