#pragma once

#include <cstddef>

namespace vendrel {

/// What reading one photo may take: a photo that wants more is refused with a sentence.
inline constexpr std::size_t kDecodingMegabytes = 512;
inline constexpr int kDecodingSeconds = 10;  // of processor time

/// Photos larger than this on a side are read at a half, a quarter ... of their size: far more
/// than a working picture shows, and little enough to hold.
inline constexpr int kMaxPhotoSide = 4096;

}  // namespace vendrel
