#include "convert/dib_section.h"

#include <algorithm>
#include <cstddef>
#include <limits>
#include <new>
#include <random>
#include <vector>

#include "support/error.h"
#include "support/list.h"
#include "support/rounding.h"

namespace vendrel {
namespace {

template <class Source, class Target>
void CopyPart(const Source& source, const PicturePart& part, Target& target, int x, int y) {
    for (int row = 0; row < part.Height; ++row) {
        for (int column = 0; column < part.Width; ++column) {
            const Color color = source.Get(part.X + column, part.Y + row);
            if (color != kNoColor) {
                target.Set(x + column, y + row, color);
            }
        }
    }
}

/// Where a target pixel falls between two source pixels of one axis.
struct Blend {
    std::size_t Near = 0;
    std::size_t Far = 0;
    float Part = 0;  // of the far one
};

// The far pixel is the near one at the edge, which only a source of a single pixel reaches.
std::vector<Blend> BlendsOf(int from, int to) {
    const float scale = static_cast<float>(from - 1) / static_cast<float>(to);
    std::vector<Blend> blends(static_cast<std::size_t>(to));
    for (int i = 0; i < to; ++i) {
        const float at = static_cast<float>(i) * scale;
        const int low = std::min(static_cast<int>(at), from - 1);
        const int high = std::min(low + 1, from - 1);
        At(blends, i) = {static_cast<std::size_t>(low), static_cast<std::size_t>(high),
                         at - static_cast<float>(low)};
    }
    return blends;
}

int Mix(int near, int far, float part) {
    return RoundHalfEven((1.0F - part) * static_cast<float>(near) + part * static_cast<float>(far));
}

}  // namespace

BitmapInfoHeader MakeInfoHeader(int width, int height) {
    const std::int64_t scanLine = (std::int64_t{width} * 3 + 3) & ~std::int64_t{3};
    if (scanLine * height > std::numeric_limits<std::int32_t>::max() - 54) {
        throw OverflowError("A picture of " + std::to_string(width) + " x " +
                            std::to_string(height) +
                            " pixels is more than a bitmap can hold. Make a smaller one.");
    }
    BitmapInfoHeader header;
    header.Width = width;
    header.Height = height;
    header.SizeImage = static_cast<std::uint32_t>(scanLine * height);
    return header;
}

bool cDIBSection::Create(int width, int height) {
    ClearUp();
    if (!CreateDIB(width, height)) {
        return false;
    }
    Cls();
    return true;
}

bool cDIBSection::CreateDIB(int width, int height) {
    if (width < 1 || height < 1) {
        return false;
    }
    const std::int64_t scanLine = (std::int64_t{width} * 3 + 3) & ~std::int64_t{3};
    if (width * scanLine > std::numeric_limits<std::int32_t>::max()) {
        throw OverflowError("A picture " + std::to_string(width) +
                            " pixels wide is wider than can be held. Make a narrower one.");
    }
    const BitmapInfoHeader header = MakeInfoHeader(width, height);
    bits_.reset(new (std::nothrow) std::uint8_t[header.SizeImage]);
    if (!bits_) {
        return false;
    }
    header_ = header;
    return true;
}

bool cDIBSection::CreateFromPicture(const Surface& picture) {
    if (!Create(picture.Width(), picture.Height())) {
        return false;
    }
    LoadPictureBlt(picture);
    return true;
}

void cDIBSection::ClearUp() {
    bits_.reset();
    header_ = {};
}

PicturePart cDIBSection::Whole(const PicturePart& part) const {
    return {part.X, part.Y, part.Width == -1 ? Width() : part.Width,
            part.Height == -1 ? Height() : part.Height};
}

void cDIBSection::LoadPictureBlt(const DibView& source, const PicturePart& part) {
    const DibView target = hdc();
    CopyPart(source, Whole(part), target, 0, 0);
}

void cDIBSection::LoadPictureBlt(const Surface& source, const PicturePart& part) {
    const DibView target = hdc();
    CopyPart(source, Whole(part), target, 0, 0);
}

void cDIBSection::PaintPicture(const DibView& target, int x, int y, const PicturePart& part) const {
    CopyPart(hdc(), Whole(part), target, x, y);
}

void cDIBSection::PaintPicture(Surface& target, int x, int y, const PicturePart& part) const {
    CopyPart(hdc(), Whole(part), target, x, y);
}

void cDIBSection::Cls() {
    std::fill_n(bits_.get(), header_.SizeImage, std::uint8_t{0});
}

void cDIBSection::RandomiseBits() {
    std::minstd_rand random(std::random_device{}());
    std::generate_n(bits_.get(), header_.SizeImage,
                    [&random] { return static_cast<std::uint8_t>(random() >> 8); });
}

std::unique_ptr<cDIBSection> cDIBSection::Resample(int newHeight, int newWidth) const {
    auto resampled = std::make_unique<cDIBSection>();
    if (!bits_ || !resampled->Create(newWidth, newHeight)) {
        return nullptr;
    }
    if (newWidth == Width() && newHeight == Height()) {
        resampled->LoadPictureBlt(hdc());
    } else {
        ResampleDib(*resampled);
    }
    return resampled;
}

// Downwards first and rounded, then across: the order shows in the last bit.
void cDIBSection::ResampleDib(cDIBSection& target) const {
    const std::vector<Blend> columns = BlendsOf(Width(), target.Width());
    const std::vector<Blend> rows = BlendsOf(Height(), target.Height());
    const auto stride = static_cast<std::size_t>(BytesPerScanLine());
    std::uint8_t* out = target.bits_.get();
    for (const Blend& row : rows) {
        const std::uint8_t* near = bits_.get() + row.Near * stride;
        const std::uint8_t* far = bits_.get() + row.Far * stride;
        std::uint8_t* pixel = out;
        for (const Blend& column : columns) {
            for (std::size_t channel = 0; channel < 3; ++channel) {
                const std::size_t left = 3 * column.Near + channel;
                const std::size_t right = 3 * column.Far + channel;
                const int blended = Mix(Mix(near[left], far[left], row.Part),
                                        Mix(near[right], far[right], row.Part), column.Part);
                *pixel++ = static_cast<std::uint8_t>(std::clamp(blended, 0, 255));
            }
        }
        out += target.BytesPerScanLine();
    }
}

bool cDIBSection::CopyToClipboard(Ui& screen, ClipboardFormat format) const {
    if (format == ClipboardFormat::Dib) {
        screen.ShowMessage("",
                           "I don't know how to put a DIB on the clipboard! Copy as bitmap "
                           "instead!!!");
        return false;
    }
    if (!bits_) {
        return false;
    }
    Surface picture(Width(), Height());
    PaintPicture(picture);
    return screen.PutOnClipboard(picture);
}

}  // namespace vendrel
