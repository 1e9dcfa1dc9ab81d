#include "eye/seen_table.h"

#include <algorithm>
#include <cmath>

#include "eye/lab.h"
#include "support/in_parts.h"

namespace vendrel {
namespace {

// What a formula asks of all paints at once, one list per quantity: eight at a time fit the
// processor's registers, so there is neither a branch nor a call below.
struct PaintLists {
    explicit PaintLists(std::span<const Color> paints) {
        for (const Color paint : paints) {
            const Lab lab = LabOf(paint);
            L.push_back(static_cast<float>(lab.L));
            A.push_back(static_cast<float>(lab.A));
            B.push_back(static_cast<float>(lab.B));
            C.push_back(static_cast<float>(ChromaOf(lab)));
        }
    }
    std::vector<float> L;
    std::vector<float> A;
    std::vector<float> B;
    std::vector<float> C;
};

struct Quick {
    float L;
    float A;
    float B;
    float C;
};

// Keeps quotients of grays finite.
constexpr float kTiny = 1e-12F;

inline float SeventhPowerShare(float chroma) {
    const float scaled = chroma * (1.0F / 25);
    const float cube = scaled * scaled * scaled;
    const float power = cube * cube * scaled;
    return std::sqrt(power / (power + 1));
}

// e^-x for x of 0 and more: below 1e-5 from the true value, 0 beyond 8.
inline float Fading(float x) {
    const float part = std::min(x, 8.0F) * (1.0F / 64);
    float e = 1 - part * (1 - part * (0.5F - part * (1.0F / 6 - part * (1.0F / 24))));
    e *= e;
    e *= e;
    e *= e;
    e *= e;
    e *= e;
    e *= e;
    return x > 8 ? 0.0F : e;
}

// sin of 0..1.05
inline float SmallSine(float x) {
    const float square = x * x;
    return x * (1 - square * (1.0F / 6 - square * (1.0F / 120 - square * (1.0F / 5040))));
}

// The square of the angle, in degrees, between a direction and that of 275 degrees; beyond a right
// angle any large number will do.
inline float SquaredAngleToBlue(float cosine, float sine) {
    constexpr float kCos275 = 0.0871557427F;
    constexpr float kSin275 = -0.9961946981F;
    const float along = cosine * kCos275 + sine * kSin275;
    const float across = sine * kCos275 - cosine * kSin275;
    // atan of a quotient of at most 1, then of its inverse by the complement.
    const float small = std::min(std::abs(along), std::abs(across));
    const float large = std::max(std::abs(along), std::abs(across)) + kTiny;
    const float q = small / large;
    const float s = q * q;
    const float atan =
        q * (0.99997726F +
             s * (-0.33262347F +
                  s * (0.19354346F + s * (-0.11643287F + s * (0.05265332F - s * 0.01172120F)))));
    const float angle = std::abs(across) > std::abs(along) ? 1.57079633F - atan : atan;
    const float degrees = angle * 57.2957795F;
    return along > 0 ? degrees * degrees : 32400.0F;
}

// 1 - 0.17 cos(h - 30) + 0.24 cos 2h + 0.32 cos(3h + 6) - 0.20 cos(4h - 63)
inline float HueWeight(float c, float s) {
    const float c2 = c * c - s * s;
    const float s2 = 2 * c * s;
    const float c3 = c2 * c - s2 * s;
    const float s3 = s2 * c + c2 * s;
    const float c4 = c2 * c2 - s2 * s2;
    const float s4 = 2 * c2 * s2;
    return 1 - 0.17F * (0.866025404F * c + 0.5F * s) + 0.24F * c2 +
           0.32F * (0.994521895F * c3 - 0.104528463F * s3) -
           0.20F * (0.453990500F * c4 + 0.891006524F * s4);
}

// The formula of SeenDifference without angles: hues as directions, their mean as the bisector.
inline float SeenDifferenceOf(const Quick& color, const Quick& paint) {
    const float stretch = 1.5F - 0.5F * SeventhPowerShare((color.C + paint.C) * 0.5F);
    const float a1 = color.A * stretch;
    const float a2 = paint.A * stretch;
    const float c1 = std::sqrt(a1 * a1 + color.B * color.B);
    const float c2 = std::sqrt(a2 * a2 + paint.B * paint.B);
    const float cosSum = a1 * c2 + a2 * c1;
    const float sinSum = color.B * c2 + paint.B * c1;
    const float cross = a1 * paint.B - a2 * color.B;
    const float length = std::sqrt(cosSum * cosSum + sinSum * sinSum);
    // Opposite hues have no bisector; any direction square to them is as good.
    const float norm = 1 / (length + kTiny);
    const float cosine = cosSum * norm;
    const float sine = sinSum * norm;
    // 4 c1 c2 sin^2 of half the angle is 2 (c1 c2 - dot), written so that nothing cancels.
    const float da = a1 * c2 - a2 * c1;
    const float db = color.B * c2 - paint.B * c1;
    const float step = std::sqrt((da * da + db * db) / (c1 * c2 + kTiny));
    const float hueStep = cross < 0 ? -step : step;
    const float chroma = (c1 + c2) * 0.5F;
    const float lightness = (color.L + paint.L) * 0.5F - 50;
    const float square = lightness * lightness;
    const float byLightness = (paint.L - color.L) / (1 + 0.015F * square / std::sqrt(20 + square));
    const float byChroma = (c2 - c1) / (1 + 0.045F * chroma);
    const float byHue = hueStep / (1 + 0.015F * chroma * HueWeight(cosine, sine));
    const float blueness = Fading(SquaredAngleToBlue(cosine, sine) * (1.0F / 625));
    const float turn = 2 * SeventhPowerShare(chroma) * SmallSine(1.04719755F * blueness);
    const float sum =
        byLightness * byLightness + byChroma * byChroma + byHue * byHue - turn * byChroma * byHue;
    return std::sqrt(std::max(sum, 0.0F)) + 0.5F * std::max(paint.C - color.C, 0.0F);
}

void FillRow(const Quick& color, const PaintLists& paints, std::span<Seen> row) {
    const float* const l = paints.L.data();
    const float* const a = paints.A.data();
    const float* const b = paints.B.data();
    const float* const c = paints.C.data();
    Seen* const to = row.data();
    const std::size_t count = row.size();
    for (std::size_t i = 0; i < count; ++i) {
        const float seen = SeenDifferenceOf(color, {l[i], a[i], b[i], c[i]});
        // Differences are not negative, so cutting off rounds; a call would keep them one by one.
        constexpr float kHalf = 0.5F;
        const float rounded = seen * kSeenUnit + kHalf;
        to[i] = static_cast<Seen>(static_cast<int>(rounded));
    }
}

}  // namespace

SeenTable::SeenTable(std::span<const Color> colors, std::span<const Color> paints)
    : colors_(static_cast<int>(colors.size())),
      paints_(paints.size()),
      seen_(colors.size() * paints.size()) {
    const PaintLists lists(paints);
    InParts(colors_, [&](Slice part) {
        for (auto i = static_cast<std::size_t>(part.First); i < static_cast<std::size_t>(part.End);
             ++i) {
            const Lab lab = LabOf(colors[i]);
            FillRow({static_cast<float>(lab.L), static_cast<float>(lab.A),
                     static_cast<float>(lab.B), static_cast<float>(ChromaOf(lab))},
                    lists, {seen_.data() + i * paints_, paints_});
        }
    });
}

int SeenTable::NearestTo(int color) const {
    const std::span<const Seen> row = Of(color);
    return static_cast<int>(std::ranges::min_element(row) - row.begin());
}

DistinctColors FindDistinctColors(std::span<const Color> stipples) {
    // Color and place in one number: sorted, every stipple follows the others of its color.
    std::vector<std::uint64_t> sorted;
    sorted.reserve(stipples.size());
    for (std::size_t i = 0; i < stipples.size(); ++i) {
        sorted.push_back(static_cast<std::uint64_t>(stipples[i]) << 32U | i);
    }
    std::ranges::sort(sorted);
    DistinctColors distinct;
    distinct.IndexOf.resize(stipples.size());
    for (const std::uint64_t entry : sorted) {
        const auto color = static_cast<Color>(entry >> 32U);
        if (distinct.Colors.empty() || distinct.Colors.back() != color) {
            distinct.Colors.push_back(color);
        }
        distinct.IndexOf[entry & 0xFFFFFFFFU] = static_cast<int>(distinct.Colors.size()) - 1;
    }
    return distinct;
}

}  // namespace vendrel
