#pragma once

#include "export/gui_application.h"
#include "plan/exporter.h"

namespace vendrel {

/// Writes color charts and printable kits with the toolkit's fonts.
class QtExporter final : public Exporter {
  public:
    std::filesystem::path WriteColorChart(const Workplace& place) const override;
    std::filesystem::path WriteKitPdf(const Workplace& place,
                                      const PlanSettings& settings) const override;

  private:
    GuiApplication application_;
};

}  // namespace vendrel
