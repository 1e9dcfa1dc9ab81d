#include "export/heif_photo.h"

#include <libheif/heif.h>

#include <QColorSpace>
#include <algorithm>
#include <array>
#include <utility>

#include "export/deep_planes.h"

namespace vendrel {
namespace {

template <auto Release>
struct Releaser {
    template <class T>
    void operator()(T* held) const {
        Release(held);
    }
};
using Context = std::unique_ptr<heif_context, Releaser<heif_context_free>>;
using Handle = std::unique_ptr<heif_image_handle, Releaser<heif_image_handle_release>>;
using Options = std::unique_ptr<heif_decoding_options, Releaser<heif_decoding_options_free>>;
using Picture = std::unique_ptr<heif_image, Releaser<heif_image_release>>;
using CodedColors =
    std::unique_ptr<heif_color_profile_nclx, Releaser<heif_nclx_color_profile_free>>;

void Require(const heif_error& answer) {
    switch (answer.code) {
        case heif_error_Ok:
            return;
        case heif_error_Memory_allocation_error:
            ThrowTooLargeForMemory();
        case heif_error_Unsupported_feature:
        case heif_error_Unsupported_filetype:
        case heif_error_Plugin_loading_error:
            throw Error(
                "is a kind of HEIC or AVIF photo that cannot be read here. Open it in a photo "
                "program and save it as JPEG or PNG.");
        default:
            ThrowDamaged();
    }
}

QColorSpace::Primaries PrimariesOf(const heif_color_profile_nclx& colors) {
    switch (colors.color_primaries) {
        case heif_color_primaries_SMPTE_EG_432_1:
        case heif_color_primaries_SMPTE_RP_431_2:
            return QColorSpace::Primaries::DciP3D65;
        default:
            return QColorSpace::Primaries::SRgb;
    }
}

// The curves of television are as good as sRGB's.
QColorSpace SpaceOf(const heif_color_profile_nclx& colors) {
    using Curve = QColorSpace::TransferFunction;
    const QColorSpace::Primaries primaries = PrimariesOf(colors);
    switch (colors.transfer_characteristics) {
        case heif_transfer_characteristic_linear:
            return {primaries, Curve::Linear};
        case heif_transfer_characteristic_ITU_R_BT_470_6_System_M:
            return {primaries, Curve::Gamma, 2.2F};
        case heif_transfer_characteristic_ITU_R_BT_470_6_System_B_G:
            return {primaries, Curve::Gamma, 2.8F};
        default:
            return {primaries, Curve::SRgb};
    }
}

QColorSpace ColorsOf(const heif_image_handle* photo) {
    if (const std::size_t size = heif_image_handle_get_raw_color_profile_size(photo); size > 0) {
        QByteArray profile(static_cast<qsizetype>(size), '\0');
        Require(heif_image_handle_get_raw_color_profile(photo, profile.data()));
        return QColorSpace::fromIccProfile(profile);
    }
    heif_color_profile_nclx* found = nullptr;
    if (heif_image_handle_get_nclx_color_profile(photo, &found).code != heif_error_Ok) {
        return {};
    }
    const CodedColors colors(found);
    return SpaceOf(*colors);
}

class HeifPhoto final : public PhotoSource {
  public:
    explicit HeifPhoto(PhotoBytes file) : context_(heif_context_alloc()) {
        Require(heif_context_read_from_memory_without_copy(context_.get(), file.data(), file.size(),
                                                           nullptr));
        heif_image_handle* photo = nullptr;
        Require(heif_context_get_primary_image_handle(context_.get(), &photo));
        photo_.reset(photo);
        if (std::min(Size().Width, Size().Height) < 1) {
            ThrowDamaged();
        }
    }

    [[nodiscard]] BitmapSize Size() const override {
        return {heif_image_handle_get_width(photo_.get()),
                heif_image_handle_get_height(photo_.get())};
    }
    // Turned by the decoder, which goes by the file's own notes; those of EXIF do not count.
    [[nodiscard]] QImageIOHandler::Transformations Turn() const override {
        return QImageIOHandler::TransformationNone;
    }
    // The result beside the planes of brightness and color that it is made from.
    [[nodiscard]] std::size_t MemoryFor(int divisor) const override {
        const std::size_t pixels =
            static_cast<std::size_t>(Size().Width) * static_cast<std::size_t>(Size().Height);
        if (IsDeep()) {
            return pixels * 9 + pixels * 3 / static_cast<std::size_t>(divisor * divisor);
        }
        return pixels * (HasAlpha() ? 8 : 6) * (BitsPerChannel() > 8 ? 2 : 1);
    }

