#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "plan/inscribed_boxes.h"
#include "plan/page_tiling.h"
#include "plan/paint_finder.h"
#include "plan/paint_marks.h"
#include "plan/paint_needs.h"
#include "plan/painted_regions.h"
#include "plan/shop_face.h"
#include "plan/symbol_room.h"
#include "plan/symbol_style.h"
#include "shell/work_state.h"
#include "support/print_scale.h"
#include "support/surface.h"

namespace vendrel {

/// How the plan draws borders: as curves, as the stairs of the picture's pixels, or as curves for
/// kits made paintable alone.
enum class LineShape { ByKit, Smooth, Steps };

/// How dark lines and symbols are, in hundredths of the darkest: lighter ones vanish under less
/// paint.
inline constexpr int kUsualGray = 50;
inline constexpr int kLightestGray = 10;
inline constexpr int kDarkestGray = 100;

/// What a painter chooses for the printed plan.
struct PlanSettings {
    Paper Sheet = Paper::A4;
    double CanvasCm = 0;  // width of the finished canvas; 0: chosen by MakePrintPlan
    SizeMm Canvas = {};   // both its sides: the picture is fitted in, and CanvasCm without meaning
    double BleedMm = 0;   // around it, for wrapping round a frame; where it is the paper too
    bool InchCanvas = false;  // the painter named it in inches
    SymbolStyle Symbols = SymbolStyle::Letters;
    OwnLabels Labels = {};  // for SymbolStyle::Mine: those of the shelf
    LineShape Lines = LineShape::ByKit;
    int Gray = kUsualGray;  // kLightestGray..kDarkestGray
    PaintUse Use = {};
    bool GroupBySet = false;          // the chart's paints
    std::string Maker = {};           // whose kit it is: a name or a line of address; may be empty
    std::filesystem::path Logo = {};  // a picture file; empty: none
    ShopFace Shop = {};

    bool operator==(const PlanSettings&) const = default;
    [[nodiscard]] bool InInches() const { return InchCanvas || Sheet.Inches; }
    [[nodiscard]] bool HasCanvas() const { return CanvasCm > 0 || Canvas.Width > 0; }
};

/// The widest bleed, in millimetres.
inline constexpr double kWidestBleedMm = 100;

/// Whether a plan of such a grid has curves.
[[nodiscard]] bool HasSmoothLines(const PlanSettings& settings, const StippleGrid& grid);

/// Where things stand on a page of the plan, in millimetres.
struct PlanPageDesign {
    static constexpr double kMargin = 7;  // what printers cannot reach
    static constexpr double kHeading = 14;
    static constexpr double kMarks = 5;  // crop marks around the picture
    // The picture, the heading and the list begin where the left margin is cut off.
    static constexpr double kLeft = kMargin + kMarks;
    static constexpr double kPictureTop = kMargin + kHeading + kMarks;
    static constexpr double kLegendColumn = 46;
    static constexpr double kNarrowColumn = 33;  // where two of them stand beside the picture
    static constexpr double kLegendRow = 4.3;

    static constexpr double kLegendTitle = 5;       // above a list beside the picture
    static constexpr double kWholeCanvasEdge = 12;  // for marks and ruler, beyond the bleed

    /// What the list has, below the picture or beside it.
    [[nodiscard]] static double ListWidth(const PaperChoice& paper);
    /// Rows of a list of so many paints.
    [[nodiscard]] static int LegendRows(const PaperChoice& paper, int paints);
    [[nodiscard]] static double LegendHeight(const PaperChoice& paper, int paints);
};

/// A part of the canvas in millimeters as one of the painted picture in pixels.
[[nodiscard]] PlanRect InPixels(const PlanRect& part, PrintScale scale);

/// A painted picture measured for printing: what it asks of a canvas can be answered at once, for
/// one canvas after the other.
struct PlanSketch {
    PaintedRegions Regions;
    PaintFinder Paints;
    PaintAspects Aspects;
    std::vector<InscribedBox> Boxes;  // the roomiest of each region
    std::vector<SymbolRoom> Rooms;    // what its symbol has there
    SymbolRoom InStipple;             // the least that a lone stipple has for one
    int Width = 0;                    // of the picture, in pixels
    int Height = 0;
    int StippleSize = 0;
};

/// `aspects` are those of the symbols as they will be drawn. Throws Error for an unpainted picture
/// or more paints than symbols.
[[nodiscard]] PlanSketch SketchPlan(const WorkState& state, const Surface& picture,
                                    const SymbolAspects& aspects);

/// The least that a lone stipple has for the symbols of some paints.
[[nodiscard]] SymbolRoom LeastRoomInStipple(int stippleSize, const PaintAspects& aspects);
/// How wide a pixel makes every symbol legible in its area's roomiest box, in millimeters.
[[nodiscard]] double LegiblePixelMm(const PlanSketch& sketch);

/// The pages of a plan and how large the picture is on them.
struct PlanSheets {
    PagePlan Pages;
    PrintScale Scale;
    SizeMm Canvas;        // the picture and its margins
    PlanPoint PictureAt;  // on it, in millimetres
};

/// Without a canvas asked for the fewest pages on which symbols can be read, and then the largest
/// canvas that those pages hold. Throws Error for a canvas outside
/// kSmallestCanvasCm..kLargestCanvasCm.
[[nodiscard]] PlanSheets LayOutSheets(const PlanSketch& sketch, const PlanSettings& settings);

/// The widest canvas of the picture's shape, in whole centimeters.
[[nodiscard]] double WidestCanvasCm(const PlanSketch& sketch);

}  // namespace vendrel
