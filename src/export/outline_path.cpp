#include "export/outline_path.h"

namespace vendrel {

void AddOutline(PathText& text, const QPainterPath& outline, const PlanPoint& centre,
                double height) {
    const auto at = [&](int i) {
        const QPainterPath::Element element = outline.elementAt(i);
        return PlanPoint{centre.X + height * element.x, centre.Y + height * element.y};
    };
    for (int i = 0; i < outline.elementCount(); ++i) {
        switch (outline.elementAt(i).type) {
            case QPainterPath::MoveToElement:
                if (i > 0) {
                    text.Close();
                }
                text.MoveTo(at(i));
                break;
            case QPainterPath::LineToElement:
                text.LineTo(at(i));
                break;
            case QPainterPath::CurveToElement:
                text.CurveTo({at(i), at(i + 1), at(i + 2)});
                i += 2;
                break;
            default:
                break;
        }
    }
    if (!outline.isEmpty()) {
        text.Close();
    }
}

}  // namespace vendrel
