#pragma once

#include <QByteArray>
#include <QIODevice>
#include <atomic>

namespace vendrel {

/// A file's bytes as a device that knows how far a decoder has come, and that can be shut while
/// another thread reads from it.
class CountedBytes final : public QIODevice {
  public:
    explicit CountedBytes(QByteArray bytes);

    /// 0..100: how much of the bytes was asked for so far.
    [[nodiscard]] int Percent() const;
    /// From now on reading fails, so that a decoder gives up at its next request.
    void Cancel() { cancelled_ = true; }

    [[nodiscard]] qint64 size() const override { return bytes_.size(); }

  protected:
    qint64 readData(char* data, qint64 maxSize) override;
    qint64 writeData(const char* data, qint64 maxSize) override;

  private:
    QByteArray bytes_;
    std::atomic<qint64> furthest_ = 0;
    std::atomic<bool> cancelled_ = false;
};

}  // namespace vendrel
