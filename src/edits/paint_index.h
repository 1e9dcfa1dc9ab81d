#pragma once

#include <map>
#include <utility>

#include "shell/paint_id.h"

namespace vendrel {

/// Finds paints of a list by who they are. Bare colors, which have no name to go by, are told apart
/// by what they look like.
class PaintIndex {
  public:
    PaintIndex() = default;
    explicit PaintIndex(const PaintList& paints);

    /// The number of the first such paint; 0 when there is none.
    [[nodiscard]] int Find(const PaintColor& paint) const;
    /// The list's next paint.
    void Add(const PaintColor& paint);

  private:
    std::map<std::pair<PaintId, Color>, int> numbers_;
    int count_ = 0;
};

}  // namespace vendrel
