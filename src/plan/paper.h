#pragma once

#include <array>
#include <string>
#include <string_view>

namespace vendrel {

/// Width and height in millimetres.
struct SizeMm {
    double Width = 0;
    double Height = 0;
    bool operator==(const SizeMm&) const = default;
};

inline constexpr double kMmPerInch = 25.4;

/// What the plan is printed on.
struct Paper {
    SizeMm Size;          // upright; none: one page as large as the canvas
    bool Inches = false;  // who prints on it reads inches

    [[nodiscard]] constexpr bool IsCanvas() const { return Size.Width <= 0; }
    bool operator==(const Paper&) const = default;

    static const Paper A5, A4, A3, A2, A1, Letter, Legal, Tabloid, Canvas;
};
inline constexpr Paper Paper::A5{{148, 210}};
inline constexpr Paper Paper::A4{{210, 297}};
inline constexpr Paper Paper::A3{{297, 420}};
inline constexpr Paper Paper::A2{{420, 594}};
inline constexpr Paper Paper::A1{{594, 841}};
inline constexpr Paper Paper::Letter{{215.9, 279.4}, true};
inline constexpr Paper Paper::Legal{{215.9, 355.6}, true};
inline constexpr Paper Paper::Tabloid{{279.4, 431.8}, true};
inline constexpr Paper Paper::Canvas{};

struct NamedPaper {
    std::string_view Name;
    Paper Meaning;
};
/// In the order in which they are offered.
inline constexpr std::array<NamedPaper, 9> kNamedPapers = {{{"A4", Paper::A4},
                                                            {"Letter", Paper::Letter},
                                                            {"A3", Paper::A3},
                                                            {"A5", Paper::A5},
                                                            {"A2", Paper::A2},
                                                            {"A1", Paper::A1},
                                                            {"Legal", Paper::Legal},
                                                            {"Tabloid", Paper::Tabloid},
                                                            {"canvas", Paper::Canvas}}};

/// Either side of paper that has no name, in millimetres.
inline constexpr double kSmallestPaperMm = 140;
inline constexpr double kLargestPaperMm = 2000;

/// Paper of that size, either way up.
[[nodiscard]] Paper PaperOf(SizeMm size, bool inches);

/// What the pages in front of the plan are printed on, upright: the plan's paper unless that is the
/// canvas or too large to be leafed through.
[[nodiscard]] Paper FrontPaperFor(const Paper& plan, bool inches);

/// "40.0 × 30.0 cm" or "15.7 × 11.8 in".
[[nodiscard]] std::string SizeText(const SizeMm& size, bool inches);

/// How many millimetres a pixel of a picture takes that is fitted into such a canvas.
[[nodiscard]] double FittedPixelMm(const SizeMm& canvas, int width, int height);

}  // namespace vendrel
