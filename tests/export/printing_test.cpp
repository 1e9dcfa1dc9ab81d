// What needs fonts: the color chart as a picture and the kit as pages.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QtCore/QHashFunctions>
#include <algorithm>
#include <fstream>
#include <sstream>
#include <utility>
#include <vector>

#include "cleanup/paint_bench.h"
#include "cleanup/paint_pass.h"
#include "convert/bitmap_reader.h"
#include "export/color_chart_image.h"
#include "export/pdf_join.h"
#include "export/print_symbols.h"
#include "export/qt_exporter.h"
#include "export/symbol_likeness.h"
#include "output/symbol_set.h"
#include "shelf/labels.h"
#include "support/error.h"

namespace vendrel {
namespace {

using testing::HasSubstr;

class Printing : public testing::Test {
  protected:
    Printing() : easel_(8, {"1112", "1312", "1122"}) {
        std::ifstream symbols(VENDREL_SOURCE_DIR "/Data/Symbols.txt", std::ios::binary);
        std::stringstream bytes;
        bytes << symbols.rdbuf();
        easel_.Files.Write("Data/Symbols.txt", bytes.str());
        SetupBMPSymbols(easel_.State, easel_.Program);
        PaintAllCells(easel_.Place);
    }

    Surface Chart() const {
        PlannedKit kit(easel_.Place, exporter_, {});
        exporter_.Write(OutputId::Chart, kit, easel_.Files / "Results/chart.BMP");
        return ReadBitmap(easel_.Files / "Results/chart.BMP");
    }
    std::string Write(OutputId output, const PlanSettings& settings) const {
        PlannedKit kit(easel_.Place, exporter_, settings);
        exporter_.Write(output, kit, easel_.Files / "Results/made");
        return easel_.Files.Read("Results/made");
    }
    std::string Pdf(const PlanSettings& settings) const { return Write(OutputId::Pdf, settings); }

