// The color chart of the printed kit: what to buy, and what each symbol means.
#include <QtCore/QStringList>
#include <QtGui/QFontMetricsF>
#include <algorithm>
#include <numeric>

#include "export/pdf_pages.h"
#include "export/pdf_units.h"
#include "kitset/kit_mark.h"
#include "output/chart_contents.h"
#include "shell/symbol_of.h"
#include "support/decimals.h"
#include "support/list.h"

namespace vendrel {
namespace {

constexpr double kTop = 38;     // of the first row
constexpr double kRow = 8.6;    // holds a swatch of 8 mm
constexpr double kFooter = 12;  // the sums
constexpr double kBottom = 12;
constexpr double kLeastMl = 0.1;  // no paint of the kit takes none
const QColor kRule(200, 200, 200);

// Left edge and width of the columns, in millimeters from the margin; Paint takes what is left.
struct Column {
    double Left;
    double Width;
};
constexpr Column kSwatch{0, 16};
constexpr Column kDab{16, 16};  // left white for the painter's own paint
constexpr Column kSymbol{32.5, 12.5};
constexpr Column kPaint{46, 60};
constexpr Column kArea{106, 14};
constexpr Column kMl{120, 12};
constexpr Column kPots{132, 10};
constexpr double kPagesLeft = 146;

// A line of the chart: a paint, or the heading of a set.
struct Row {
    const PaintNeed* Need = nullptr;
    std::string Heading;
};

// Neighbors in a row as in A2\u20135, of the tiles that are in the list or of those that are not.
QString PageRuns(const std::vector<PageTile>& tiles, const std::vector<std::string>& list,
                 bool listed) {
    const auto wanted = [&](std::size_t i) {
        return i < tiles.size() &&
               (std::ranges::find(list, tiles[i].Name()) != list.end()) == listed;
    };
    QStringList runs;
    for (std::size_t i = 0; i < tiles.size(); ++i) {
        if (!wanted(i)) {
            continue;
        }
        const std::size_t first = i;
        while (wanted(i + 1) && tiles[i + 1].Row == tiles[first].Row) {
            ++i;
        }
        const QString end = first == i ? QString() : QString("\u2013%1").arg(tiles[i].Column + 1);
        runs << ToQt(tiles[first].Name()) + end;
    }
    return runs.join(' ');
}

QString PagesText(const std::vector<PageTile>& tiles, const std::vector<std::string>& list) {
    if (list.size() == tiles.size()) {
        return "all";
    }
    const QString on = PageRuns(tiles, list, true);
    const QString but = "all but " + PageRuns(tiles, list, false);
    return but.size() < on.size() ? but : on;
}

class ChartPage {
  public:
    ChartPage(QPainter& painter, const KitPages& kit) : painter_(painter), kit_(kit) {}

    void DrawHeading(int page, int pages);
    void DrawRow(const Row& row, double top);
    void DrawSums(double top);

  private:
    [[nodiscard]] double Right() const { return kit_.FrontPaper.Width - kFrontMargin; }
    [[nodiscard]] const PaintColor& ColorOfRow(const PaintNeed& need) const {
        return kit_.Place.State->PaintColors[need.Paint];
    }
    // Text in a column, between two heights of the row.
    void Write(const Column& column, double top, double height, int flags, const QString& text);
    void WriteFigures(const PaintNeed& need, double top, double height);
    void WritePages(const PaintNeed& need, double top);
    void DrawSwatch(const PaintNeed& need, double top);
    void MarkNewLabel(const PaintNeed& need, double top);
    void WriteName(const PaintNeed& need, double top);
    void Rule(double at);

