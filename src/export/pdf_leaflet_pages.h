#pragma once

#include <QtGui/QTextLayout>
#include <list>

#include "export/pdf_pages.h"

namespace vendrel {

/// The shop's leaflet, wrapped and broken into pages of the front's size.
class LeafletPages {
  public:
    /// The kit must outlive it.
    LeafletPages(const KitPages& kit, QPaintDevice& paper);

    [[nodiscard]] int Count() const { return lines_.empty() ? 0 : lines_.back().Page + 1; }
    void Draw(QPainter& painter, int page) const;

  private:
    struct Part {
        Part(const QString& text, const QFont& font, QPaintDevice& paper, LeafletKind kind)
            : Layout(text, font, &paper), Kind(kind) {}

        QTextLayout Layout;
        LeafletKind Kind;
    };
    struct Line {
        const Part* Of = nullptr;
        QTextLine Text{};
        int Page = 0;
        double Top = 0;
        bool First = false;  // of its part
    };

    void LayOut(const LeafletPart& part, QPaintDevice& paper);
    void Place();
    void DrawFoot(QPainter& painter, int page) const;

    const KitPages& kit_;
    std::list<Part> parts_;
    std::vector<Line> lines_;
};

}  // namespace vendrel
