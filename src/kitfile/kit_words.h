#pragma once

#include <array>
#include <string_view>

#include "plan/plan_sketch.h"
#include "shell/settings.h"

namespace vendrel {

/// A choice as kit files spell it.
template <class Value>
struct KitWord {
    std::string_view Word;
    Value Meaning;
};

inline constexpr auto kLevelWords =
    std::to_array<KitWord<Difficulty>>({{"easy", Difficulty::Easy},
                                        {"medium", Difficulty::Medium},
                                        {"difficult", Difficulty::Difficult}});
inline constexpr auto kSampleWords =
    std::to_array<KitWord<Sampling>>({{"average", Sampling::Average}, {"pixel", Sampling::Pixel}});
inline constexpr auto kMatchWords =
    std::to_array<KitWord<Matching>>({{"plain", Matching::Plain}, {"eye", Matching::ByEye}});
inline constexpr auto kFitWords =
    std::to_array<KitWord<PhotoFit>>({{"keep", PhotoFit::Keep},
                                      {"crop", PhotoFit::Crop},
                                      {"top", PhotoFit::CropTop},
                                      {"stretch", PhotoFit::Stretch}});
inline constexpr auto kSymbolWords =
    std::to_array<KitWord<SymbolStyle>>({{"letters", SymbolStyle::Letters},
                                         {"clear", SymbolStyle::Clear},
                                         {"numbers", SymbolStyle::Numbers},
                                         {"signs", SymbolStyle::Signs},
                                         {"mine", SymbolStyle::Mine}});
inline constexpr auto kLineWords = std::to_array<KitWord<LineShape>>(
    {{"byKit", LineShape::ByKit}, {"smooth", LineShape::Smooth}, {"steps", LineShape::Steps}});

template <class Words, class Value>
[[nodiscard]] std::string_view WordOf(const Words& words, const Value& value) {
    for (const auto& word : words) {
        if (word.Meaning == value) {
            return word.Word;
        }
    }
    return {};
}

}  // namespace vendrel
