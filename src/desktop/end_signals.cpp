#include "desktop/end_signals.h"

#include <sys/eventfd.h>
#include <unistd.h>

#include <QSocketNotifier>
#include <atomic>
#include <csignal>
#include <cstdint>

namespace vendrel {
namespace {

// A signal's handler may do little more than write to a file.
std::atomic<int> wishes = -1;
static_assert(std::atomic<int>::is_always_lock_free);

void NoteWish(int signal) {
    const std::uint64_t one = 1;
    [[maybe_unused]] const ssize_t written = write(wishes, &one, sizeof one);
    std::signal(signal, SIG_DFL);
}

void Handle(int signal) {
    // What nohup has switched off stays off.
    if (std::signal(signal, NoteWish) == SIG_IGN) {
        std::signal(signal, SIG_IGN);
    }
}

}  // namespace

EndSignals::EndSignals() {
    wishes = eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
    auto* notifier = new QSocketNotifier(wishes, QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, [this, notifier] {
        notifier->setEnabled(false);
        emit Asked();
    });
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
        Handle(signal);
    }
}

EndSignals::~EndSignals() {
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
        if (std::signal(signal, SIG_DFL) == SIG_IGN) {
            std::signal(signal, SIG_IGN);
        }
    }
    close(wishes.exchange(-1));
}

}  // namespace vendrel
