#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QHashFunctions>
#include <QtGui/QPageLayout>
#include <QtGui/QPainter>
#include <QtGui/QPdfWriter>
#include <functional>
#include <string>

#include "plan/paper.h"
#include "support/target.h"

namespace vendrel {

// Fonts and pictures are written in the order of hash tables, which the toolkit seeds by chance.
class SteadyHashes {
  public:
    SteadyHashes() { QHashSeed::setDeterministicGlobalSeed(); }
    ~SteadyHashes() { QHashSeed::resetRandomGlobalSeed(); }
    SteadyHashes(const SteadyHashes&) = delete;
    SteadyHashes& operator=(const SteadyHashes&) = delete;
};

/// The whole sheet, lying where it is wider than high.
[[nodiscard]] QPageLayout PdfLayoutOf(const SizeMm& sheet);

/// The unit of the pages (export/pdf_units.h), the meaning of their colors and the title.
void PreparePdf(QPdfWriter& writer, const std::string& title);

/// Takes out of a finished file what chance and clock put there.
void SettlePdf(QByteArray& pdf);

/// A file of pages that are drawn at once, whole, and the same whenever the same is drawn. Throws
/// FileError, Error, and what `draw` throws.
void WritePdf(const std::string& title, const SizeMm& sheet, const Target& target,
              const std::function<void(QPdfWriter&, QPainter&)>& draw);

}  // namespace vendrel
