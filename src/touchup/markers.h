#pragma once

#include <optional>
#include <vector>

#include "touchup/edit_sheet.h"

namespace vendrel {

/// Stipples without company, by the rule the paint pass goes by; row-major.
[[nodiscard]] std::vector<CellPos> FindLoners(const EditSheet& sheet);
/// Every stipple of one paint, row-major.
[[nodiscard]] std::vector<CellPos> FindStipplesOf(const EditSheet& sheet, int paint);

struct LonerStep {
    CellPos At;
    int Left = 0;  // loners on the whole sheet, this one included
};

/// The first loner after `from` in row-major order, starting over at the top when none follows;
/// {0, 0} begins at the top. Nothing when the sheet has no loner.
[[nodiscard]] std::optional<LonerStep> NextLoner(const EditSheet& sheet, CellPos from);

}  // namespace vendrel
