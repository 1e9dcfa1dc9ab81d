#include "export/shopping_pages.h"

#include <QtCore/QStringList>
#include <algorithm>

#include "export/pdf_file.h"
#include "export/pdf_units.h"
#include "export/print_fonts.h"
#include "export/print_symbols.h"
#include "shell/symbol_of.h"
#include "support/decimals.h"
#include "support/error.h"
#include "support/list.h"

namespace vendrel {
namespace {

constexpr double kListMargin = 15;
constexpr double kListTop = 40;   // of the first line
constexpr double kListRow = 9.6;  // of a paint
constexpr double kSetRow = 9;     // of a set's heading
constexpr double kListEnd = 14;   // the sums
const QColor kPale(110, 110, 110);
const QColor kListRule(170, 170, 170);

// Left edge and width of the columns, in millimeters from the margin; the kits take what is left.
struct ListColumn {
    double Left;
    double Width;
};
constexpr ListColumn kTick{0, 5};
constexpr ListColumn kColor{8, 15};
constexpr ListColumn kLabel{24, 12};
constexpr ListColumn kName{38, 68};
constexpr ListColumn kBuy{106, 16};
constexpr ListColumn kPotCount{122, 12};
constexpr double kInKits = 138;

// A paint, or the heading of a set.
struct ListLine {
    const ShoppingItem* Item = nullptr;
    std::string Heading;

    [[nodiscard]] double Height() const { return Item != nullptr ? kListRow : kSetRow; }
};

std::vector<ListLine> LinesOf(const std::vector<ShoppingItem>& items) {
    std::vector<ListLine> lines;
    for (const ShoppingItem& item : items) {
        if (item.BuyMl <= 0) {
            continue;
        }
        if (lines.empty() || lines.back().Item->Paint.Mfg != item.Paint.Mfg) {
            lines.push_back({nullptr, item.Paint.Mfg.empty() ? "Other paints" : item.Paint.Mfg});
        }
        lines.push_back({&item, {}});
    }
    return lines;
}

class ShoppingSheets {
  public:
    ShoppingSheets(QPdfWriter& writer, QPainter& painter, const ShoppingPage& list)
        : writer_(writer), painter_(painter), list_(list), size_(list.Sheet()) {
        for (const KitNeeds& kit : list.Kits) {
            symbols_.emplace_back(kit.Marks);
        }
    }

    void Draw();

  private:
    [[nodiscard]] double Right() const { return size_.Width - kListMargin; }
    [[nodiscard]] double Bottom() const { return size_.Height - kListMargin; }
    void Write(const ListColumn& column, double top, double height, int flags, const QString& text);
    void Rule(double at);
    void BeginPage(int page);
    void DrawSet(const std::string& set, double top);
    void DrawPaint(const ShoppingItem& item, double top);
    void DrawName(const PaintColor& paint, double top);
    void DrawKits(const ShoppingItem& item, double top);
    void DrawSums(double top);
    [[nodiscard]] bool HasPots() const { return SumOf(list_.Items).Pots > 0; }

