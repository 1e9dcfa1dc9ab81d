#include "convert/child_decoder.h"

#include <gmock/gmock.h>

#include "shell/ui.h"
#include "support/error.h"
#include "support/temp_folder.h"

namespace vendrel {
namespace {

using testing::HasSubstr;

// Photos read by a shell script.
class ChildDecoderTest : public ::testing::Test {
  protected:
    [[nodiscard]] ChildDecoder DecoderOf(const std::string& script) const {
        const auto program = files_.Write("decoder", "#!/bin/sh\n" + script + "\n");
        std::filesystem::permissions(program, std::filesystem::perms::owner_all);
        return ChildDecoder(program);
    }
    [[nodiscard]] std::string RefusalOf(const std::string& script) const {
        try {
            static_cast<void>(DecoderOf(script).Decode(photo_, {}));
        } catch (const FormatError& error) {
            return error.what();
        }
        return "no complaint";
    }

    test::TempFolder files_;
    std::filesystem::path photo_ = files_.Write("aunt.jpg", "abc");
};

TEST_F(ChildDecoderTest, EveryEndOfTheChildBecomesASentenceAboutThePhoto) {
    const std::pair<const char*, const char*> cases[] = {
        {"echo 'refused is no photo. Choose another.'", "aunt.jpg: is no photo. Choose another."},
        {"echo size 3 2; kill -SEGV $$", "aunt.jpg: is damaged"},
        {"kill -ABRT $$", "aunt.jpg: is damaged"},
        {"kill -XCPU $$", "aunt.jpg: takes longer to read than 10 seconds"},
        {"kill -KILL $$", "aunt.jpg: needs more memory than is free"},
        {"exit 0", "aunt.jpg: is damaged"},
        {"echo picture 99999 1; echo picture -1 -1; echo nonsense", "aunt.jpg: is damaged"}};
    for (const auto& [script, sentence] : cases) {
        EXPECT_THAT(RefusalOf(script), HasSubstr(sentence)) << script;
    }
}

TEST_F(ChildDecoderTest, OneChildGivesSizeAndPicture) {
    // The photo's own bytes as the first pixel.
    const ChildDecoder decoder = DecoderOf(
        "echo started >>\"${0%/*}/log\"; echo size 30 20; cat >&3; echo percent 50; echo picture 3 "
        "2");
    EXPECT_EQ(decoder.Size(photo_), (BitmapSize{30, 20}));
    EXPECT_EQ(decoder.Decode(photo_, [](int) {}).Get(0, 0), Rgb('a', 'b', 'c'));
    EXPECT_EQ(decoder.Size(photo_), (BitmapSize{30, 20}));
    EXPECT_EQ(std::filesystem::file_size(files_ / "log"), 8U);
    files_.Write("aunt.jpg", "another");
    EXPECT_EQ(decoder.Decode(photo_, {}).Width(), 3);
    EXPECT_EQ(std::filesystem::file_size(files_ / "log"), 16U);
}

TEST_F(ChildDecoderTest, StoppingEndsAChildThatNeverAnswers) {
    const ChildDecoder decoder = DecoderOf("exec tail -f /dev/null");
    EXPECT_THROW(static_cast<void>(decoder.Decode(photo_, [](int) { throw Stop{}; })), Stop);
}

TEST_F(ChildDecoderTest, WhatCannotBeOpenedIsAFileError) {
    EXPECT_THROW(static_cast<void>(DecoderOf("exit 0").Size(files_ / "missing.jpg")), FileError);
    EXPECT_THROW(static_cast<void>(DecoderOf("exit 0").Size(files_.Path())), FileError);
    EXPECT_THROW(static_cast<void>(ChildDecoder(files_ / "nowhere").Size(photo_)), FileError);
}

}  // namespace
}  // namespace vendrel