    [[nodiscard]] QImage Read(int divisor, const ReadProgress& progress) override {
        QImage image =
            IsDeep()
                ? ReadDeep(divisor)
                : Wrapped(Decoded(heif_colorspace_RGB, HasAlpha() ? heif_chroma_interleaved_RGBA
                                                                  : heif_chroma_interleaved_RGB));
        if (progress) {
            progress(100);
        }
        image.setColorSpace(ColorsOf(photo_.get()));
        return image;
    }

  private:
    [[nodiscard]] heif_image* Decoded(heif_colorspace space, heif_chroma chroma) const {
        const Options options(heif_decoding_options_alloc());
        options->convert_hdr_to_8bit = IsDeep() ? 0 : 1;
        options->strict_decoding = 1;
        heif_image* decoded = nullptr;
        Require(heif_decode_image(photo_.get(), &decoded, space, chroma, options.get()));
        return decoded;
    }

    // With transparency it takes the other way: that of a telephone has none.
    [[nodiscard]] bool IsDeep() const { return BitsPerChannel() > 8 && !HasAlpha(); }
    [[nodiscard]] int BitsPerChannel() const {
        return heif_image_handle_get_luma_bits_per_pixel(photo_.get());
    }

    // Brought to eight bits by the decoder, a photo of ten would be held in three depths at once.
    [[nodiscard]] QImage ReadDeep(int divisor) const {
        const Picture decoded(Decoded(heif_colorspace_RGB, heif_chroma_444));
        std::array<DeepPlane, 3> planes;
        constexpr std::array kChannels = {heif_channel_R, heif_channel_G, heif_channel_B};
        for (std::size_t i = 0; i < planes.size(); ++i) {
            DeepPlane& plane = planes[i];
            plane.Bytes =
                heif_image_get_plane_readonly(decoded.get(), kChannels[i], &plane.RowBytes);
            plane.Bits = heif_image_get_bits_per_pixel_range(decoded.get(), kChannels[i]);
            const BitmapSize size{heif_image_get_width(decoded.get(), kChannels[i]),
                                  heif_image_get_height(decoded.get(), kChannels[i])};
            if (plane.Bytes == nullptr || plane.Bits <= 8 || plane.Bits > 16 || size != Size()) {
                ThrowDamaged();
            }
        }
        return Shrunk(planes, Size(), divisor);
    }

    [[nodiscard]] bool HasAlpha() const {
        return heif_image_handle_has_alpha_channel(photo_.get()) != 0;
    }

    // Without a copy: the picture goes with the last image that shows it.
    [[nodiscard]] QImage Wrapped(heif_image* decoded) const {
        int rowBytes = 0;
        const std::uint8_t* const pixels =
            heif_image_get_plane_readonly(decoded, heif_channel_interleaved, &rowBytes);
        const bool premultiplied = heif_image_handle_is_premultiplied_alpha(photo_.get()) != 0;
        const QImage::Format format = !HasAlpha()     ? QImage::Format_RGB888
                                      : premultiplied ? QImage::Format_RGBA8888_Premultiplied
                                                      : QImage::Format_RGBA8888;
        const auto release = [](void* held) {
            heif_image_release(static_cast<const heif_image*>(held));
        };
        return {pixels,
                heif_image_get_width(decoded, heif_channel_interleaved),
                heif_image_get_height(decoded, heif_channel_interleaved),
                rowBytes,
                format,
                release,
                decoded};
    }

    Context context_;
    Handle photo_;
};

}  // namespace

bool IsHeif(PhotoBytes file) {
    constexpr std::size_t kBrands = 4096;
    constexpr std::size_t kShortest = 12;
    if (file.size() < kShortest) {
        return false;
    }
    const auto answer = heif_check_filetype(
        file.data(), static_cast<int>(std::min<std::size_t>(file.size(), kBrands)));
    return answer == heif_filetype_yes_supported || answer == heif_filetype_maybe;
}

std::unique_ptr<PhotoSource> OpenHeifPhoto(PhotoBytes file) {
    return std::make_unique<HeifPhoto>(file);
}

}  // namespace vendrel
