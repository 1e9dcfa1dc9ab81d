#include <gmock/gmock.h>

#include "program/studio.h"

namespace vendrel {
namespace {

using test::Studio;
using testing::HasSubstr;
using testing::Not;
using testing::UnorderedElementsAre;

// Takes every photo for a square portrait; the letters in the file settle what is on it.
class PortraitDecoder final : public PhotoDecoder {
  public:
    [[nodiscard]] std::vector<std::string> Endings() const override { return {"jpg"}; }
    [[nodiscard]] BitmapSize Size(const std::filesystem::path& /*photo*/) const override {
        return {240, 240};
    }
    [[nodiscard]] Surface Decode(const std::filesystem::path& photo,
                                 const ReadProgress& progress) const override {
        progress(50);
        return test::SmallPhoto(240, 240, static_cast<int>(std::filesystem::file_size(photo)));
    }
};

double Stretch(const std::string& json) {
    const std::string key = "\"stretchPercent\": ";
    return std::stod(json.substr(json.find(key) + key.size()));
}

class KitPhotos : public ::testing::Test {
  protected:
    KitPhotos() { studio_.Decoder = &decoder_; }

    PortraitDecoder decoder_;
    Studio studio_;
};

TEST_F(KitPhotos, APhotoOfAnotherFormatIsKeptAsABitmap) {
    studio_.Files.Write("my.aunt.jpg", "12345");
    ASSERT_EQ(studio_.Kit({studio_.Path("my.aunt.jpg"), "--outputs", "painting"}), 0)
        << studio_.Err;
    EXPECT_THAT(studio_.Names("Pictures"), UnorderedElementsAre("my-aunt.bmp"));
    EXPECT_THAT(studio_.Names("Results"),
                UnorderedElementsAre("my-aunt Easy Painting.BMP", "my-aunt Easy Kit.json"));
    EXPECT_THAT(studio_.Err, HasSubstr("Reading my.aunt.jpg\n"));
    EXPECT_THAT(studio_.Out, HasSubstr("stretched by 0.0 %, its shape kept"));
}

TEST_F(KitPhotos, ASquarePortraitIsFittedAsAskedAndOneCropHasOneName) {
    studio_.Files.Write("aunt.jpg", "12345");
    struct Case {
        const char* Fit;
        const char* Name;
        double Least;  // percent of stretch
        double Most;
    };
    for (const std::string difficulty : {"easy", "medium", "difficult"}) {
        for (const Case& c : {Case{"keep", "aunt", 0, 0},
                              {"stretch", "aunt", 70, 90},
                              {"crop", "aunt crop", 0, 0.5}}) {
            ASSERT_EQ(studio_.Kit({studio_.Path("aunt.jpg"), "--fit", c.Fit, "--difficulty",
                                   difficulty, "--outputs", "grid", "--replace-grid", "--json"}),
                      0)
                << studio_.Err;
            EXPECT_THAT(studio_.Out, HasSubstr("\"fit\": \"" + std::string(c.Fit) + "\""));
            EXPECT_THAT(studio_.Out, HasSubstr("\"name\": \"" + std::string(c.Name) + "\""));
            EXPECT_GE(Stretch(studio_.Out), c.Least);
            EXPECT_LE(Stretch(studio_.Out), c.Most);
            EXPECT_EQ(studio_.Kit({studio_.Path("aunt.jpg"), "--fit", c.Fit, "--difficulty",
                                   difficulty, "--outputs", "sheet", "--from-grid"}),
                      0)
                << studio_.Err;
            EXPECT_THAT(studio_.Out + studio_.Err, Not(HasSubstr("saved for")));
        }
    }
    EXPECT_THAT(studio_.Names("Pictures"), UnorderedElementsAre("aunt.bmp", "aunt crop.bmp"));
    WriteBitmap(studio_.Files / "wide.bmp", test::SmallPhoto(885, 495));
    ASSERT_EQ(studio_.Kit({studio_.Path("wide.bmp"), "--json"}), 0);
    EXPECT_THAT(studio_.Out, HasSubstr("\"fit\": \"none\""));
}

TEST_F(KitPhotos, ACropIsAPhotoOfItsOwnAndNotStretched) {
    studio_.Files.Write("aunt.jpg", "12345");
    const std::vector<std::string> words = {studio_.Path("aunt.jpg"), "--crop", "top", "--json"};
    ASSERT_EQ(studio_.Kit(words), 0) << studio_.Err;
    EXPECT_LT(Stretch(studio_.Out), 0.5);
    EXPECT_THAT(studio_.Out, HasSubstr("\"name\": \"aunt crop\""));
    EXPECT_THAT(studio_.Out, Not(HasSubstr("stretched")));
    EXPECT_EQ(studio_.Kit(words), 0) << "the same crop again";
    EXPECT_THAT(studio_.Names("Pictures"), UnorderedElementsAre("aunt.bmp", "aunt crop.bmp"));
    EXPECT_THAT(studio_.Names("Saved Stipples"), UnorderedElementsAre("aunt crop-Easy.stp"));
}

TEST_F(KitPhotos, DifferentPhotosOfOneNameAreNumberedAndTheSameOneIsRefused) {
    studio_.Files.Write("one/aunt.jpg", "1");
    studio_.Files.Write("two/aunt.jpg", "1234567890");
    EXPECT_EQ(studio_.Kit({studio_.Path("one/aunt.jpg"), studio_.Path("two/aunt.jpg"),
                           studio_.Path("one/aunt.jpg"), "--outputs", "painting"}),
              1);
    EXPECT_THAT(studio_.Err, HasSubstr("named \"aunt\" too"));
    EXPECT_THAT(studio_.Names("Results"),
                UnorderedElementsAre("aunt Easy Painting.BMP", "aunt 2 Easy Painting.BMP",
                                     "aunt Easy Kit.json", "aunt 2 Easy Kit.json"));
}

TEST_F(KitPhotos, WithoutDecodersOnlyBitmapsAreMade) {
    studio_.Decoder = nullptr;
    studio_.Files.Write("aunt.jpg", "12345");
    studio_.AddPhoto("uncle.bmp");
    EXPECT_EQ(studio_.Kit({studio_.Path("aunt.jpg"), studio_.Path("uncle.bmp")}), 1);
    EXPECT_THAT(studio_.Err, HasSubstr("aunt.jpg: "));
    EXPECT_THAT(studio_.Err, HasSubstr("this build reads .bmp only. Save the photo as .bmp."));
    EXPECT_THAT(studio_.Names("Pictures"), UnorderedElementsAre("uncle.bmp"));
}

}  // namespace
}  // namespace vendrel
