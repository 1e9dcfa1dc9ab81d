#include "export/pdf_leaflet_pages.h"

#include "export/pdf_units.h"

namespace vendrel {
namespace {

constexpr double kLeafletMargin = 20;
constexpr double kTextMm = 4.2;
constexpr double kHeadingMm = 7;
constexpr double kAirBetweenLines = 1.12;
constexpr double kFootMm = 12;
constexpr double kIndentMm = 5;

double GapAbove(LeafletKind kind, bool firstItem) {
    switch (kind) {
        case LeafletKind::Heading:
            return Mm(8);
        case LeafletKind::Item:
            return Mm(firstItem ? 2.4 : 1);
        default:
            return Mm(3.2);
    }
}

}  // namespace

LeafletPages::LeafletPages(const KitPages& kit, QPaintDevice& paper) : kit_(kit) {
    for (const LeafletPart& part : kit.Leaflet) {
        LayOut(part, paper);
    }
    Place();
}

void LeafletPages::LayOut(const LeafletPart& part, QPaintDevice& paper) {
    const bool heading = part.Kind == LeafletKind::Heading;
    const QFont font =
        heading ? TextFont(FontMm(kHeadingMm), Weight::Bold) : TextFont(FontMm(kTextMm));
    QString text = ToQt(part.Text);
    text.replace('\n', QChar::LineSeparator);
    Part& laid = parts_.emplace_back(text, font, paper, part.Kind);
    QTextOption option(Qt::AlignLeft);
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    laid.Layout.setTextOption(option);
    const double indent = part.Kind == LeafletKind::Item ? Mm(kIndentMm) : 0;
    bool first = true;
    laid.Layout.beginLayout();
    for (QTextLine line = laid.Layout.createLine(); line.isValid();
         line = laid.Layout.createLine()) {
        line.setLineWidth(Mm(kit_.FrontPaper.Width - 2 * kLeafletMargin) - indent);
        line.setPosition({indent, 0});
        lines_.push_back({&laid, line, 0, 0, first});
        first = false;
    }
    laid.Layout.endLayout();
}

// A heading at a page's foot goes with what it is about.
void LeafletPages::Place() {
    const double bottom = Mm(kit_.FrontPaper.Height - kLeafletMargin - kFootMm);
    double top = Mm(kLeafletMargin);
    int page = 0;
    const Part* before = nullptr;
    for (Line& line : lines_) {
        const bool heading = line.Of->Kind == LeafletKind::Heading;
        const double height = line.Text.height() * kAirBetweenLines;
        if (line.First && top > Mm(kLeafletMargin)) {
            const bool firstItem = before == nullptr || before->Kind != LeafletKind::Item;
            top += before != nullptr && before->Kind == LeafletKind::Heading
                       ? Mm(2)
                       : GapAbove(line.Of->Kind, firstItem);
        }
        if (top + height + (heading ? Mm(3 * kTextMm) : 0) > bottom && top > Mm(kLeafletMargin)) {
            ++page;
            top = Mm(kLeafletMargin);
        }
        line.Page = page;
        line.Top = top;
        top += height;
        before = line.Of;
    }
}

void LeafletPages::Draw(QPainter& painter, int page) const {
    for (const Line& line : lines_) {
        if (line.Page != page) {
            continue;
        }
        const double left = Mm(kLeafletMargin);
        painter.setPen(line.Of->Kind == LeafletKind::Heading ? kit_.Ink() : QColor(Qt::black));
        if (line.First && line.Of->Kind == LeafletKind::Item) {
            painter.setBrush(kit_.Ink());
            painter.setPen(Qt::NoPen);
            painter.drawEllipse(QPointF(left + Mm(1.6), line.Top + line.Text.ascent() * 0.66),
                                Mm(0.6), Mm(0.6));
            painter.setBrush(Qt::NoBrush);
            painter.setPen(Qt::black);
        }
        line.Text.draw(&painter, QPointF(left, line.Top));
    }
    DrawFoot(painter, page);
}

void LeafletPages::DrawFoot(QPainter& painter, int page) const {
    const double top = kit_.FrontPaper.Height - kLeafletMargin - 6;
    const double width = kit_.FrontPaper.Width - 2 * kLeafletMargin;
    kit_.DrawRule(painter, Mm(kLeafletMargin), Mm(top - 1), Mm(width));
    painter.setFont(TextFont(FontMm(3)));
    painter.setPen(QColor(90, 90, 90));
    QString foot = ToQt(kit_.Settings.Maker);
    for (const std::string& line : kit_.Settings.Shop.Address) {
        foot += (foot.isEmpty() ? "" : "  \u2022  ") + ToQt(line);
    }
    DrawLineOfText(painter, MmRect(kLeafletMargin, top, width - 34, 6), Qt::AlignLeft, foot);
    QString number = kit_.OrderLine();
    if (Count() > 1) {
        number +=
            (number.isEmpty() ? "" : "  \u2022  ") + QString("%1 of %2").arg(page + 1).arg(Count());
    }
    DrawLineOfText(painter, MmRect(kLeafletMargin + width - 32, top, 32, 6), Qt::AlignRight,
                   number);
}

}  // namespace vendrel
