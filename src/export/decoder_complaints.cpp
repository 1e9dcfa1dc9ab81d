#include "export/decoder_complaints.h"

#include <QtCore/QString>
#include <algorithm>
#include <array>

namespace vendrel {
namespace {

// Qt calls a plain function that it gives nothing of ours, so the one who listens must be found
// here. A process decodes one photo at a time.
DecoderComplaints* listener = nullptr;

template <std::size_t Count>
bool HoldsOneOf(const QString& text, const std::array<const char*, Count>& phrases) {
    return std::ranges::any_of(phrases, [&text](const char* phrase) {
        return text.contains(QLatin1String(phrase), Qt::CaseInsensitive);
    });
}

void Listen(QtMsgType /*type*/, const QMessageLogContext& /*context*/, const QString& text) {
    if (listener != nullptr) {
        listener->Hear(text);
    }
}

}  // namespace

DecoderComplaints::DecoderComplaints() {
    listener = this;
    others_ = qInstallMessageHandler(Listen);
}

DecoderComplaints::~DecoderComplaints() {
    qInstallMessageHandler(others_);
    listener = nullptr;
}

// Bytes between two parts of a file, of which decoders complain as well, do no harm.
void DecoderComplaints::Hear(const QString& text) {
    static constexpr std::array kDamage = {"bad Huffman code", "premature end",
                                           "bad arithmetic code", "nconsistent progression"};
    static constexpr std::array kMemory = {"insufficient memory", "out of memory"};
    damaged_ = damaged_ || HoldsOneOf(text, kDamage);
    outOfMemory_ = outOfMemory_ || HoldsOneOf(text, kMemory);
}

}  // namespace vendrel
