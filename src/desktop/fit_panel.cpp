#include "desktop/fit_panel.h"

#include <QHBoxLayout>
#include <QMouseEvent>
#include <QScreen>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <algorithm>

#include "desktop/named.h"
#include "desktop/text.h"
#include "export/qt_image.h"

namespace vendrel {
namespace {

constexpr int kPreviewSide = 270;
constexpr int kSmallestPreview = 150;
constexpr int kBesidePreview = 360;  // height of what the chooser shows over and under it

// Of the chooser's preview: on a small screen its buttons need the room.
int PreviewHeight() {
    const int room = QGuiApplication::primaryScreen()->availableSize().height() - kBesidePreview;
    return std::clamp(room, kSmallestPreview, kPreviewSide);
}

void FramePicture(QLabel& picture, int height = kPreviewSide) {
    picture.setFixedSize(kPreviewSide, height);
    picture.setAlignment(Qt::AlignCenter);
    picture.setFrameShape(QFrame::StyledPanel);
}

void WrapText(QLabel& text, int lines) {
    text.setWordWrap(true);
    text.setAlignment(Qt::AlignTop);
    text.setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
    text.setFixedWidth(kPreviewSide);
    text.setMinimumHeight(lines * text.fontMetrics().height());
}

}  // namespace

FitPanel::FitPanel(Shows shows)
    : shows_(shows),
      preview_(Named<QLabel>("Preview", tr("Preview of the photo"))),
      description_(new ValueLabel("Description", tr("About the photo"))),
      box_(Named<QGroupBox>("Ways", tr("How the photo comes onto the sheet"))),
      ways_{MakeWay(PhotoFit::Keep, "KeepWay", tr("&Keep Its Shape")),
            MakeWay(PhotoFit::Crop, "CropWay", tr("Crop to &Fit")),
            MakeWay(PhotoFit::Stretch, "StretchWay", tr("&Stretch"))},
      cropButton_(Named<QPushButton>("CropButton", tr("Crop or Turn"))) {
    cropButton_->setText(tr("Crop or &Turn..."));
    cropButton_->setAutoDefault(false);
    cropButton_->setToolTip(tr("Choose the part of the photo that is painted, or turn it"));
    connect(cropButton_, &QPushButton::clicked, this, &FitPanel::CropAsked);
    Arrange();
}

FitPanel::Way FitPanel::MakeWay(PhotoFit fit, const char* name, const QString& text) {
    auto* button = Named<QRadioButton>(name, QString(text).remove(QLatin1Char('&')));
    button->setText(text);
    connect(button, &QRadioButton::toggled, this, [this, fit](bool on) {
        if (on) {
            emit WayChosen(fit);
        }
    });
    return {fit, button, nullptr, nullptr};
}

void FitPanel::Arrange() {
    box_->setTitle(tr("The photo does not fit the sheet"));
    if (shows_ == Shows::ChosenWay) {
        ArrangeInOneColumn();
    } else {
        ArrangeSideBySide();
    }
}

void FitPanel::ArrangeInOneColumn() {
    FramePicture(*preview_, PreviewHeight());
    WrapText(*description_, 5);
    auto* ways = new QVBoxLayout(box_);
    for (const Way& way : ways_) {
        ways->addWidget(way.Button);
    }
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins({});
    rows->addWidget(preview_);
    rows->addWidget(description_);
    rows->addWidget(box_);
    rows->addWidget(cropButton_);
}

void FitPanel::ArrangeSideBySide() {
    auto* ways = new QHBoxLayout(box_);
    for (Way& way : ways_) {
        way.Picture = new QLabel;
        way.Picture->setAccessibleName(way.Button->accessibleName());
        way.Picture->installEventFilter(this);
        way.Sentence = new QLabel;
        FramePicture(*way.Picture);
        WrapText(*way.Sentence, 3);
        auto* column = new QVBoxLayout;
        column->addWidget(way.Picture);
        column->addWidget(way.Button);
        column->addWidget(way.Sentence);
        ways->addLayout(column);
    }
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins({});
    rows->addWidget(description_);
    rows->addWidget(box_);
    rows->addWidget(cropButton_, 0, Qt::AlignLeft);
    preview_->setParent(this);
    preview_->hide();
}

void FitPanel::Mirror(const FitControls& shown) {
    const bool every = shows_ == Shows::EveryWay;
    description_->Show(Text(every ? shown.Title : shown.Description));
    preview_->setAccessibleDescription(description_->text());
    if (shown.Preview.Empty()) {
        preview_->setText(shown.Description.empty() ? tr("Nothing chosen") : tr("No preview"));
    } else {
        QPixmap picture = QPixmap::fromImage(ToImage(shown.Preview));
        if (const int height = preview_->contentsRect().height(); picture.height() > height) {
            picture = picture.scaledToHeight(height, Qt::SmoothTransformation);
        }
        preview_->setPixmap(picture);
    }
    box_->setVisible(!shown.Ways.empty());
    for (const Way& way : ways_) {
        MirrorWay(way, shown);
    }
    cropButton_->setEnabled(shown.CropEnabled);
}

void FitPanel::MirrorWay(const Way& way, const FitControls& shown) const {
    const auto look = std::ranges::find(shown.Ways, way.Fit, &FitLook::Way);
    const bool open = look != shown.Ways.end();
    const QSignalBlocker quiet(way.Button);
    way.Button->setEnabled(open);
    way.Button->setAccessibleDescription(open ? Text(look->Sentence) : QString());
    if (way.Fit == shown.Way) {
        way.Button->setChecked(true);
    }
    if (open && way.Picture != nullptr) {
        way.Picture->setPixmap(QPixmap::fromImage(ToImage(look->Picture)));
        way.Sentence->setText(Text(look->Sentence));
    }
}

// A click on a picture chooses its way.
bool FitPanel::eventFilter(QObject* watched, QEvent* event) {
    const auto way = std::ranges::find(ways_, watched, &Way::Picture);
    if (way != ways_.end() && event->type() == QEvent::MouseButtonPress &&
        way->Button->isEnabled()) {
        way->Button->setFocus();
        way->Button->setChecked(true);
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

std::array<QWidget*, 4> FitPanel::Controls() const {
    return {ways_[0].Button, ways_[1].Button, ways_[2].Button, cropButton_};
}

void FitPanel::FocusWay() {
    for (const Way& way : ways_) {
        if (way.Button->isChecked()) {
            way.Button->setFocus();
        }
    }
}

}  // namespace vendrel
