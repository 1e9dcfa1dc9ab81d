#pragma once

#include <QElapsedTimer>

namespace vendrel {

/// Spreads the steps of a show evenly over a time, however many there are.
class ShowPace {
  public:
    /// Milliseconds that a whole show takes.
    static constexpr qint64 kDuration = 3000;

    /// Milliseconds to wait before the step after `done` of `total`; 0 when drawing is late.
    [[nodiscard]] qint64 WaitAfter(int done, int total);
    /// The rest of this show needs no waiting.
    void EndShow() { ended_ = true; }
    [[nodiscard]] bool Ended() const { return ended_; }
    /// Ready for another show.
    void Reset();

  private:
    QElapsedTimer clock_;
    bool ended_ = false;
};

}  // namespace vendrel
