#include "export/counted_bytes.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace vendrel {

CountedBytes::CountedBytes(QByteArray bytes) : bytes_(std::move(bytes)) {
    // The bytes are in memory already: a second buffer would only be another copy.
    open(QIODevice::ReadOnly | QIODevice::Unbuffered);
}

int CountedBytes::Percent() const {
    return bytes_.isEmpty() ? 100 : static_cast<int>(furthest_ * 100 / bytes_.size());
}

qint64 CountedBytes::readData(char* data, qint64 maxSize) {
    if (cancelled_) {
        return -1;
    }
    const qint64 count = std::clamp<qint64>(bytes_.size() - pos(), 0, maxSize);
    std::memcpy(data, bytes_.constData() + pos(), static_cast<std::size_t>(count));
    furthest_ = std::max<qint64>(furthest_, pos() + count);
    return count;
}

qint64 CountedBytes::writeData(const char* /*data*/, qint64 /*maxSize*/) {
    return -1;
}

}  // namespace vendrel
