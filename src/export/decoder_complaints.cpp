#include "export/decoder_complaints.h"

#include <QtCore/QString>
#include <algorithm>
#include <array>

namespace vendrel {
namespace {

// A process decodes one photo at a time.
bool damaged = false;
bool outOfMemory = false;
QtMessageHandler others = nullptr;

template <std::size_t Count>
bool HoldsOneOf(const QString& text, const std::array<const char*, Count>& phrases) {
    return std::ranges::any_of(phrases, [&text](const char* phrase) {
        return text.contains(QLatin1String(phrase), Qt::CaseInsensitive);
    });
}

// Bytes between two parts of a file, of which decoders complain as well, do no harm.
void Listen(QtMsgType /*type*/, const QMessageLogContext& /*context*/, const QString& text) {
    static constexpr std::array kDamage = {"bad Huffman code", "premature end",
                                           "bad arithmetic code", "nconsistent progression"};
    static constexpr std::array kMemory = {"insufficient memory", "out of memory"};
    damaged = damaged || HoldsOneOf(text, kDamage);
    outOfMemory = outOfMemory || HoldsOneOf(text, kMemory);
}

}  // namespace

DecoderComplaints::DecoderComplaints() {
    damaged = false;
    outOfMemory = false;
    others = qInstallMessageHandler(Listen);
}

DecoderComplaints::~DecoderComplaints() {
    qInstallMessageHandler(others);
}

bool DecoderComplaints::Damaged() const {
    return damaged;
}

bool DecoderComplaints::OutOfMemory() const {
    return outOfMemory;
}

}  // namespace vendrel
