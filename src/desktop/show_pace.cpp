#include "desktop/show_pace.h"

#include <algorithm>

namespace vendrel {

qint64 ShowPace::WaitAfter(int done, int total) {
    if (!clock_.isValid()) {
        clock_.start();
    }
    if (ended_ || total <= 0) {
        return 0;
    }
    const qint64 due = kDuration * done / total;
    return std::max<qint64>(0, due - clock_.elapsed());
}

void ShowPace::Reset() {
    clock_.invalidate();
    ended_ = false;
}

}  // namespace vendrel
