#include "plan/paper.h"

#include <algorithm>

#include "support/decimals.h"

namespace vendrel {

Paper PaperOf(SizeMm size, bool inches) {
    return {{std::min(size.Width, size.Height), std::max(size.Width, size.Height)}, inches};
}

Paper FrontPaperFor(const Paper& plan, bool inches) {
    const bool large = plan.Size.Width > Paper::A3.Size.Width || plan.Size.Height > 600;
    return !plan.IsCanvas() && !large ? plan : inches ? Paper::Letter : Paper::A4;
}

std::string SizeText(const SizeMm& size, bool inches) {
    const double unit = inches ? kMmPerInch : 10;
    return Decimals(size.Width / unit, 1) + " \u00d7 " + Decimals(size.Height / unit, 1) +
           (inches ? " in" : " cm");
}

double FittedPixelMm(const SizeMm& canvas, int width, int height) {
    return std::min(canvas.Width / width, canvas.Height / height);
}

}  // namespace vendrel
