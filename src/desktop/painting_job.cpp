#include "desktop/painting_job.h"

#include "desktop/text.h"
#include "export/qt_image.h"
#include "support/error.h"

namespace vendrel {
namespace {

constexpr int kRest = 600;  // milliseconds that a hand rests between strokes

}  // namespace

PaintingJob::PaintingJob(const TouchUpForm& form, QObject* parent) : QObject(parent), form_(form) {
    threads_.setMaxThreadCount(1);
    pause_.setInterval(kRest);
    pause_.setSingleShot(true);
    connect(&pause_, &QTimer::timeout, this, &PaintingJob::Paint);
}

void PaintingJob::Start(const Workplace& place) {
    Stop();
    place_ = &place;
    stale_ = true;
}

void PaintingJob::Stop() {
    pause_.stop();
    threads_.waitForDone();
    preview_.reset();
    place_ = nullptr;
}

void PaintingJob::Want(bool wanted) {
    wanted_ = wanted;
    if (wanted_ && stale_) {
        Paint();
    }
}

void PaintingJob::NoteChange() {
    stale_ = true;
    if (wanted_) {
        pause_.start();
    }
}

void PaintingJob::Paint() {
    if (busy_ || !wanted_ || place_ == nullptr || !form_.Open()) {
        return;
    }
    if (!preview_) {
        preview_ = std::make_shared<PaintingPreview>(*place_);
    }
    busy_ = true;
    stale_ = false;
    threads_.start(
        [this, preview = preview_, paints = form_.Sheet().Paints(), cells = form_.Sheet().Cells()] {
            QImage picture;
            QString trouble;
            try {
                picture = ToImage(preview->Paint(paints, cells)).copy();
            } catch (const std::exception& failure) {
                trouble = Text(SentenceOf(failure));
            }
            QMetaObject::invokeMethod(
                this,
                [this, picture, trouble, preview] {
                    busy_ = false;
                    if (preview == preview_) {  // else the editor was closed meanwhile
                        Finish(picture, trouble);
                    }
                },
                Qt::QueuedConnection);
        });
}

void PaintingJob::Finish(const QImage& picture, const QString& trouble) {
    emit Painted(picture, trouble);
    if (stale_ && wanted_ && !pause_.isActive()) {
        pause_.start();
    }
}

}  // namespace vendrel
