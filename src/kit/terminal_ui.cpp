#include "kit/terminal_ui.h"

#include <algorithm>

#include "kit/printable.h"

namespace vendrel {
namespace {

constexpr std::string_view kWipe = "\r\x1b[K";
// Faster than this nobody reads, and a terminal may be slower than the painting.
constexpr std::chrono::milliseconds kRedrawPause{50};

}  // namespace

std::string_view StageOf(std::string_view caption) {
    const auto digit =
        std::find_if(caption.begin(), caption.end(), [](char c) { return c >= '0' && c <= '9'; });
    auto end = static_cast<std::size_t>(digit - caption.begin());
    for (const std::string_view lead : {" with ", " For "}) {
        if (const auto at = caption.find(lead); at != caption.npos) {
            end = std::min(end, at + lead.size());
        }
    }
    return caption.substr(0, end);
}

void TerminalUi::SetCaption(std::string_view given) {
    if (chatter_ == Chatter::None) {
        return;
    }
    const std::string shown = Printable(given);
    const std::string_view caption = shown;
    const bool newStage = StageOf(caption) != StageOf(caption_);
    if (newStage) {
        PrintStage();
    }
    caption_ = caption;
    if (newStage) {
        PrintStage();
    }
    if (chatter_ == Chatter::Progress) {
        if (newStage) {
            percent_ = -1;
        }
        DrawLine(newStage);
    }
}

// A log gets the first and the last caption of each stage: where it began and where it ended.
void TerminalUi::PrintStage() {
    if (chatter_ == Chatter::Stages && caption_ != printed_) {
        out_ << caption_ << '\n';
        printed_ = caption_;
    }
}

void TerminalUi::ReportProgress(int done, int total) {
    if (chatter_ != Chatter::Progress) {
        return;
    }
    const int percent = total > 0 ? static_cast<int>(100LL * done / total) : -1;
    if (percent != percent_) {
        percent_ = percent;
        DrawLine(false);
    }
}

void TerminalUi::ShowMessage(std::string_view title, std::string_view sentence) {
    std::string message(title);
    message += message.empty() ? "" : ": ";
    message += sentence;
    std::replace(message.begin(), message.end(), '\n', ' ');
    messages_.push_back(std::move(message));
}

void TerminalUi::DrawLine(bool atOnce) {
    const auto now = std::chrono::steady_clock::now();
    if (!atOnce && now - lastDrawn_ < kRedrawPause) {
        return;
    }
    lastDrawn_ = now;
    lineShown_ = true;
    out_ << kWipe << caption_;
    if (percent_ >= 0) {
        out_ << "  " << percent_ << " %";
    }
    out_ << std::flush;
}

void TerminalUi::ClearLine() {
    if (lineShown_) {
        out_ << kWipe << std::flush;
        lineShown_ = false;
    }
    PrintStage();
    caption_.clear();
    printed_.clear();
}

}  // namespace vendrel
