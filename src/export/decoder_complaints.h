#pragma once

#include <QtCore/QString>
#include <QtCore/QtGlobal>

namespace vendrel {

/// Listens, while it lives, to what decoders say of a picture, and keeps it from the terminal. A
/// JPEG that is damaged in its middle is decoded all the same, with nonsense from there on; the
/// decoder only remarks on it.
class DecoderComplaints {
  public:
    DecoderComplaints();
    ~DecoderComplaints();
    DecoderComplaints(const DecoderComplaints&) = delete;
    DecoderComplaints& operator=(const DecoderComplaints&) = delete;

    /// Whether one of them spoils the picture.
    [[nodiscard]] bool Damaged() const { return damaged_; }
    /// Whether there was not enough memory for it.
    [[nodiscard]] bool OutOfMemory() const { return outOfMemory_; }

    void Hear(const QString& text);

  private:
    bool damaged_ = false;
    bool outOfMemory_ = false;
    QtMessageHandler others_ = nullptr;
};

}  // namespace vendrel
