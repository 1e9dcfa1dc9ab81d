#include "export/counted_bytes.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace vendrel {

CountedBytes::CountedBytes(QByteArray bytes) : bytes_(std::move(bytes)) {
    // The bytes are in memory already: a second buffer would only be another copy.
    open(QIODevice::ReadOnly | QIODevice::Unbuffered);
}

qint64 CountedBytes::readData(char* data, qint64 maxSize) {
    const qint64 count = std::clamp<qint64>(bytes_.size() - pos(), 0, maxSize);
    std::memcpy(data, bytes_.constData() + pos(), static_cast<std::size_t>(count));
    const auto percent = static_cast<int>((pos() + count) * 100 / std::max<qint64>(1, size()));
    if (percent > percent_ && progress_) {
        percent_ = percent;
        progress_(percent);
    }
    return count;
}

qint64 CountedBytes::writeData(const char* /*data*/, qint64 /*maxSize*/) {
    return -1;
}

}  // namespace vendrel
