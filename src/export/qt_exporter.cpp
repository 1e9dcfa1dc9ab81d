#include "export/qt_exporter.h"

#include "export/color_chart_image.h"
#include "export/kit_pdf.h"

namespace vendrel {

std::filesystem::path QtExporter::WriteColorChart(const Workplace& place) const {
    return vendrel::WriteColorChart(place);
}

std::filesystem::path QtExporter::WriteKitPdf(const Workplace& place,
                                              const PlanSettings& settings) const {
    return vendrel::WriteKitPdf(place, settings);
}

}  // namespace vendrel