    QPdfWriter& writer_;
    QPainter& painter_;
    const ShoppingPage& list_;
    SizeMm size_;
    std::vector<PrintSymbols> symbols_;  // by kit
};

void ShoppingSheets::Write(const ListColumn& column, double top, double height, int flags,
                           const QString& text) {
    DrawLineOfText(painter_, MmRect(kListMargin + column.Left, top, column.Width, height), flags,
                   text);
}

void ShoppingSheets::Rule(double at) {
    painter_.setPen(QPen(kListRule, Mm(0.15)));
    painter_.drawLine(QPointF(Mm(kListMargin), Mm(at)), QPointF(Mm(Right()), Mm(at)));
    painter_.setPen(Qt::black);
}

void ShoppingSheets::BeginPage(int page) {
    const double width = Right() - kListMargin;
    painter_.setPen(Qt::black);
    painter_.setFont(TextFont(FontMm(7), Weight::Bold));
    DrawLineOfText(
        painter_, MmRect(kListMargin, kListMargin, width, 10), Qt::AlignLeft,
        page == 1 ? QString("Shopping List") : QString("Shopping List, page %1").arg(page));
    QStringList kits;
    for (const KitNeeds& kit : list_.Kits) {
        kits << ToQt(kit.Title);
    }
    painter_.setFont(TextFont(FontMm(3.6)));
    painter_.setPen(kPale);
    DrawLineOfText(painter_, MmRect(kListMargin, kListMargin + 10, width, 7), Qt::AlignLeft,
                   "For " + kits.join("  \u2022  "));
    painter_.setFont(TextFont(FontMm(2.7)));
    const double top = kListTop - 6;
    Write(kLabel, top, 5, Qt::AlignHCenter, "Label");
    Write(kName, top, 5, Qt::AlignLeft, "Paint");
    Write(kBuy, top, 5, Qt::AlignRight, "Buy ml");
    if (HasPots()) {
        Write(kPotCount, top, 5, Qt::AlignRight, "Pots");
    }
    Write({kInKits, width - kInKits}, top, 5, Qt::AlignLeft, "Symbol in its kits");
    Rule(kListTop);
}

void ShoppingSheets::DrawSet(const std::string& set, double top) {
    painter_.setFont(TextFont(FontMm(4), Weight::Bold));
    Write({0, Right() - kListMargin}, top + 2, kSetRow - 2, Qt::AlignLeft, ToQt(set));
    Rule(top + kSetRow);
}

// What shops look up stands below what painters say.
void ShoppingSheets::DrawName(const PaintColor& paint, double top) {
    const bool hasCode = !paint.PaintCode.empty();
    painter_.setFont(TextFont(FontMm(3.5), Weight::Bold));
    Write(kName, top + (hasCode ? 0.4 : 0), hasCode ? 5 : kListRow, Qt::AlignLeft,
          ToQt(paint.PaintName));
    painter_.setFont(TextFont(FontMm(3)));
    Write(kName, top + 5, 4.2, Qt::AlignLeft, ToQt(paint.PaintCode));
}

void ShoppingSheets::DrawKits(const ShoppingItem& item, double top) {
    constexpr double kSymbolWidth = 7;
    constexpr int kMostShown = 4;  // in two lines
    const int count = static_cast<int>(item.In.size());
    const int across = count > 2 ? 2 : 1;
    const double each = (Right() - kListMargin - kInKits) / across;
    const double height = count > 1 ? kListRow / 2 : kListRow;
    painter_.setFont(TextFont(FontMm(2.7)));
    for (int i = 0; i < std::min(count, kMostShown); ++i) {
        const PaintInKit& in = At(item.In, i);
        const double left = kListMargin + kInKits + i % across * each;
        const double middle = top + height * (i / across + 0.5);
        const int symbol = SymbolOf(At(list_.Kits, in.Kit).Paints, in.Paint);
        const PrintSymbols& symbols = At(symbols_, in.Kit);
        if (!symbols.NameOf(symbol).empty()) {
            symbols.DrawInLine(painter_, symbol, {Mm(left + kSymbolWidth / 2), Mm(middle)},
                               Mm(2.6));
        }
        const std::string more = i + 1 == kMostShown && count > kMostShown
                                     ? "and " + std::to_string(count - i - 1) + " more"
                                     : At(list_.Kits, in.Kit).Title;
        DrawLineOfText(painter_,
                       MmRect(left + kSymbolWidth + 0.5, middle - height / 2,
                              each - kSymbolWidth - 1.5, height),
                       Qt::AlignLeft, ToQt(more));
    }
}

void ShoppingSheets::DrawPaint(const ShoppingItem& item, double top) {
    painter_.setBrush(Qt::NoBrush);
    painter_.setPen(QPen(Qt::black, Mm(0.3)));
    painter_.drawRect(MmRect(kListMargin + kTick.Left, top + (kListRow - kTick.Width) / 2,
                             kTick.Width, kTick.Width));
    painter_.setPen(QPen(kPale, Mm(0.1)));
    painter_.setBrush(ToQt(ColorOf(item.Paint)));
    painter_.drawRect(MmRect(kListMargin + kColor.Left, top + 0.8, kColor.Width, kListRow - 1.6));
    painter_.setBrush(Qt::NoBrush);
    painter_.setPen(Qt::black);
    painter_.setFont(TextFont(FontMm(4), Weight::Bold));
    Write(kLabel, top, kListRow, Qt::AlignHCenter, ToQt(item.Label));
    DrawName(item.Paint, top);
    painter_.setFont(TextFont(FontMm(3.8), Weight::Bold));
    Write(kBuy, top, kListRow, Qt::AlignRight, ToQt(Decimals(item.BuyMl, 1)));
    if (item.Pots > 0) {
        Write(kPotCount, top, kListRow, Qt::AlignRight, QString::number(item.Pots));
    }
    DrawKits(item, top);
    Rule(top + kListRow);
}

void ShoppingSheets::DrawSums(double top) {
    const ShoppingSum sum = SumOf(list_.Items);
    painter_.setFont(TextFont(FontMm(3.8), Weight::Bold));
    Write({kName.Left, kBuy.Left - kName.Left}, top, 7, Qt::AlignLeft,
          QString("Together %1 paints").arg(sum.Paints));
    Write(kBuy, top, 7, Qt::AlignRight, ToQt(Decimals(sum.Ml, 1)));
    if (sum.Pots > 0) {
        Write(kPotCount, top, 7, Qt::AlignRight, QString::number(sum.Pots));
    }
    painter_.setFont(TextFont(FontMm(2.7)));
    painter_.setPen(kPale);
    DrawLineOfText(painter_, MmRect(kListMargin, top + 7, Right() - kListMargin, 5), Qt::AlignLeft,
                   "Milliliters are with 15 % to spare, less what is left on your shelf.");
    painter_.setPen(Qt::black);
}

// A heading goes with its first paint.
void ShoppingSheets::Draw() {
    int page = 1;
    double top = kListTop;
    BeginPage(page);
    const auto makeRoom = [&](double height) {
        if (top + height > Bottom()) {
            writer_.newPage();
            BeginPage(++page);
            top = kListTop;
        }
    };
    for (const ListLine& line : LinesOf(list_.Items)) {
        makeRoom(line.Item != nullptr ? kListRow : kSetRow + kListRow);
        if (line.Item != nullptr) {
            DrawPaint(*line.Item, top);
        } else {
            DrawSet(line.Heading, top);
        }
        top += line.Height();
    }
    makeRoom(kListEnd);
    DrawSums(top + 1);
}

}  // namespace

void WriteShoppingPages(const ShoppingPage& page, const Target& target) {
    if (SumOf(page.Items).Paints == 0) {
        throw Error("There is nothing to buy, so there is no list to print.");
    }
    WritePdf("Shopping List", page.Sheet(), target, [&](QPdfWriter& writer, QPainter& painter) {
        ShoppingSheets(writer, painter, page).Draw();
    });
}

}  // namespace vendrel
