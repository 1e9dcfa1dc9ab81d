// Which of the plan's symbols are told apart best: prints the order in which they are taken for
// letters (plan/symbol_style.cpp) and signs (plan/signs.cpp), with the most alike pairs, and draws
// them when a file is named.
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

#include "export/print_fonts.h"
#include "export/print_symbols.h"
#include "export/symbol_likeness.h"
#include "output/symbol_set.h"
#include "plan/look_alike.h"
#include "plan/signs.h"

namespace {

using namespace vendrel;

struct Named {
    std::vector<std::string> Names;
    std::vector<SymbolDrawing> Drawings;
};

Named Letters() {
    static const PrintSymbols symbols(SymbolStyle::Letters, kSymbolCount);
    Named all;
    for (int i = 1; i <= kSymbolCount; ++i) {
        all.Names.emplace_back(1, kSymbolCharacters[static_cast<std::size_t>(i - 1)]);
        all.Drawings.push_back([i](QPainter& painter, QPointF centre, double height) {
            symbols.Draw(painter, i, centre, height);
        });
    }
    return all;
}

Named AllSigns() {
    Named all;
    for (const Sign& sign : Signs()) {
        all.Names.emplace_back(sign.Name);
        all.Drawings.push_back([&sign](QPainter& painter, QPointF centre, double height) {
            DrawSign(painter, sign, centre, height);
        });
    }
    return all;
}

double WorstOf(const std::vector<std::vector<double>>& alike, const std::vector<int>& order,
               std::size_t count) {
    double worst = -1;
    for (std::size_t i = 0; i < count; ++i) {
        for (std::size_t j = 0; j < i; ++j) {
            worst = std::max(
                worst,
                alike[static_cast<std::size_t>(order[i])][static_cast<std::size_t>(order[j])]);
        }
    }
    return worst;
}

void Report(const char* title, const Named& symbols, bool quoted) {
    const auto alike = Likenesses(symbols.Drawings, quoted ? SymbolTop::Unknown : SymbolTop::Known);
    const std::vector<int> order = MostDistinctFirst(alike);
    std::printf("%s, most distinct first:\n", title);
    for (const int i : order) {
        std::printf(quoted ? "\"%s\", " : "%s", symbols.Names[static_cast<std::size_t>(i)].c_str());
    }
    std::printf("\nmost alike pair of the first");
    for (const std::size_t count : {16, 32, 40, 50}) {
        std::printf("  %zu: %.3f", count, WorstOf(alike, order, count));
    }
    std::printf("\nmost alike:");
    struct Pair {
        double Alike;
        std::size_t I, J;
    };
    std::vector<Pair> pairs;
    for (std::size_t i = 0; i < alike.size(); ++i) {
        for (std::size_t j = 0; j < i; ++j) {
            pairs.push_back({alike[i][j], i, j});
        }
    }
    std::ranges::sort(pairs, std::greater(), &Pair::Alike);
    for (std::size_t i = 0; i < 24; ++i) {
        std::printf("  %s/%s %.2f", symbols.Names[pairs[i].I].c_str(),
                    symbols.Names[pairs[i].J].c_str(), pairs[i].Alike);
    }
    std::printf("\n");
}

// Each style at 1.5, 2 and 6 mm, 300 dots to the inch.
void Draw(const char* file) {
    constexpr double kDot = 300 / 25.4;
    QImage image(1500, 2100, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QColor(70, 70, 70));
    double top = 40;
    for (const SymbolStyle style :
         {SymbolStyle::Letters, SymbolStyle::Clear, SymbolStyle::Numbers, SymbolStyle::Signs}) {
        const int paints = style == SymbolStyle::Clear ? 32 : 50;
        const PrintSymbols symbols(style, paints);
        for (const double height : {6.0, 2.0, 1.5}) {
            const int across = height > 2 ? 13 : 26;
            const double step = 1440.0 / across;
            for (int i = 1; i <= paints; ++i) {
                symbols.Draw(painter, i,
                             {40 + (i - 1) % across * step + step / 2,
                              top + (i - 1) / across * (height * kDot + 20)},
                             height * kDot);
            }
            top += ((paints - 1) / across + 1) * (height * kDot + 20) + 10;
        }
    }
    painter.end();
    image.save(file);
}

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication app(argc, argv);
    Report("letters", Letters(), false);
    Report("signs", AllSigns(), true);
    if (argc > 1) {
        Draw(argv[1]);
    }
}
