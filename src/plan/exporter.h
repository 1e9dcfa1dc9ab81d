#pragma once

#include <filesystem>

#include "plan/plan_layout.h"
#include "shell/workplace.h"

namespace vendrel {

/// Writes what needs fonts. Files go to Results, whole or not at all; the painted picture stays as
/// it is. All operations throw Error for an unpainted picture, more paints than symbols or a
/// missing font, and FileError.
class Exporter {
  public:
    Exporter() = default;
    Exporter(const Exporter&) = delete;
    Exporter& operator=(const Exporter&) = delete;
    virtual ~Exporter() = default;

    /// "<photo> <difficulty> Color Chart.BMP"; answers its path.
    virtual std::filesystem::path WriteColorChart(const Workplace& place) const = 0;
    /// "<photo> <difficulty> Kit.pdf"; answers its path.
    virtual std::filesystem::path WriteKitPdf(const Workplace& place,
                                              const PlanSettings& settings) const = 0;
};

}  // namespace vendrel
