#include "batch/batch_progress.h"

#include <algorithm>

#include "kit/printable.h"
#include "support/decimals.h"

namespace vendrel {
namespace {

constexpr double kMinute = 60;

std::string TimeLeft(double seconds) {
    constexpr double kHour = 60 * kMinute;
    if (seconds < kMinute) {
        return Decimals(seconds, 0) + " s left";
    }
    return seconds < kHour ? Decimals(seconds / kMinute, 0) + " min left"
                           : Decimals(seconds / kHour, 1) + " h left";
}

std::string Bar(const BatchPace& pace) {
    constexpr std::size_t kCells = 20;
    const std::size_t full = pace.All == 0 ? kCells : kCells * pace.Done / pace.All;
    return "[" + std::string(full, '#') + std::string(kCells - full, '-') + "]";
}

}  // namespace

std::string PaceLine(const BatchPace& pace) {
    std::string line =
        Bar(pace) + " " + std::to_string(pace.Done) + " of " + std::to_string(pace.All);
    if (pace.Done > 0 && pace.Seconds > 0) {
        const double perSecond = static_cast<double>(pace.Done) / pace.Seconds;
        line += ", " + Decimals(perSecond * kMinute, 1) + " a minute";
        if (pace.Done < pace.All) {
            line += ", " + TimeLeft(static_cast<double>(pace.All - pace.Done) / perSecond);
        }
    }
    return line + (pace.Failed > 0 ? ", " + std::to_string(pace.Failed) + " failed" : "");
}

BatchProgress::BatchProgress(std::ostream& out, bool terminal, bool quiet, std::size_t all)
    : out_(out), terminal_(terminal), quiet_(quiet) {
    pace_.All = all;
}

BatchProgress::~BatchProgress() {
    ClearLine();
}

void BatchProgress::ClearLine() {
    if (shown_) {
        out_ << "\r\x1B[K" << std::flush;
        shown_ = false;
    }
}

void BatchProgress::Show() {
    const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - began_;
    pace_.Seconds = taken.count();
    if (terminal_ && !quiet_) {
        out_ << "\r\x1B[K" << PaceLine(pace_) << std::flush;
        shown_ = true;
    }
}

void BatchProgress::Ended(std::string_view order, std::string_view sentence) {
    ++pace_.Done;
    pace_.Failed += sentence.empty() ? 0 : 1;
    ClearLine();
    if (!sentence.empty()) {
        out_ << "vendrel: order " << Printable(std::string(order)) << ": "
             << Printable(std::string(sentence)) << std::endl;
    } else if (!terminal_ && !quiet_) {
        out_ << pace_.Done << " of " << pace_.All << ": " << Printable(std::string(order))
             << std::endl;
    }
    Show();
}

}  // namespace vendrel
