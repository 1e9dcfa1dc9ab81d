// The pages before the plan: cover, color chart and page map.
#include <QtCore/QStringList>
#include <QtGui/QImage>
#include <algorithm>
#include <cmath>

#include "export/page_map.h"
#include "export/pdf_pages.h"
#include "export/pdf_units.h"
#include "export/qt_image.h"
#include "kitset/kit_mark.h"
#include "output/chart_contents.h"

namespace vendrel {
namespace {

constexpr double kMakerMm = 16;  // height of the maker's line on the cover
constexpr double kNameMm = 6;    // and with an address below it
constexpr double kAddressLineMm = 4.1;
constexpr double kCodeMm = 19;    // of the cover's code
constexpr double kCodeRimMm = 3;  // white around it

QSizeF Fitted(const Surface& picture, const QSizeF& room) {
    return QSizeF(picture.Width(), picture.Height()).scaled(room, Qt::KeepAspectRatio);
}

void DrawPicture(QPainter& painter, const Surface& picture, const QRectF& at) {
    painter.drawImage(at, ToImage(picture));
    painter.setPen(QPen(kFaintInk, Mm(0.1)));
    painter.drawRect(at);
}

QString KitSummary(const KitPages& kit) {
    const WorkState& state = kit.Place.State;
    return QString(
               "%1 paints  \u2022  canvas %2  \u2022  plan on %3 %4  \u2022  symbols from %5 mm")
        .arg(state.PaintCount)
        .arg(ToQt(SizeText(kit.Plan.Canvas, kit.Settings.InInches())))
        .arg(kit.Plan.Pages.Tiles.size())
        .arg(kit.Plan.Pages.Tiles.size() == 1 ? "page" : "pages")
        .arg(ToQt(kit.SmallestSymbol));
}

struct CoverPlaces {
    QRectF Painting;
    QRectF Photo;
};

// Wide pictures stand above one another, upright ones side by side: either way the painting is the
// larger one.
CoverPlaces PlacesOn(const QRectF& room, const Surface& painting, const Surface& photo) {
    constexpr double kCaption = 8;
    constexpr double kGap = 8;
    constexpr double kPaintingsPart = 0.62;
    constexpr double kUprightsPart = 0.72;
    CoverPlaces places;
    const bool upright = painting.Height() > painting.Width();
    const QSizeF all(room.width(), room.height() - Mm(kCaption));
    if (upright) {
        places.Painting = {room.topLeft(),
                           Fitted(painting, {all.width() * kUprightsPart, all.height()})};
        const double left = places.Painting.right() + Mm(kGap);
        places.Photo = {QPointF(left, room.top()),
                        Fitted(photo, {room.right() - left, all.height()})};
        return places;
    }
    const auto centred = [&room](double top, const QSizeF& size) {
        return QRectF(QPointF(room.center().x() - size.width() / 2, top), size);
    };
    places.Painting =
        centred(room.top(), Fitted(painting, {all.width(), all.height() * kPaintingsPart}));
    const double top = places.Painting.bottom() + Mm(kCaption + 2);
    places.Photo = centred(top, Fitted(photo, {all.width(), room.bottom() - Mm(kCaption) - top}));
    return places;
}

void DrawCaption(QPainter& painter, const QRectF& picture, const QString& text) {
    painter.setFont(TextFont(FontMm(3.5)));
    painter.setPen(kFaintInk);
    painter.drawText(QRectF(picture.left(), picture.bottom() + Mm(1), picture.width(), Mm(6)),
                     Qt::AlignHCenter | Qt::AlignVCenter, text);
}

// The paints of the chart, in its order, ending at the box's foot.
void DrawPalette(QPainter& painter, const KitPages& kit, const QRectF& box) {
    constexpr int kAcross = 5;
    constexpr double kGap = 1.5;
    const PaintList& paints = kit.Place.State->PaintColors;
    const int count = kit.Place.State->PaintCount;
    const int rows = (count + kAcross - 1) / kAcross;
    const double step = (box.width() + Mm(kGap)) / kAcross;
    const double down = std::min(step, (box.height() + Mm(kGap)) / rows);
    const QSizeF swatch(step - Mm(kGap), down - Mm(kGap));
    const double top = box.bottom() + Mm(kGap) - rows * down;
    painter.setPen(QPen(kFaintInk, Mm(0.1)));
    for (int i = 0; i < count; ++i) {
        const QPointF corner(box.left() + i % kAcross * step, top + i / kAcross * down);
        painter.fillRect(QRectF(corner, swatch), ToQt(ColorOf(paints[i + 1])));
        painter.drawRect(QRectF(corner, swatch));
    }
}

// Beside an upright painting there is room for its paints.
void DrawCoverPictures(QPainter& painter, const KitPages& kit, const QRectF& room) {
    const Surface& photo = kit.Place.Frames->CaptureFrame.Picture;
    const CoverPlaces places = PlacesOn(room, kit.Painting, photo);
    painter.setRenderHint(QPainter::LosslessImageRendering);
    DrawPicture(painter, kit.Painting, places.Painting);
    painter.setRenderHint(QPainter::LosslessImageRendering, false);
    DrawCaption(painter, places.Painting, "The painting");
    if (!photo.Empty()) {
        DrawPicture(painter, photo, places.Photo);
        DrawCaption(painter, places.Photo, "The photo");
    }
    if (kit.Painting.Height() > kit.Painting.Width() && !photo.Empty()) {
        const QPointF under(places.Photo.left(), places.Photo.bottom() + Mm(12));
        DrawPalette(painter, kit,
                    {under, places.Painting.bottomRight() +
                                QPointF(room.right() - places.Painting.right(), 0)});
    }
}

bool HasMaker(const KitPages& kit) {
    return !kit.Settings.Maker.empty() || !kit.Logo.isNull() || !kit.Settings.Shop.Address.empty();
}

// The maker's name, and the address in smaller letters below it.
void DrawMakerLines(QPainter& painter, const KitPages& kit, const QRectF& box) {
    const std::vector<std::string>& address = kit.Settings.Shop.Address;
    const double name = address.empty()              ? box.height()
                        : kit.Settings.Maker.empty() ? 0
                                                     : Mm(kNameMm);
    const double height = name + Mm(kAddressLineMm) * static_cast<double>(address.size());
    double top = box.center().y() - height / 2;
    painter.setFont(TextFont(FontMm(4.5)));
    painter.setPen(kFaintInk);
    if (name > 0) {
        DrawLineOfText(painter, {box.left(), top, box.width(), name}, Qt::AlignLeft,
                       ToQt(kit.Settings.Maker));
    }
    top += name;
    painter.setFont(TextFont(FontMm(3.3)));
    for (const std::string& line : address) {
        DrawLineOfText(painter, {box.left(), top, box.width(), Mm(kAddressLineMm)}, Qt::AlignLeft,
                       ToQt(line));
        top += Mm(kAddressLineMm);
    }
}

// The logo, and the maker's name behind it.
void DrawMaker(QPainter& painter, const KitPages& kit, const QRectF& box) {
    double left = box.left();
    if (!kit.Logo.isNull()) {
        const QSizeF size =
            QSizeF(kit.Logo.size()).scaled({Mm(60), box.height()}, Qt::KeepAspectRatio);
        painter.drawImage(QRectF(QPointF(left, box.center().y() - size.height() / 2), size),
                          kit.Logo);
        left += size.width() + Mm(4);
    }
    DrawMakerLines(painter, kit, {left, box.top(), box.right() - left, box.height()});
}

// The code, with the number before it, ends at the box's right edge. Answers what is left of the
// box.
QRectF DrawCoverCode(QPainter& painter, const KitPages& kit, const QRectF& box) {
    constexpr double kNumberMm = 44;
    if (kit.Code.IsNone()) {
        return box;
    }
    const double side = Mm(kCodeMm + 2 * kCodeRimMm);
    kit.Code.Draw(painter, {box.right() - side + Mm(kCodeRimMm), box.center().y() - side / 2},
                  side);
    const QRectF left = box.adjusted(0, 0, -side, 0);
    painter.setFont(TextFont(FontMm(5), Weight::Bold));
    painter.setPen(kit.Ink());
    DrawLineOfText(painter, left.adjusted(left.width() - Mm(kNumberMm), 0, 0, 0), Qt::AlignRight,
                   kit.OrderLine());
    return left.adjusted(0, 0, -Mm(kNumberMm), 0);
}

// Whose kit it is, and whose order. Answers its height with what parts it from the pictures.
double DrawCoverFoot(QPainter& painter, const KitPages& kit) {
    const double lines = static_cast<double>(kit.Settings.Shop.Address.size());
    double height = HasMaker(kit) ? std::max(kMakerMm, kNameMm + kAddressLineMm * lines) : 0;
    if (!kit.Code.IsNone()) {
        height = std::max(height, kCodeMm);
    }
    if (height == 0) {
        return 0;
    }
    const double width = Mm(kit.FrontPaper.Width - 2 * kFrontMargin);
    const QRectF box(Mm(kFrontMargin), Mm(kit.FrontPaper.Height - kFrontMargin - height), width,
                     Mm(height));
    const QRectF left = DrawCoverCode(painter, kit, box);
    if (HasMaker(kit)) {
        DrawMaker(painter, kit, left);
    }
    constexpr double kGap = 4;
    kit.DrawRule(painter, box.left(), box.top() - Mm(kGap), width);
    return box.height() + Mm(kit.Settings.Shop.Accent ? 2 * kGap : kGap);
}

void DrawCoverHeading(QPainter& painter, const KitPages& kit) {
    const double width = Mm(kit.FrontPaper.Width - 2 * kFrontMargin);
    // The mark has a place of its own: whatever else is cut short, it must be told from others.
    constexpr double kMarkWidth = 40;
    painter.setPen(kit.Ink());
    DrawTitle(painter, {Mm(kFrontMargin), Mm(kFrontMargin), width - Mm(kMarkWidth), Mm(16)}, 11,
              ToQt(kit.Title()));
    painter.setFont(TextFont(FontMm(4.5)));
    painter.setPen(kFaintInk);
    DrawLineOfText(
        painter,
        {Mm(kFrontMargin) + width - Mm(kMarkWidth), Mm(kFrontMargin + 5.4), Mm(kMarkWidth), Mm(8)},
        Qt::AlignRight, "kit " + ToQt(KitMark(kit.Place.State, kit.Place.State, kit.Place.State)));
    DrawLineOfText(painter, {Mm(kFrontMargin), Mm(kFrontMargin + 16), width, Mm(8)}, Qt::AlignLeft,
                   KitSummary(kit));
    painter.setFont(TextFont(FontMm(3.5)));
    DrawLineOfText(painter, {Mm(kFrontMargin), Mm(kFrontMargin + 22.5), width, Mm(5)},
                   Qt::AlignLeft, kit.StyleNote());
    if (kit.StyleNote().isEmpty()) {
        kit.DrawRule(painter, Mm(kFrontMargin), Mm(kFrontMargin + 25.5), width);
    }
}

const char* const kFirstStep =
    "Print all pages at their actual size (100 %), never fitted to the paper.";
QString PaintStep(const KitPages& kit) {
    const bool letters =
        kit.Settings.Symbols == SymbolStyle::Letters || kit.Settings.Symbols == SymbolStyle::Clear;
    return QString(letters ? "Small letters are underlined. " : "") +
           "A symbol with a line belongs to the area in which the line ends.";
}

QString RulerStep(const KitPages& kit) {
    return kit.Settings.InInches()
               ? "Measure the ruler below: it must be exactly 2 inches and 5 cm long."
               : "Measure the ruler below: it must be exactly 5 cm long.";
}

// How far the picture's edges are from the canvas's; it fills one of its sides.
QString MarginStep(const KitPages& kit) {
    const PlanPoint& at = kit.Plan.PictureAt;
    const double unit = kit.Settings.InInches() ? kMmPerInch : 10;
    const bool beside = at.X >= at.Y;
    return QString(
               "The canvas is of another shape than the picture. It stands in the middle: leave "
               "%1 %2 free at the %3.")
        .arg((beside ? at.X : at.Y) / unit, 0, 'f', 1)
        .arg(kit.Settings.InInches() ? "in" : "cm")
        .arg(beside ? "left and right" : "top and bottom");
}

QStringList StepsToGlue(const KitPages& kit) {
    const bool several = kit.Plan.Pages.Tiles.size() > 1;
    QStringList steps{kFirstStep, RulerStep(kit)};
    if (several) {
        steps << "Where a page has crop marks, cut off the left margin, the top margin or both "
                 "along them. The strips beyond the dashed blue lines on the right and below stay "
                 "on: the next pages are glued over them."
              << "Lay the cut edge of the next page on the dashed line, so that the halves of the "
                 "round marks meet, and glue page to page, row by row, as the map shows.";
    }
    if (kit.Plan.Canvas != kit.Plan.Pages.Canvas) {
        steps << MarginStep(kit);
    }
    steps << QString(
                 "Cut off the outer margins, glue the plan onto the canvas or board, or trace "
                 "it, and fill every outline with the paint of its symbol. ") +
                 PaintStep(kit);
    steps << (several ? "Keep the color chart at hand: it has the paints' codes, and the lists on "
                        "the pages vanish under their neighbors."
                      : "Keep the color chart at hand: it has the paints' codes.");
    return steps;
}

QStringList StepsToStretch(const KitPages& kit) {
    QStringList steps{
        "Have the last page printed on canvas at its actual size (100 %), with its crop marks.",
        "Measure the ruler at its foot: like the one below it must be exactly " +
            QString(kit.Settings.InInches() ? "2 inches and 5 cm long." : "5 cm long."),
        "The thin line is the edge of the canvas. What lies beyond is the bleed: it is wrapped "
        "round the frame, and the outlines run on there."};
    if (kit.Plan.Canvas != kit.Plan.Pages.Canvas) {
        steps << MarginStep(kit);
    }
    steps << QString("Fill every outline with the paint of its symbol. ") + PaintStep(kit);
    return steps;
}

// Answers where the text ends.
double DrawSteps(QPainter& painter, const QStringList& steps, double top, double width) {
    constexpr double kIndent = 7;
    painter.setFont(TextFont(FontMm(3.6)));
    painter.setPen(Qt::black);
    int number = 0;
    for (const QString& step : steps) {
        painter.drawText(QRectF(Mm(kFrontMargin), top, Mm(kIndent), Mm(6)), Qt::AlignLeft,
                         QString("%1.").arg(++number));
        QRectF used;
        painter.drawText(QRectF(Mm(kFrontMargin + kIndent), top, width - Mm(kIndent), Mm(30)),
                         Qt::AlignLeft | Qt::TextWordWrap, step, &used);
        top = used.bottom() + Mm(1.8);
    }
    return top;
}

// However small the pages in front are printed.
void DrawTrueRuler(QPainter& painter, const KitPages& kit, const QPointF& start) {
    painter.save();
    painter.translate(start);
    painter.scale(1 / kit.FrontScale, 1 / kit.FrontScale);
    DrawRuler(painter, {0, 0}, kit.Settings.InInches());
    painter.restore();
}

// Blended beforehand: print shops want pages without transparent parts.
QImage Faded(QImage picture) {
    QPainter painter(&picture);
    painter.fillRect(picture.rect(), QColor(255, 255, 255, 140));
    return picture;
}

// Draws the canvas around it where that is larger.
QRectF PictureOnMap(QPainter& painter, const KitPages& kit, const QRectF& box) {
    const SizeMm& canvas = kit.Plan.Canvas;
    const SizeMm& picture = kit.Plan.Pages.Canvas;
    const QSizeF size = QSizeF(canvas.Width, canvas.Height).scaled(box.size(), Qt::KeepAspectRatio);
    const QRectF outer(QPointF(box.center().x() - size.width() / 2, box.top()), size);
    if (canvas != picture) {
        painter.setPen(QPen(kFaintInk, Mm(0.2), Qt::DashLine));
        painter.drawRect(outer);
    }
    const double scale = size.width() / canvas.Width;
    return {outer.left() + kit.Plan.PictureAt.X * scale, outer.top() + kit.Plan.PictureAt.Y * scale,
            picture.Width * scale, picture.Height * scale};
}

}  // namespace

std::string KitPages::Title() const {
    return KitTitle(Place.State, Place.State);
}

QString KitPages::OrderLine() const {
    return Settings.Shop.Order.empty() ? QString() : "Order " + ToQt(Settings.Shop.Order);
}

QColor KitPages::Ink() const {
    return Settings.Shop.Accent ? ToQt(*Settings.Shop.Accent) : QColor(Qt::black);
}

void KitPages::DrawRule(QPainter& painter, double left, double top, double width) const {
    constexpr double kThick = 0.6;
    if (Settings.Shop.Accent) {
        painter.fillRect(QRectF(left, top, width, Mm(kThick)), Ink());
    }
}

void DrawOrderCorner(QPainter& painter, const KitPages& kit) {
    constexpr double kSide = 17;
    constexpr double kRim = 2;  // of white around the code, which may reach beyond the margin
    const double left = kit.FrontPaper.Width - kFrontMargin - kSide + kRim;
    kit.Code.Draw(painter, {Mm(left), Mm(kFrontMargin - kRim)}, Mm(kSide));
}

QString KitPages::StyleNote() const {
    return Settings.Symbols == SymbolStyle::Letters ? QString() : "Symbols differ from the sheet";
}

void DrawCoverPage(QPainter& painter, const KitPages& kit) {
    DrawCoverHeading(painter, kit);
    const double width = Mm(kit.FrontPaper.Width - 2 * kFrontMargin);
    const double bottom = Mm(kit.FrontPaper.Height - kFrontMargin) - DrawCoverFoot(painter, kit);
    const double top = Mm(kFrontMargin + (kit.StyleNote().isEmpty() ? 28 : 31));
    DrawCoverPictures(painter, kit, {Mm(kFrontMargin), top, width, bottom - top});
}

void DrawMapPage(QPainter& painter, const KitPages& kit) {
    const bool whole = kit.Settings.Sheet.IsCanvas();
    const double width = Mm(kit.FrontPaper.Width - 2 * kFrontMargin);
    DrawOrderCorner(painter, kit);
    painter.setPen(kit.Ink());
    painter.setFont(TextFont(FontMm(7), Weight::Bold));
    DrawLineOfText(painter,
                   {Mm(kFrontMargin), Mm(kFrontMargin), width - Mm(kit.OrderCorner()), Mm(12)},
                   Qt::AlignLeft, whole ? "Printing the canvas" : "Putting the plan together");
    kit.DrawRule(painter, Mm(kFrontMargin), Mm(kFrontMargin + 13), width - Mm(kit.OrderCorner()));
    const double top = DrawSteps(painter, whole ? StepsToStretch(kit) : StepsToGlue(kit),
                                 Mm(kFrontMargin + 16), width);
    DrawTrueRuler(painter, kit, {Mm(kFrontMargin), top + Mm(11)});
    const QRectF box(Mm(kFrontMargin), top + Mm(24), width,
                     Mm(kit.FrontPaper.Height - kFrontMargin) - top - Mm(24));
    const QRectF picture = PictureOnMap(painter, kit, box);
    painter.drawImage(picture, Faded(ToImage(kit.Painting)));
    if (whole) {
        painter.setPen(QPen(Qt::black, Mm(0.2)));
        painter.drawRect(picture);
    } else {
        DrawPageMap(painter, kit.Plan.Pages, picture, nullptr);
    }
}

}  // namespace vendrel
