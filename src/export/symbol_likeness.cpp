#include "export/symbol_likeness.h"

#include <QtGui/QImage>
#include <algorithm>

#include "plan/look_alike.h"

namespace vendrel {
namespace {

constexpr double kDotsPerMm = 300 / 25.4;
constexpr double kBlurMm = 0.08;  // a printed dot, and what an eye resolves
constexpr double kTurned = 0.9;   // how much a shape that was turned looks like itself
constexpr int kReach = 2;         // dots by which one may lie beside the other
constexpr double kFine = 20;      // units of the painter per dot

// By quarters; shapes, unlike letters, have no top that everybody knows.
Grid<double> Turned(const Grid<double>& seen) {
    Grid<double> turned(seen.Down(), seen.Across());
    for (int y = 0; y <= seen.Down(); ++y) {
        for (int x = 0; x <= seen.Across(); ++x) {
            turned(seen.Down() - y, x) = seen(x, y);
        }
    }
    return turned;
}

double AlikeAnyWay(const Grid<double>& one, Grid<double> other) {
    double most = LookAlike(one, other, kReach);
    for (int quarter = 1; quarter < 4; ++quarter) {
        other = Turned(other);
        most = std::max(most, kTurned * LookAlike(one, other, kReach));
    }
    return most;
}

Grid<double> Seen(const SymbolDrawing& draw, double heightMm) {
    constexpr int kSide = 34;
    QImage image(kSide, kSide, QImage::Format_Grayscale8);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(1 / kFine, 1 / kFine);
    painter.setPen(Qt::black);
    draw(painter, QPointF(kSide, kSide) * (kFine / 2), heightMm * kDotsPerMm * kFine);
    painter.end();
    ValueGrid ink(kSide - 1, kSide - 1);
    for (int y = 0; y < kSide; ++y) {
        for (int x = 0; x < kSide; ++x) {
            ink(x, y) = 255 - image.constScanLine(y)[x];
        }
    }
    return Blurred(ink, kBlurMm * kDotsPerMm);
}

}  // namespace

std::vector<std::vector<double>> Likenesses(const std::vector<SymbolDrawing>& symbols,
                                            SymbolTop top) {
    std::vector<std::vector<double>> alike(symbols.size(), std::vector<double>(symbols.size(), 1));
    for (const double height : {1.5, 2.0}) {
        std::vector<Grid<double>> seen;
        for (const SymbolDrawing& symbol : symbols) {
            seen.push_back(Seen(symbol, height));
        }
        for (std::size_t i = 0; i < symbols.size(); ++i) {
            for (std::size_t j = 0; j < i; ++j) {
                const double now = top == SymbolTop::Known ? LookAlike(seen[i], seen[j], kReach)
                                                           : AlikeAnyWay(seen[i], seen[j]);
                const double before = height < 2.0 ? now : alike[i][j];
                alike[i][j] = alike[j][i] = std::max(now, before);
            }
        }
    }
    return alike;
}

}  // namespace vendrel
