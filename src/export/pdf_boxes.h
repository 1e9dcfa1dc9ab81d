#pragma once

#include <QtCore/QByteArray>

#include "plan/paper.h"

namespace vendrel {

/// Tells a print shop where the sheet of a PDF's last page is cut, `trim` millimetres from each of
/// its edges, and that the drawing goes on for `bleed` millimetres beyond. The PDF is one as the
/// toolkit writes it, with a table of its objects at the end; any other stays as it is.
void AddPageBoxes(QByteArray& pdf, double trim, double bleed);

}  // namespace vendrel
