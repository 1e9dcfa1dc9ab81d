#include "desktop/edge.h"

#include <QApplication>
#include <QMessageBox>
#include <exception>

#include "desktop/text.h"
#include "shell/ui.h"
#include "support/error.h"

namespace vendrel {

Edge::Edge(QWidget* parent) : QObject(parent), parent_(parent) {}

Outcome Edge::Run(const std::function<void()>& work, Entry entry) {
    if (Busy() && entry == Entry::WhenIdle) {
        return Outcome::Refused;
    }
    if (!Busy()) {
        emit Started();
    }
    QString message;
    ++depth_;
    const Outcome outcome = Try(work, message);
    --depth_;
    emit Finished();
    if (outcome == Outcome::Ended) {
        emit Ended();
    } else if (outcome == Outcome::Failed) {
        QWidget* dialog = QApplication::activeModalWidget();
        QMessageBox::warning(dialog != nullptr ? dialog : parent_, tr("Vendrel"), message);
    }
    return outcome;
}

Outcome Edge::Try(const std::function<void()>& work, QString& message) {
    try {
        work();
        return Outcome::Done;
    } catch (const Stop&) {
        return Outcome::Ended;
    } catch (const std::exception& error) {
        message = Text(SentenceOf(error));
    }
    return Outcome::Failed;
}

}  // namespace vendrel
