#pragma once

namespace vendrel {

/// What a kit can consist of, in the order in which it is told.
enum class OutputId { Sheet, Reference, Painting, Chart, Grid, Pdf, Svg, Page, List };

}  // namespace vendrel
