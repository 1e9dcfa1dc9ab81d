#pragma once

#include <QObject>
#include <functional>

namespace vendrel {

/// How a piece of work went.
enum class Outcome { Done, Failed, Ended, Refused };

/// The one place where views start work: turns errors into a message box and Stop into the end of
/// the program, and refuses work while other work yields.
class Edge : public QObject {
    Q_OBJECT

  public:
    enum class Entry { WhenIdle, Always };

    explicit Edge(QWidget* parent);

    Outcome Run(const std::function<void()>& work, Entry entry = Entry::WhenIdle);
    [[nodiscard]] bool Busy() const { return depth_ > 0; }

  signals:
    void Started();
    /// Work is over, however it went: what is on screen has to follow the state.
    void Finished();
    /// The program ends.
    void Ended();

  private:
    Outcome Try(const std::function<void()>& work, QString& message);

    QWidget* parent_;
    int depth_ = 0;
};

}  // namespace vendrel
