#include "intake/incoming_photo.h"

#include <gtest/gtest.h>

#include <string>
#include <tuple>
#include <utility>

#include "convert/bitmap_writer.h"
#include "intake/photo_names.h"
#include "support/error.h"
#include "support/temp_folder.h"

namespace vendrel {
namespace {

TEST(PhotoNames, HaveNoDots) {
    for (const auto& [file, stem] : {std::pair{"/a.b/aunt.jpg", "aunt"},
                                     {"my.photo.jpg", "my-photo"},
                                     {"IMG 1.2.HEIC.jpg", "IMG 1-2-HEIC"},
                                     {".hidden.png", "hidden"},
                                     {"aunt..jpg", "aunt"},
                                     {"aunt", "aunt"},
                                     {"...", "Photo"},
                                     {"Tante Käthe.webp", "Tante Käthe"}}) {
        EXPECT_EQ(PictureStem(file), stem) << file;
    }
}

TEST(IncomingPhotos, KnowWhatTheBitmapReaderCannotRead) {
    const test::TempFolder files;
    const NoPhotoDecoder decoder;
    using namespace std::string_literals;
    const std::string before(12, '\0');
    const std::string upwards = "BM" + before + "\x28\0\0\0\x05\0\0\0\x03\0\0\0"s;
    const std::string downwards = "BM" + before + "\x28\0\0\0\x05\0\0\0\xFD\xFF\xFF\xFF"s;
    const std::string old = "BM" + before + "\x0C\0\0\0\x05\0\x03\0\x01\0\x18\0"s;
    const std::string jpeg = "\xFF\xD8\xFF\xE0";
    for (const auto& [name, bytes, plain] : {std::tuple{"a.bmp", upwards, true},
                                             {"a.jpg", upwards, true},
                                             {"b.bmp", downwards, false},
                                             {"c.bmp", old, true},
                                             {"d.bmp", jpeg, false},
                                             {"e.bmp", "letter"s, true},
                                             {"f.BMP", ""s, true},
                                             {"g.heic", "letter"s, false}}) {
        const IncomingPhoto photo(files.Write(name, bytes), decoder);
        EXPECT_EQ(photo.IsPlainBitmap(), plain) << name;
    }
    EXPECT_THROW(IncomingPhoto(files / "missing.jpg", decoder), FileError);
}

TEST(IncomingPhotos, AreTakenAsTheyWereLookedAt) {
    const test::TempFolder files;
    const NoPhotoDecoder decoder;
    const Surface red(5, 3, Rgb(200, 10, 10));
    WriteBitmap(files / "aunt.old.bmp", red);
    const std::string bytes = files.Read("aunt.old.bmp");
    IncomingPhoto photo(files / "aunt.old.bmp", decoder);
    EXPECT_EQ(photo.Size(), (BitmapSize{5, 3}));
    std::filesystem::remove(files / "aunt.old.bmp");
    WriteBitmap(files / "aunt.old.bmp", Surface(40, 30));
    EXPECT_EQ(photo.Picture(), red);
    EXPECT_TRUE(photo.CopyTo(files / "copy.bmp"));
    EXPECT_FALSE(photo.CopyTo(files / "copy.bmp"));
    EXPECT_EQ(files.Read("copy.bmp"), bytes);
    EXPECT_EQ(photo.Stem(), "aunt");
    EXPECT_EQ(IncomingPhoto(files.Write("my.aunt.jpg", "\xFF\xD8\xFF"), decoder).Stem(), "my-aunt");
}

}  // namespace
}  // namespace vendrel
