#pragma once

#include <QByteArray>
#include <QIODevice>
#include <utility>

#include "convert/photo_decoder.h"

namespace vendrel {

/// A file's bytes as a device that tells how far a decoder has come: decoders have no way to do so,
/// but the bytes they took show it.
class CountedBytes final : public QIODevice {
  public:
    explicit CountedBytes(QByteArray bytes);

    /// Called from now on with how much of the bytes was asked for; must not throw.
    void Report(ReadProgress progress) { progress_ = std::move(progress); }

    [[nodiscard]] qint64 size() const override { return bytes_.size(); }

  protected:
    qint64 readData(char* data, qint64 maxSize) override;
    qint64 writeData(const char* data, qint64 maxSize) override;

  private:
    QByteArray bytes_;
    int percent_ = 0;
    ReadProgress progress_;
};

}  // namespace vendrel
