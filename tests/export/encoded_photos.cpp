#include "export/encoded_photos.h"

#include <QBuffer>
#include <QImageWriter>
#include <algorithm>
#include <cstring>
#include <memory>
#include <stdexcept>

namespace vendrel::test {
namespace {

void Require(bool done, std::string_view format) {
    if (!done) {
        throw std::runtime_error("no encoder for " + std::string(format));
    }
}

// Codes of 8 bits all along: the table is cleared before it needs more.
std::string EncodedGif(const QImage& image) {
    using namespace std::string_literals;
    const auto side = [](int pixels) {
        return std::string{static_cast<char>(pixels & 255), static_cast<char>(pixels >> 8)};
    };
    const std::string size = side(image.width()) + side(image.height());
    std::string file = "GIF89a" + size + "\xF6\0\0"s;
    for (int grey = 0; grey < 256; grey += 2) {
        file += std::string(3, static_cast<char>(grey));
    }
    file += ",\0\0\0\0"s + size + "\0\x07"s;
    std::string block;
    const auto put = [&](int code) {
        block += static_cast<char>(code);
        if (block.size() == 100 || code == 129) {
            file += static_cast<char>(block.size()) + block;
            block.assign(code == 129 ? "" : "\x80");
        }
    };
    put(128);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            put(qGray(image.pixel(x, y)) / 2);
        }
    }
    put(129);
    return file + "\0;"s;
}

heif_error Append(heif_context* /*context*/, const void* data, std::size_t size, void* file) {
    static_cast<std::string*>(file)->append(static_cast<const char*>(data), size);
    return {heif_error_Ok, heif_suberror_Unspecified, ""};
}

// The encoder's picture of an image, with its colors noted.
std::shared_ptr<heif_image> HeifPicture(const QImage& image, const HeifNotes& notes) {
    const bool alpha = image.hasAlphaChannel();
    const bool deep = notes.Bits > 8;
    const QImage plain = image.convertToFormat(alpha  ? QImage::Format_RGBA8888
                                               : deep ? QImage::Format_RGBX64
                                                      : QImage::Format_RGB888);
    const auto chroma = alpha  ? heif_chroma_interleaved_RGBA
                        : deep ? heif_chroma_interleaved_RRGGBB_LE
                               : heif_chroma_interleaved_RGB;
    heif_image* made = nullptr;
    heif_image_create(plain.width(), plain.height(), heif_colorspace_RGB, chroma, &made);
    std::shared_ptr<heif_image> picture(made, heif_image_release);
    heif_image_add_plane(made, heif_channel_interleaved, plain.width(), plain.height(), notes.Bits);
    int rowBytes = 0;
    std::uint8_t* const to = heif_image_get_plane(made, heif_channel_interleaved, &rowBytes);
    for (int y = 0; y < plain.height(); ++y) {
        const uchar* const from = plain.constScanLine(y);
        std::uint8_t* const row = to + std::ptrdiff_t{y} * rowBytes;
        if (!deep) {
            std::copy_n(from, plain.width() * (alpha ? 4 : 3), row);
        }
        for (int i = 0; deep && i < plain.width() * 3; ++i) {
            quint16 value = 0;
            std::memcpy(&value, from + i / 3 * 8 + i % 3 * 2, sizeof value);
            value = static_cast<quint16>(value >> (16 - notes.Bits));
            std::memcpy(row + std::ptrdiff_t{i} * 2, &value, sizeof value);
        }
    }
    const std::shared_ptr<heif_color_profile_nclx> colors(heif_nclx_color_profile_alloc(),
                                                          heif_nclx_color_profile_free);
    colors->color_primaries = static_cast<heif_color_primaries>(notes.Primaries);
    colors->transfer_characteristics = static_cast<heif_transfer_characteristics>(notes.Curve);
    heif_image_set_nclx_color_profile(made, colors.get());
    if (!notes.Profile.empty()) {
        heif_image_set_raw_color_profile(made, "prof", notes.Profile.data(), notes.Profile.size());
    }
    return picture;
}

}  // namespace

std::string EncodedHeif(const QImage& image, std::string_view format, const HeifNotes& notes) {
    const std::shared_ptr<heif_context> context(heif_context_alloc(), heif_context_free);
    heif_encoder* found = nullptr;
    heif_context_get_encoder_for_format(
        context.get(), format == "avif" ? heif_compression_AV1 : heif_compression_HEVC, &found);
    Require(found != nullptr, format);
    const std::shared_ptr<heif_encoder> encoder(found, heif_encoder_release);
    heif_encoder_set_lossy_quality(found, 100);
    heif_encoder_set_parameter(found, "speed", "9");
    heif_encoder_set_parameter(found, "preset", "ultrafast");
    heif_encoder_set_parameter(found, "chroma", "444");
    const auto picture = HeifPicture(image, notes);
    const std::shared_ptr<heif_encoding_options> options(heif_encoding_options_alloc(),
                                                         heif_encoding_options_free);
    options->macOS_compatibility_workaround_no_nclx_profile = 0;
    options->image_orientation = notes.Orientation;
    heif_image_handle* handle = nullptr;
    Require(heif_context_encode_image(context.get(), picture.get(), found, options.get(), &handle)
                    .code == heif_error_Ok,
            format);
    if (!notes.Exif.empty()) {
        heif_context_add_exif_metadata(context.get(), handle, notes.Exif.data(),
                                       static_cast<int>(notes.Exif.size()));
    }
    heif_image_handle_release(handle);
    std::string file;
    heif_writer writer{1, Append};
    heif_context_write(context.get(), &writer, &file);
    return file;
}

std::string Encoded(const QImage& image, std::string_view format) {
    if (format == "heic" || format == "avif") {
        return EncodedHeif(image, format, {});
    }
    if (format == "gif") {
        return EncodedGif(image);
    }
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, QByteArray(format.data(), std::ssize(format)));
    writer.setQuality(100);
    Require(writer.write(image), format);
    return bytes.toStdString();
}

}  // namespace vendrel::test
