#include "export/decoder_complaints.h"

#include <QtCore/QString>
#include <algorithm>
#include <array>
#include <atomic>

namespace vendrel {
namespace {

// One program decodes one photo at a time, but on a thread of its own.
std::atomic<bool> damaged = false;
std::atomic<QtMessageHandler> others = nullptr;

// Bytes between two parts of a file, of which decoders complain as well, do no harm.
bool IsDamage(const QString& text) {
    static constexpr std::array kDamage = {"bad Huffman code", "premature end",
                                           "bad arithmetic code", "nconsistent progression"};
    return std::ranges::any_of(kDamage, [&text](const char* phrase) {
        return text.contains(QLatin1String(phrase), Qt::CaseInsensitive);
    });
}

void Listen(QtMsgType type, const QMessageLogContext& context, const QString& text) {
    if (IsDamage(text)) {
        damaged = true;
    } else if (const QtMessageHandler handler = others) {
        handler(type, context, text);
    }
}

}  // namespace

DecoderComplaints::DecoderComplaints() {
    damaged = false;
    others = qInstallMessageHandler(Listen);
}

DecoderComplaints::~DecoderComplaints() {
    qInstallMessageHandler(others);
}

bool DecoderComplaints::Damaged() const {
    return damaged;
}

}  // namespace vendrel