    mutable test::PaintBench easel_;
    QtExporter exporter_;
};

int Count(const std::string& text, const std::string& part) {
    int count = 0;
    for (auto at = text.find(part); at != text.npos; at = text.find(part, at + 1)) {
        ++count;
    }
    return count;
}

TEST_F(Printing, ChartIsAPageOfA4ThatSaysItsResolution) {
    const Surface chart = Chart();
    EXPECT_EQ(chart.Width(), 2480);
    EXPECT_EQ(chart.Height(), 3508);
    const std::string bytes = easel_.Files.Read("Results/chart.BMP");
    ASSERT_GT(bytes.size(), 54U);
    for (const std::size_t field : {38U, 42U}) {
        EXPECT_EQ(static_cast<unsigned char>(bytes[field]) +
                      256 * static_cast<unsigned char>(bytes[field + 1]),
                  11811);
    }
    (void)Chart();
    EXPECT_EQ(easel_.Files.Read("Results/chart.BMP"), bytes);
}

TEST_F(Printing, ChartCutsLongNamesShortInsteadOfRunningIntoTheFigures) {
    const Surface shortNames = Chart();
    easel_.State.PaintColors[2].PaintName = std::string(300, 'W');
    const Surface longName = Chart();
    EXPECT_NE(shortNames, longName);
    for (int y = 0; y < longName.Height(); ++y) {
        const auto figures = longName.Row(y).From(1780);
        ASSERT_TRUE(std::ranges::equal(figures, shortNames.Row(y).From(1780))) << y;
    }
}

TEST_F(Printing, ChartShowsAFullPaletteOnOnePage) {
    SetPalette(easel_.State, PaintList(50, {250, 1, 2, "Set", "C", "Last", 0}));
    const Surface chart = Chart();
    EXPECT_EQ(chart.Get(200, 3508 - 150 - 30), Rgb(250, 1, 2));  // the last swatch
    EXPECT_EQ(chart.Get(200, 3508 - 100), kWhite);
    SetPalette(easel_.State, PaintList(51));
    EXPECT_THROW((void)Chart(), Error);
}

TEST_F(Printing, KitHasFrontPagesAndThePlanAndTheSameBytesEveryTime) {
    const Surface painting = easel_.Work();
    const std::string pdf = Pdf({.Sheet = Paper::A4, .CanvasCm = 40});
    EXPECT_TRUE(pdf.starts_with("%PDF"));
    EXPECT_THAT(pdf, HasSubstr("/CreationDate (D:20000101000000"));
    EXPECT_THAT(pdf, HasSubstr("/MediaBox [0 0 595"));
    EXPECT_GE(Count(pdf, "/Type /Page\n"), 3 + 4);
    for (int run = 0; run < 4; ++run) {
        QHashSeed::resetRandomGlobalSeed();  // as every start of the program does
        EXPECT_TRUE(Pdf({.Sheet = Paper::A4, .CanvasCm = 40}) == pdf);
    }
    EXPECT_EQ(Count(Pdf({.Sheet = Paper::A3, .CanvasCm = 20}), "/Type /Page\n"), 4);
    EXPECT_FALSE(Pdf({.CanvasCm = 40, .Symbols = SymbolStyle::Signs}) == pdf);
    EXPECT_EQ(easel_.Work(), painting);
}

// The table at the end says where objects begin: a box put in moves what follows.
TEST_F(Printing, ACanvasPageSaysWhereItIsCut) {
    const std::string pdf = Pdf({.Sheet = Paper::Canvas, .Canvas = {200, 150}, .BleedMm = 20});
    EXPECT_THAT(pdf, HasSubstr("/BleedBox [34.016 34.016 "));  // 12 mm
    EXPECT_THAT(pdf, HasSubstr("/TrimBox [90.709 90.709 "));   // 32 mm
    std::istringstream table(pdf.substr(std::stoul(pdf.substr(pdf.rfind("startxref") + 9))));
    std::string word;
    int first = -1;
    int objects = 0;
    table >> word >> first >> objects;
    ASSERT_EQ(word, "xref");
    for (int object = 0; object < objects; ++object) {
        std::size_t offset = 0;
        std::string generation;
        table >> offset >> generation >> word;
        const std::string head = std::to_string(object) + " 0 obj";
        EXPECT_TRUE(object == 0 || pdf.compare(offset, head.size(), head) == 0) << object;
    }
    EXPECT_THAT(Pdf({.CanvasCm = 20}), testing::Not(HasSubstr("TrimBox")));
}

TEST_F(Printing, AMakersLogoMustBeAPicture) {
    PlanSettings settings{.CanvasCm = 40};
    const std::string plain = Pdf(settings);
    settings.Maker = "Kitchen Table Kits";
    const std::string named = Pdf(settings);
    settings.Logo = easel_.Files / "logo.png";
    EXPECT_THROW((void)Pdf(settings), FileError);
    QImage logo(40, 20, QImage::Format_RGB32);
    logo.fill(Qt::red);
    ASSERT_TRUE(logo.save(QString::fromStdString(settings.Logo.string())));
    EXPECT_GT(Pdf(settings).size(), named.size());
    EXPECT_FALSE(named == plain);
}

int Pages(const std::string& pdf) {
    return Count(pdf, "/Type /Page") - Count(pdf, "/Type /Pages");
}

TEST_F(Printing, AShopsOrderHasItsNumberAndALeaflet) {
    PlanSettings settings{.CanvasCm = 40};
    const std::string plain = Pdf(settings);
    settings.Shop.Order = "A-7";
    const std::string numbered = Pdf(settings);
    settings.Shop.Accent = Rgb(31, 95, 168);
    EXPECT_FALSE(numbered == plain || Pdf(settings) == numbered);
    EXPECT_EQ(Count(Write(OutputId::Page, settings), "Order A-7: "), 3);
    settings.Shop.Leaflet = easel_.Files.Write("hello.txt", "# {order}\n\n{gift}");
    EXPECT_THROW((void)Pdf(settings), FormatError);
    settings.Shop.Fields["gift"] = "";
    for (int i = 0; i < 2000; ++i) {
        settings.Shop.Fields["gift"] += "words ";
    }
    const std::string printed = Pdf(settings);
    EXPECT_EQ(Pages(printed), Pages(plain) + 4);
    QHashSeed::resetRandomGlobalSeed();
    EXPECT_TRUE(Pdf(settings) == printed);
    settings.Shop.Order = std::string(5000, 'x');
    EXPECT_THROW((void)Pdf(settings), Error);
}

TEST_F(Printing, APrintRunHasThePagesOfAllAndTheSameBytesEveryTime) {
    const std::string one = Pdf({.Sheet = Paper::A4, .CanvasCm = 40});
    const std::string other = Pdf({.Sheet = Paper::A3, .CanvasCm = 20});
    const auto first = easel_.Files.Write("b.pdf", one);
    const auto second = easel_.Files.Write("a.pdf", other);
    JoinPdfs({first, second, first}, easel_.Files / "run.pdf");
    const std::string run = easel_.Files.Read("run.pdf");
    EXPECT_EQ(Pages(run), 2 * Pages(one) + Pages(other));
    EXPECT_EQ(Count(run, "/Title "), 3);
    JoinPdfs({first, second, first}, easel_.Files / "again.pdf");
    EXPECT_TRUE(easel_.Files.Read("again.pdf") == run);
    easel_.Files.Write("a.pdf", other.substr(0, 20));
    EXPECT_THROW(JoinPdfs({first, second}, easel_.Files / "run.pdf"), FileError);
    EXPECT_TRUE(easel_.Files.Read("run.pdf") == run);
}

TEST_F(Printing, TheShoppingListIsATable) {
    easel_.State.PaintColors[1].PaintName = "Red, \"warm\"";
    PlanSettings settings{.CanvasCm = 40, .Symbols = SymbolStyle::Numbers};
    settings.Use.PotMl = 20;
    const std::string list = Write(OutputId::List, settings);
    EXPECT_TRUE(list.starts_with("\xEF\xBB\xBFsymbol,set,name,code,color,cm2,ml,pots,pages\r\n1,"));
    EXPECT_THAT(list, HasSubstr(",\"Red, \"\"warm\"\"\","));
    EXPECT_EQ(Count(list, "\r\n"), 1 + easel_.State.PaintCount + 1);
}

TEST_F(Printing, LinesAndTheirGrayAreThePaintersChoice) {
    const auto pdf = [this](LineShape shape, int gray = kUsualGray) {
        return Pdf({.Sheet = Paper::A4, .CanvasCm = 20, .Lines = shape, .Gray = gray});
    };
    EXPECT_TRUE(pdf(LineShape::ByKit) == pdf(LineShape::Steps));
    easel_.State.PaintableKit = true;
    const std::string smooth = pdf(LineShape::Smooth);
    EXPECT_TRUE(pdf(LineShape::ByKit) == smooth);
    EXPECT_FALSE(pdf(LineShape::Steps) == smooth);
    EXPECT_FALSE(pdf(LineShape::Smooth, 80) == smooth);
}

TEST_F(Printing, AFolderThatCannotBeWrittenIsNamed) {
    easel_.Files.Write("Results", "in the way");
    EXPECT_THROW((void)Chart(), FileError);
    EXPECT_THROW((void)Pdf({}), FileError);
    EXPECT_EQ(easel_.Files.Read("Results"), "in the way");
}

TEST_F(Printing, SymbolsStandWhereTheyAreMeasured) {
    const std::vector<std::pair<SymbolStyle, double>> broadest = {
        {SymbolStyle::Letters, 0.66}, {SymbolStyle::Numbers, 1.2}, {SymbolStyle::Signs, 1}};
    for (const auto& [style, most] : broadest) {
        const PrintSymbols symbols(style, kSymbolCount);
        for (int symbol = 1; symbol <= kSymbolCount; ++symbol) {
            const double aspect = symbols.Aspects()[static_cast<std::size_t>(symbol)];
            EXPECT_GT(aspect, 0.2);
            EXPECT_LE(aspect, most + 1e-9);
            QImage image(300, 300, QImage::Format_RGB32);
            image.fill(Qt::white);
            QPainter painter(&image);
            painter.setPen(Qt::black);
            symbols.Draw(painter, symbol, {150, 150}, 200);
            painter.end();
            const QRgb paper = qRgb(255, 255, 255);
            int ink = 0;
            for (int y = 0; y < 300; ++y) {
                for (int x = 0; x < 300; ++x) {
                    const bool inside =
                        std::abs(y - 149.5) <= 102 && std::abs(x - 149.5) <= 100 * aspect + 2;
                    ink += image.pixel(x, y) != paper ? 1 : 0;
                    ASSERT_TRUE(inside || image.pixel(x, y) == paper)
                        << symbol << ": " << x << ' ' << y;
                }
            }
            EXPECT_GT(ink, 1000) << symbol;
        }
    }
}

// What the orders of letters and signs promise, by the measure they were made with.
TEST_F(Printing, TheFirstSymbolsOfAStyleAreToldApartBest) {
    const auto worst = [](SymbolStyle style, int paints) {
        PaintMarks marks{style, paints};
        for (const std::string& label : NextFreeLabels({}, paints)) {
            marks.Labels.push_back({label});
        }
        const PrintSymbols symbols(marks);
        std::vector<SymbolDrawing> drawings;
        for (int i = 1; i <= paints; ++i) {
            drawings.push_back([&symbols, i](QPainter& painter, QPointF centre, double height) {
                symbols.Draw(painter, i, centre, height);
            });
        }
        const auto alike = Likenesses(
            drawings, style == SymbolStyle::Signs ? SymbolTop::Unknown : SymbolTop::Known);
        double most = 0;
        for (std::size_t i = 0; i < alike.size(); ++i) {
            for (std::size_t j = 0; j < i; ++j) {
                most = std::max(most, alike[i][j]);
            }
        }
        return most;
    };
    EXPECT_LT(worst(SymbolStyle::Clear, 32), 0.88);
    EXPECT_LT(worst(SymbolStyle::Signs, 50), 0.91);
    EXPECT_LT(worst(SymbolStyle::Mine, 32), 0.88);
    EXPECT_LT(worst(SymbolStyle::Mine, 50), 0.91);
    EXPECT_GT(worst(SymbolStyle::Letters, 50), 0.93) << "8 and B";
    EXPECT_EQ(LettersFor(SymbolStyle::Clear, 3), "7AL");
}

}  // namespace
}  // namespace vendrel
