#include "desktop/history_list.h"

#include <QSignalBlocker>
#include <algorithm>

#include "desktop/text.h"
#include "support/list.h"

namespace vendrel {

HistoryList::HistoryList(EditorWork work, QWidget* parent) : QListWidget(parent) {
    setObjectName(QStringLiteral("History"));
    setAccessibleName(tr("History: steps, the current one chosen"));
    setUniformItemSizes(true);
    addItem(tr("As opened"));
    // Step 0 is the state at the opening.
    connect(this, &QListWidget::currentRowChanged, this, [work = std::move(work)](int row) {
        work([row](TouchUpForm& form) { form.Step_Click(row); });
    });
}

void HistoryList::Mirror(const TouchUpControls& shown) {
    const QSignalBlocker quiet(this);
    const auto same = std::ranges::mismatch(shown_, shown.Steps).in1 - shown_.begin();
    while (count() > same + 1) {
        delete takeItem(count() - 1);
    }
    for (auto step = shown.Steps.begin() + same; step != shown.Steps.end(); ++step) {
        addItem(Text(*step));
    }
    const int from =
        std::min<int>(static_cast<int>(same) + 1, std::max(0, std::min(done_, shown.StepsDone)));
    for (int row = from; row < count(); ++row) {
        item(row)->setForeground(palette().brush(
            row <= shown.StepsDone ? QPalette::Active : QPalette::Disabled, QPalette::Text));
    }
    shown_ = shown.Steps;
    done_ = shown.StepsDone;
    setCurrentRow(done_);
    scrollToItem(item(done_));
}

}  // namespace vendrel
