// The plan as a drawing and as a page to paint along with.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QtCore/QHashFunctions>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QXmlStreamReader>
#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <map>
#include <string>
#include <vector>

#include "cleanup/paint_bench.h"
#include "cleanup/paint_pass.h"
#include "export/qt_exporter.h"

namespace vendrel {
namespace {

using testing::HasSubstr;
using testing::Not;

constexpr auto kNastyName = "A \"b\" </script><b>&amp; {{data}} \x01\xE9";
constexpr auto kNastyShown = "A \"b\" </script><b>&amp; {{data}} \u00e9";

class Drawings : public testing::Test {
  protected:
    Drawings() : easel_(8, {"11123", "13121", "11224", "55224"}) {
        PaintAllCells(easel_.Place);
        easel_.State.PaintColors[2].PaintName = kNastyName;
        easel_.State.PictureName = "Lady & <Tramp>";
    }
    std::string Written(OutputId output, const PlanSettings& settings) const {
        QHashSeed::resetRandomGlobalSeed();  // as every start of the program does
        PlannedKit kit(easel_.Place, exporter_, settings);
        exporter_.Write(output, kit, easel_.Files / "Results/drawing");
        return easel_.Files.Read("Results/drawing");
    }

    mutable test::PaintBench easel_;
    QtExporter exporter_;
};

// What path data of straight pieces encloses, clockwise rings less the others; fails where a ring
// stays open.
double Enclosed(const std::string& path) {
    double twice = 0;
    double at[2] = {};
    double start[2] = {};
    char command = 0;
    for (const char* next = path.c_str(); *next != 0;) {
        if (std::isalpha(static_cast<unsigned char>(*next)) != 0) {
            EXPECT_TRUE(*next != 'M' || command == 0 || command == 'z') << path;
            command = *next++;
            if (command == 'z') {
                twice += at[0] * start[1] - start[0] * at[1];
            }
            continue;
        }
        double to[2] = {at[0], at[1]};
        for (const int axis : {0, 1}) {
            if ((command == 'h' && axis == 1) || (command == 'v' && axis == 0)) {
                continue;
            }
            char* end = nullptr;
            to[axis] = (command == 'M' ? 0 : at[axis]) + std::strtod(next, &end);
            next = end;
        }
        twice += command == 'M' ? 0 : at[0] * to[1] - to[0] * at[1];
        std::copy_n(to, 2, at);
        if (command == 'M') {
            std::copy_n(to, 2, start);
        }
        next += *next == ' ' ? 1 : 0;
    }
    EXPECT_EQ(command, 'z') << path;
    return twice / 2;
}

struct SvgLayers {
    QString Width;
    QString Title;
    std::map<QString, std::vector<std::string>> Paths;  // by the layer's label
};

SvgLayers LayersOf(const std::string& svg) {
    SvgLayers layers;
    std::vector<QString> open;
    QXmlStreamReader xml(QByteArray::fromStdString(svg));
    while (!xml.atEnd()) {
        xml.readNext();
        if (xml.isStartElement() && xml.name() == QStringLiteral("title") &&
            layers.Title.isEmpty()) {
            layers.Title = xml.readElementText();
        } else if (xml.isStartElement() && xml.name() == QStringLiteral("svg")) {
            layers.Width = xml.attributes().value("width").toString();
        } else if (xml.isStartElement() && xml.name() == QStringLiteral("g")) {
            open.push_back(xml.attributes().value("inkscape:label").toString());
            EXPECT_EQ(xml.attributes().value("inkscape:groupmode"), QStringLiteral("layer"));
            layers.Paths[open.back()];
        } else if (xml.isEndElement() && xml.name() == QStringLiteral("g")) {
            open.pop_back();
        } else if (xml.isStartElement() && xml.name() == QStringLiteral("path")) {
            layers.Paths[open.back()].push_back(
                xml.attributes().value("d").toString().toStdString());
        }
    }
    EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
    return layers;
}

TEST_F(Drawings, SvgHasALayerForEachPaintWhoseClosedAreasFillTheCanvas) {
    for (const LineShape shape : {LineShape::Steps, LineShape::Smooth}) {
        const PlanSettings settings{.CanvasCm = 20, .Lines = shape};
        const std::string svg = Written(OutputId::Svg, settings);
        EXPECT_TRUE(Written(OutputId::Svg, settings) == svg);
        SvgLayers layers = LayersOf(svg);
        EXPECT_EQ(layers.Width, QStringLiteral("200mm"));
        EXPECT_EQ(layers.Title, QStringLiteral("Lady & <Tramp>, Easy"));
        EXPECT_EQ(layers.Paths.size(), 9U + 3U) << "paints, and what is around and above them";
        EXPECT_EQ(layers.Paths["1 Set: Paint 1 [C1]"].size(), 2U);
        EXPECT_EQ(layers.Paths["2 Set: " + QString::fromUtf8(kNastyShown) + " [C2]"].size(), 1U);
        EXPECT_TRUE(layers.Paths["Paints"].empty());
        EXPECT_GT(layers.Paths["Outlines"].size(), 5U);
        EXPECT_GE(layers.Paths["Symbols"].size(), 6U);
        double whole = 0;
        for (const auto& [label, paths] : layers.Paths) {
            for (const std::string& path : paths) {
                whole += label.contains("Set: ") ? Enclosed(path) : 0;
            }
        }
        EXPECT_NEAR(whole, 200 * 160, 200 * 160 * 1e-4);
    }
}

TEST_F(Drawings, SymbolsOfEveryStyleAreClosedShapes) {
    for (const SymbolStyle style :
         {SymbolStyle::Letters, SymbolStyle::Numbers, SymbolStyle::Signs}) {
        SvgLayers layers = LayersOf(Written(OutputId::Svg, {.CanvasCm = 20, .Symbols = style}));
        for (const std::string& path : layers.Paths["Symbols"]) {
            EXPECT_EQ(std::ranges::count(path, 'M'), std::ranges::count(path, 'z'));
            EXPECT_THAT(path, testing::EndsWith("z"));
            EXPECT_THAT(path, Not(HasSubstr("nan")));
        }
        EXPECT_EQ(layers.Paths.count("1 Set: Paint 1 [C1]"), style == SymbolStyle::Signs ? 0U : 1U);
    }
}

TEST_F(Drawings, PageHoldsTheKitWhateverItsNamesAre) {
    const std::string page = Written(OutputId::Page, {.CanvasCm = 20});
    EXPECT_TRUE(Written(OutputId::Page, {.CanvasCm = 20}) == page);
    EXPECT_THAT(page, HasSubstr("<title>Lady &amp; &lt;Tramp&gt;, Easy</title>"));
    EXPECT_THAT(page, Not(HasSubstr("://")));
    const std::string begin = "id=\"kit\">";
    const auto from = page.find(begin) + begin.size();
    const QJsonObject kit = QJsonDocument::fromJson(QByteArray::fromStdString(page.substr(
                                                        from, page.find("</script>", from) - from)))
                                .object();
    EXPECT_EQ(kit["paints"].toArray()[1].toObject()["name"].toString(),
              QString::fromUtf8(kNastyShown));
    EXPECT_EQ(kit["paints"].toArray().size(), 9);
    const qsizetype chains = kit["chains"].toArray().size();
    double mm2 = 0;
    std::map<int, int> uses;
    for (const QJsonValue area : kit["areas"].toArray()) {
        mm2 += area[1].toDouble();
        for (const QJsonValue ring : area[2].toArray()) {
            for (const QJsonValue way : ring.toArray()) {
                EXPECT_LE(std::abs(way.toInt()), chains);
                EXPECT_EQ(++uses[way.toInt()], 1) << "each side of a border has one area";
            }
        }
    }
    EXPECT_NEAR(mm2, 200 * 160, 1);
    EXPECT_GE(kit["labels"].toArray().size(), kit["areas"].toArray().size());
}

}  // namespace
}  // namespace vendrel
