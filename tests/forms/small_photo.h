#pragma once

#include "convert/bitmap_writer.h"
#include "convert/photo_import.h"
#include "convert/stipple_conversion.h"
#include "shell/recorder.h"
#include "startup/start_up.h"

namespace vendrel::test {

/// A workplace with four paints in three sets, two sets selected, and a photo of 4 × 4 stipples
/// loaded, its left half red and its right half green.
struct SmallPhoto : Bench {
    SmallPhoto() : Bench(VENDREL_SOURCE_DIR) {
        Files.Write("Data/studiopaint.csv",
                    "4\r\n200,0,0,\"Warm, soft\",\"PR1\",\"Red\"\r\n"
                    "120,80,30,\"Warm, soft\",\"PY43\",\"Ochre, dark\"\r\n"
                    "0,200,0,\"Cold\",\"PG7\",\"Green\"\r\n"
                    "20,20,60,\"Dark\",\"PB1\",\"Night\"\r\n");
        Files.Write("Data/paintlist.txt", "Warm, soft\r\nCold\r\n");
        // A screen that leaves 4 × 4 stipples of 8 pixels.
        Screen.Size = ScreenSize{33 * 15, 32 * 15 + 1950 + 5 * 15, {}};
        PrepareSettings(Place);
        PreparePaints(Place);
        Surface photo(32, 32, Rgb(200, 0, 0));
        photo.FillRect(17, 0, 32, 32, Rgb(0, 200, 0));
        WriteBitmap(Files / "Pictures/small.bmp", photo);
        (void)ChoosePhoto(State, Program, "small.bmp");
        (void)LoadNewPicture(Place);
    }

    void Convert() { ChangeToStipples_Click(Place); }
};

}  // namespace vendrel::test
