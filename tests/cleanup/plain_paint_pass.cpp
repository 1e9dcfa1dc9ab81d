#include "cleanup/plain_paint_pass.h"

#include <algorithm>
#include <deque>

#include "cleanup/small_spots.h"
#include "cleanup/smart_clean.h"
#include "drawing/stipple_brush.h"

namespace vendrel::test {
namespace {

constexpr int kDx[] = {0, -1, 0, 1, 1, 1, 0, -1, -1};
constexpr int kDy[] = {0, -1, -1, -1, 0, 1, 1, 1, 0};

bool Visits(const WorkState& s, int direction, int x, int y, bool brush) {
    const int nx = x + kDx[direction];
    const int ny = y + kDy[direction];
    if (direction >= 3 && direction <= 5 && !(brush ? nx <= s.CellsAcross : nx < s.CellsAcross)) {
        return false;
    }
    if ((direction == 1 || direction >= 7) && nx <= 0) {
        return false;
    }
    if (direction >= 5 && direction <= 7 && ny >= s.CellsDown) {
        return false;
    }
    return direction > 3 || ny > 0;
}

bool Loner(const WorkState& s, int x, int y, int p) {
    for (int d = 1; d <= 8; ++d) {
        if (Visits(s, d, x, y, false) && s.Stipples(x + kDx[d], y + kDy[d]).ColorIndex == p) {
            return false;
        }
    }
    return true;
}

void Mark(WorkState& s, int x, int y, int number) {
    s.CellMarks(x, y).AreaNumber = number;
    s.CellMarks(x, y).Visited = true;
    s.Stipples(x, y).AreaNumber = number;
}

void Grow(WorkState& s, int x, int y, int p, int number) {
    if (Loner(s, x, y, p)) {
        s.CellMarks(x, y).Loner = true;
        return;
    }
    std::deque<CellPos> list;
    for (int d = 1; d <= 8; ++d) {
        list.push_back({x + kDx[d], y + kDy[d]});
    }
    while (!list.empty()) {
        const auto [tx, ty] = list.front();
        if (ty >= 0 && ty <= s.CellsDown && tx >= 0 && tx <= s.CellsAcross &&
            s.Stipples(tx, ty).ColorIndex == p && !s.CellMarks(tx, ty).Visited) {
            Mark(s, tx, ty, number);
            for (int d = 1; d <= 8; ++d) {
                const CellPos next{tx + kDx[d], ty + kDy[d]};
                if (Visits(s, d, tx, ty, false) && !s.CellMarks(next.X, next.Y).Visited &&
                    std::find(list.begin(), list.end(), next) == list.end()) {
                    list.push_back(next);
                }
            }
        }
        list.pop_front();
    }
}

template <class Visit>
void EachCell(const WorkState& s, Visit visit) {
    for (int y = 1; y <= s.CellsDown; ++y) {
        for (int x = 1; x <= s.CellsAcross; ++x) {
            visit(x, y);
        }
    }
}

void Redraw(const Workplace& place, BrushShape shape) {
    WorkState& s = place.State;
    for (int p = 1; p <= s.PaintCount; ++p) {
        EachCell(s, [&](int x, int y) {
            const StippleCell& cell = s.Stipples(x, y);
            if (cell.ColorIndex == p) {
                s.CellMarks(x, y).Loner = Loner(s, x, y, p);
                if (s.CellMarks(x, y).Loner) {
                    DrawOneStipple(place, cell.X, cell.Y, p, Record::Yes, shape);
                }
            }
        });
    }
}

void PaintArea(const Workplace& place, int number) {
    WorkState& s = place.State;
    const vendrel::PaintArea& area = s.Areas[static_cast<std::size_t>(number)];
    for (const auto& [x, y] : area.Members) {
        for (int d = 1; d <= 8 && area.StippleCount > 1; ++d) {
            if (!Visits(s, d, x, y, true) || !s.CellMarks(x + kDx[d], y + kDy[d]).Visited ||
                s.Stipples(x + kDx[d], y + kDy[d]).ColorIndex != area.ColorIndex) {
                continue;
            }
            const StippleCell& cell = s.Stipples(x, y);
            for (int i = 0; i < s.StippleSize; ++i) {
                DrawOneStipple(place, cell.X + i * kDx[d], cell.Y + i * kDy[d], area.ColorIndex,
                               Record::Yes, BrushShape::Rounded);
            }
        }
    }
}

int Biggest(std::vector<vendrel::PaintArea>& areas) {
    std::size_t best = 0;
    for (std::size_t a = 1; a < areas.size(); ++a) {
        if (!areas[a].Painted &&
            areas[a].StippleCount > (best == 0 ? 0 : areas[best].StippleCount)) {
            best = a;
        }
    }
    areas[best].Painted = true;
    return static_cast<int>(best);
}

void FindAreas(WorkState& s) {
    s.NextAreaNumber = 1;
    for (int p = 1; p <= s.PaintCount; ++p) {
        EachCell(s, [&](int x, int y) {
            if (s.Stipples(x, y).ColorIndex == p && !s.CellMarks(x, y).Visited) {
                Mark(s, x, y, s.NextAreaNumber);
                Grow(s, x, y, p, s.NextAreaNumber++);
            }
        });
    }
    s.AreaCount = s.NextAreaNumber;
    s.Areas.assign(static_cast<std::size_t>(s.AreaCount) + 1, {});
    for (int a = 1; a <= s.AreaCount; ++a) {
        vendrel::PaintArea& area = s.Areas[static_cast<std::size_t>(a)];
        EachCell(s, [&](int x, int y) {
            if (s.Stipples(x, y).AreaNumber == a) {
                ++area.StippleCount;
                area.ColorIndex = s.Stipples(x, y).ColorIndex;
                area.Members.push_back({x, y});
            }
        });
    }
}

}  // namespace

void PlainPaintPass(const Workplace& place) {
    FindAreas(place.State);
    EraseToColor(place, kBlack);
    Redraw(place, BrushShape::Square);
    while (const int area = Biggest(place.State.Areas)) {
        PaintArea(place, area);
    }
    Redraw(place, BrushShape::Rounded);
    if (place.State.StippleSize == 8) {
        SmartClean8(place);
    } else if (place.State.StippleSize == 6) {
        SmartClean6(place);
    } else if (place.State.StippleSize == 4) {
        SmartClean4(place);
    }
    FixSmallSpots(place);
}

}  // namespace vendrel::test
