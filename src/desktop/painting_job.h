#pragma once

#include <QImage>
#include <QObject>
#include <QThreadPool>
#include <QTimer>
#include <memory>

#include "forms/painting_preview.h"
#include "forms/touch_up_form.h"

namespace vendrel {

/// Paints the editor's stipples in the background whenever the hand rests: a copy of them goes in,
/// a picture comes out.
class PaintingJob : public QObject {
    Q_OBJECT

  public:
    explicit PaintingJob(const TouchUpForm& form, QObject* parent = nullptr);

    /// Copies the kit; nothing is painted before Want.
    void Start(const Workplace& place);
    /// Whether anybody looks.
    void Want(bool wanted);
    /// The stipples were edited.
    void NoteChange();
    /// Waits for what is being painted and forgets the kit.
    void Stop();

  signals:
    /// `trouble` is a sentence where the picture could not be painted.
    void Painted(const QImage& picture, const QString& trouble);

  private:
    void Paint();
    void Finish(const QImage& picture, const QString& trouble);

    const TouchUpForm& form_;
    const Workplace* place_ = nullptr;
    std::shared_ptr<PaintingPreview> preview_;
    QTimer pause_;
    bool wanted_ = false;
    bool stale_ = true;
    bool busy_ = false;
    QThreadPool threads_;  // last: what it runs ends before the rest goes
};

}  // namespace vendrel