    QPainter& painter_;
    const KitPages& kit_;
};

void ChartPage::Write(const Column& column, double top, double height, int flags,
                      const QString& text) {
    DrawLineOfText(painter_, MmRect(kFrontMargin + column.Left, top, column.Width, height), flags,
                   text);
}

void ChartPage::Rule(double at) {
    painter_.setPen(QPen(kRule, Mm(0.1)));
    painter_.drawLine(QPointF(Mm(kFrontMargin), Mm(at)), QPointF(Mm(Right()), Mm(at)));
    painter_.setPen(Qt::black);
}

void ChartPage::DrawHeading(int page, int pages) {
    const double width = Right() - kFrontMargin - kit_.OrderCorner();
    DrawOrderCorner(painter_, kit_);
    painter_.setPen(kit_.Ink());
    DrawTitle(painter_, MmRect(kFrontMargin, kFrontMargin, width, 10), 7, ToQt(kit_.Title()));
    painter_.setFont(TextFont(FontMm(3.6)));
    painter_.setPen(kFaintInk);
    const WorkState& state = kit_.Place.State;
    QStringList facts{"Color chart", QString("%1 paints").arg(state.PaintCount),
                      "kit " + ToQt(KitMark(state, state, state))};
    if (!kit_.Code.IsNone()) {
        facts << kit_.OrderLine();
    }
    if (const QString note = kit_.StyleNote(); !note.isEmpty()) {
        facts << note;
    }
    if (pages > 1) {
        facts << QString("page %1 of %2").arg(page).arg(pages);
    }
    DrawLineOfText(painter_, MmRect(kFrontMargin, kFrontMargin + 10, width, 7), Qt::AlignLeft,
                   facts.join("  \u2022  "));
    painter_.setFont(TextFont(FontMm(2.7)));
    const double top = kTop - 6;
    Write(kSwatch, top, 5, Qt::AlignLeft, "Color");
    Write(kDab, top, 5, Qt::AlignHCenter, "Your dab");
    Write(kSymbol, top, 5, Qt::AlignHCenter, "Symbol");
    Write(kPaint, top, 5, Qt::AlignLeft, "Paint");
    Write(kArea, top, 5, Qt::AlignRight, kit_.Settings.InInches() ? "sq in" : "cm\u00b2");
    Write(kMl, top, 5, Qt::AlignRight, "ml");
    if (kit_.Settings.Use.PotMl > 0) {
        Write(kPots, top, 5, Qt::AlignRight, "Pots");
    }
    if (kit_.Plan.Pages.Tiles.size() > 1) {
        Write({kPagesLeft, Right() - kFrontMargin - kPagesLeft}, top, 5, Qt::AlignLeft, "On pages");
    }
    Rule(kTop);
    kit_.DrawRule(painter_, Mm(kFrontMargin), Mm(kTop - 0.3), Mm(Right() - kFrontMargin));
    painter_.setPen(Qt::black);
}

void ChartPage::DrawSwatch(const PaintNeed& need, double top) {
    painter_.setPen(QPen(kFaintInk, Mm(0.1)));
    painter_.setBrush(ToQt(ColorOf(ColorOfRow(need))));
    painter_.drawRect(MmRect(kFrontMargin + kSwatch.Left, top + 0.3, kSwatch.Width, kRow - 0.6));
    painter_.setBrush(Qt::NoBrush);
    painter_.drawRect(MmRect(kFrontMargin + kDab.Left, top + 0.3, kDab.Width, kRow - 0.6));
    painter_.setPen(Qt::black);
}

// No pot has it yet.
void ChartPage::MarkNewLabel(const PaintNeed& need, double top) {
    const std::vector<OwnLabel>& labels = kit_.Marks.Labels;
    if (Holds(labels, need.Paint - 1) && At(labels, need.Paint - 1).IsNew) {
        painter_.setFont(TextFont(FontMm(2)));
        painter_.setPen(kFaintInk);
        Write(kSymbol, top + 6, 2.4, Qt::AlignHCenter, "new");
        painter_.setPen(Qt::black);
    }
}

// What a painter orders by, smaller rather than cut short.
void ChartPage::WriteName(const PaintNeed& need, double top) {
    const PaintColor& paint = ColorOfRow(need);
    painter_.setFont(TextFont(FontMm(3.4)));
    Write(kPaint, top + 0.6, 4, Qt::AlignLeft, ToQt(paint.PaintName));
    const QString order = ToQt(paint.Mfg + (paint.PaintCode.empty() ? "" : ", " + paint.PaintCode));
    double size = 2.5;
    painter_.setFont(TextFont(FontMm(size)));
    while (size > 1.7 &&
           QFontMetricsF(painter_.font(), painter_.device()).horizontalAdvance(order) >
               Mm(kPaint.Width)) {
        size -= 0.1;
        painter_.setFont(TextFont(FontMm(size)));
    }
    painter_.setPen(kFaintInk);
    Write(kPaint, top + 4.6, 3.4, Qt::AlignLeft, order);
    painter_.setPen(Qt::black);
}

void ChartPage::WriteFigures(const PaintNeed& need, double top, double height) {
    const double area = kit_.Settings.InInches() ? need.Cm2 / kCm2PerSqIn : need.Cm2;
    Write(kArea, top, height, Qt::AlignRight, ToQt(Decimals(area, area < 9.95 ? 1 : 0)));
    const double ml = std::max(need.Ml, kLeastMl);
    Write(kMl, top, height, Qt::AlignRight, ToQt(Decimals(ml, ml < 9.95 ? 1 : 0)));
    if (kit_.Settings.Use.PotMl > 0) {
        Write(kPots, top, height, Qt::AlignRight, QString::number(need.Pots));
    }
}

void ChartPage::DrawRow(const Row& row, double top) {
    if (row.Need == nullptr) {
        painter_.setFont(TextFont(FontMm(3.4), Weight::Bold));
        DrawLineOfText(painter_, MmRect(kFrontMargin, top, Right() - kFrontMargin, kRow),
                       Qt::AlignLeft, ToQt(row.Heading));
        Rule(top + kRow);
        return;
    }
    const PaintNeed& need = *row.Need;
    DrawSwatch(need, top);
    kit_.Symbols.DrawInLine(
        painter_, SymbolOf(kit_.Place.State->PaintColors, need.Paint),
        {Mm(kFrontMargin + kSymbol.Left + kSymbol.Width / 2), Mm(top + kRow / 2)}, Mm(3.2));
    MarkNewLabel(need, top);
    WriteName(need, top);
    painter_.setFont(TextFont(FontMm(3.2)));
    WriteFigures(need, top, kRow);
    WritePages(need, top);
    Rule(top + kRow);
}

// Of more than one.
void ChartPage::WritePages(const PaintNeed& need, double top) {
    const std::size_t all = kit_.Plan.Pages.Tiles.size();
    if (all == 1) {
        return;
    }
    const QRectF box =
        MmRect(kFrontMargin + kPagesLeft, top, Right() - kFrontMargin - kPagesLeft, kRow);
    const QString pages = PagesText(kit_.Plan.Pages.Tiles, need.Pages);
    constexpr int kFlags = Qt::AlignLeft | Qt::AlignVCenter | Qt::TextWordWrap;
    for (const double size : {2.6, 2.3, 2.0}) {
        painter_.setFont(TextFont(FontMm(size)));
        if (painter_.boundingRect(box, kFlags, pages).height() <= box.height()) {
            painter_.drawText(box, kFlags, pages);
            return;
        }
    }
    painter_.drawText(box, kFlags, QString("%1 of %2").arg(need.Pages.size()).arg(all));
}

void ChartPage::DrawSums(double top) {
    painter_.setFont(TextFont(FontMm(3.2), Weight::Bold));
    Write(kPaint, top, 7, Qt::AlignLeft, "Together");
    WriteFigures(SumOf(kit_.Needs), top, 7);
    painter_.setFont(TextFont(FontMm(2.7)));
    painter_.setPen(kFaintInk);
    DrawLineOfText(
        painter_, MmRect(kFrontMargin, top + 7, Right() - kFrontMargin, 5), Qt::AlignLeft,
        "Milliliters are for " + ToQt(UseText(kit_.Settings.Use, kit_.Settings.InInches())) + ".");
    painter_.setPen(Qt::black);
}

std::vector<Row> RowsOf(const KitPages& kit) {
    std::vector<Row> rows;
    std::vector<const PaintNeed*> needs;
    for (const PaintNeed& need : kit.Needs) {
        needs.push_back(&need);
    }
    const auto set = [&kit](const PaintNeed* need) -> const std::string& {
        return kit.Place.State->PaintColors[need->Paint].Mfg;
    };
    if (kit.Settings.GroupBySet) {
        std::ranges::stable_sort(needs, {}, set);
    }
    for (const PaintNeed* need : needs) {
        if (kit.Settings.GroupBySet &&
            (need == needs.front() || set(need) != rows.back().Heading)) {
            rows.push_back({nullptr, set(need)});
        }
        rows.push_back({need, set(need)});
    }
    return rows;
}

std::size_t RowsOnPage(const SizeMm& paper) {
    return static_cast<std::size_t>((paper.Height - kBottom - kFooter - kTop) / kRow);
}

}  // namespace

int CountChartPages(const KitPages& kit) {
    const std::size_t rows = RowsOf(kit).size();
    const std::size_t onPage = RowsOnPage(kit.FrontPaper);
    return static_cast<int>(std::max<std::size_t>(1, (rows + onPage - 1) / onPage));
}

void DrawChartPage(QPainter& painter, const KitPages& kit, int page) {
    const std::vector<Row> rows = RowsOf(kit);
    const int pages = CountChartPages(kit);
    // About as many on each, instead of a last page with two.
    const std::size_t onPage =
        (rows.size() + static_cast<std::size_t>(pages) - 1) / static_cast<std::size_t>(pages);
    ChartPage chart(painter, kit);
    chart.DrawHeading(page + 1, pages);
    double top = kTop;
    const std::size_t first = onPage * static_cast<std::size_t>(page);
    for (std::size_t i = first; i < std::min(rows.size(), first + onPage); ++i, top += kRow) {
        chart.DrawRow(rows[i], top);
    }
    if (page + 1 == pages) {
        chart.DrawSums(top + 1);
    }
}

}  // namespace vendrel
