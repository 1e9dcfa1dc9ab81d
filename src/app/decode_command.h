#pragma once

namespace vendrel {

/// `vendrel-studio --decode`, which nobody types: reads the photo on standard input within limits
/// on memory, time and files, and answers as DecodingChild (convert/decoding_child.h) wants it.
/// Gives the exit status.
[[nodiscard]] int RunDecodeCommand();

}  // namespace vendrel
