#pragma once

#include <algorithm>
#include <stdexcept>
#include <string>
#include <string_view>

#include "convert/bitmap_writer.h"
#include "forms/file_import.h"
#include "shell/recorder.h"
#include "support/surface.h"

namespace vendrel::test {

/// A picture of four flat quarters; pixels.
inline Surface FourQuarters(int width, int height) {
    Surface picture(width, height, Rgb(230, 20, 20));
    picture.FillRect(width / 2, 0, width, height / 2, Rgb(20, 220, 30));
    picture.FillRect(0, height / 2, width / 2, height, Rgb(30, 20, 210));
    picture.FillRect(width / 2, height / 2, width, height, Rgb(240, 240, 230));
    return picture;
}

/// A program folder with three small paint sets ("Reds" is selected), the shipped symbols, a sample
/// and one photo, Pictures/four.bmp. The screen is small, so that little is painted.
class Studio : public Bench {
  public:
    Studio() : Bench(VENDREL_SOURCE_DIR) {
        Screen.Size = ScreenSize::FromPixels(200, 300);
        Files.Write("Data/studiopaint.csv",
                    "5\r\n230,20,20,Reds,R1,Red\r\n120,10,10,Reds,R2,Dark Red\r\n"
                    "20,220,30,Greens,G1,Green\r\n"
                    "30,20,210,Rest,B1,Blue\r\n240,240,230,Rest,W1,White\r\n");
        Files.Write("Data/paintlist.txt", "Reds\r\n");
        WriteBitmap(Files / "Data/PBNLady.bmp", FourQuarters(8, 8));
        WriteBitmap(Files / "Pictures/four.bmp", FourQuarters(64, 48));
    }
};

/// Clicks the photo of that name in the chooser's list.
inline void ClickPhoto(FileImport& chooser, std::string_view name) {
    const auto& files = chooser.Controls().ImportFile;
    const auto found = std::find(files.begin(), files.end(), name);
    if (found == files.end()) {
        throw std::invalid_argument("no photo " + std::string(name) + " is listed");
    }
    chooser.ImportFile_Click(static_cast<int>(found - files.begin()));
}

}  // namespace vendrel::test
