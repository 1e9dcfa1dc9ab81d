#include "cleanup/plain_paint_pass.h"

#include <algorithm>
#include <deque>

#include "cleanup/small_spots.h"
#include "cleanup/smart_clean.h"
#include "drawing/stipple_brush.h"

namespace vendrel::test {
namespace {

constexpr CellPos kSteps[] = {{-1, -1}, {0, -1}, {1, -1}, {1, 0}, {1, 1}, {0, 1}, {-1, 1}, {-1, 0}};

enum class Reach { Search, Brush };

// The search never steps into the last column or row, the brush never into the last row.
bool Steps(const WorkState& s, CellPos from, CellPos step, Reach reach) {
    const int last = s.CellsAcross - (step.X > 0 && reach == Reach::Search ? 1 : 0);
    const int lowest = s.CellsDown - (step.Y > 0 ? 1 : 0);
    const CellPos to{from.X + step.X, from.Y + step.Y};
    return to.X > 0 && to.X <= last && to.Y > 0 && to.Y <= lowest;
}

bool Loner(const WorkState& s, CellPos at, int p) {
    return std::ranges::none_of(kSteps, [&](CellPos step) {
        return Steps(s, at, step, Reach::Search) &&
               s.Stipples(at.X + step.X, at.Y + step.Y).ColorIndex == p;
    });
}

void Mark(WorkState& s, int x, int y, int number) {
    s.CellMarks(x, y).AreaNumber = number;
    s.CellMarks(x, y).Visited = true;
    s.Stipples(x, y).AreaNumber = number;
}

void Grow(WorkState& s, int x, int y, int p, int number) {
    if (Loner(s, {x, y}, p)) {
        s.CellMarks(x, y).Loner = true;
        return;
    }
    std::deque<CellPos> list;
    for (const CellPos step : kSteps) {
        list.push_back({x + step.X, y + step.Y});
    }
    while (!list.empty()) {
        const auto [tx, ty] = list.front();
        if (ty >= 0 && ty <= s.CellsDown && tx >= 0 && tx <= s.CellsAcross &&
            s.Stipples(tx, ty).ColorIndex == p && !s.CellMarks(tx, ty).Visited) {
            Mark(s, tx, ty, number);
            for (const CellPos step : kSteps) {
                const CellPos next{tx + step.X, ty + step.Y};
                if (Steps(s, {tx, ty}, step, Reach::Search) &&
                    !s.CellMarks(next.X, next.Y).Visited &&
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

void Redraw(Workplace& place, BrushShape shape) {
    WorkState& s = place.State;
    for (int p = 1; p <= s.PaintCount; ++p) {
        EachCell(s, [&](int x, int y) {
            const StippleCell& cell = s.Stipples(x, y);
            if (cell.ColorIndex == p) {
                s.CellMarks(x, y).Loner = Loner(s, {x, y}, p);
                if (s.CellMarks(x, y).Loner) {
                    DrawOneStipple(EaselOf(place), cell.X, cell.Y, p, Record::Yes, shape);
                }
            }
        });
    }
}

void PaintArea(Workplace& place, int number) {
    WorkState& s = place.State;
    const vendrel::PaintArea& area = s.Areas[number];
    for (const auto& [x, y] : area.Members) {
        const StippleCell& cell = s.Stipples(x, y);
        for (const CellPos step : kSteps) {
            if (area.StippleCount > 1 && Steps(s, {x, y}, step, Reach::Brush) &&
                s.CellMarks(x + step.X, y + step.Y).Visited &&
                s.Stipples(x + step.X, y + step.Y).ColorIndex == area.ColorIndex) {
                for (int i = 0; i < s.StippleSize; ++i) {
                    DrawOneStipple(EaselOf(place), cell.X + i * step.X, cell.Y + i * step.Y,
                                   area.ColorIndex, Record::Yes, BrushShape::Rounded);
                }
            }
        }
    }
}

int Biggest(OneBased<vendrel::PaintArea>& areas) {
    int best = 0;
    for (int a = 1; a <= areas.Count(); ++a) {
        if (!areas[a].Painted &&
            areas[a].StippleCount > (best == 0 ? 0 : areas[best].StippleCount)) {
            best = a;
        }
    }
    areas[best].Painted = true;
    return best;
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
    s.Areas = OneBased<vendrel::PaintArea>(s.AreaCount);
    for (int a = 1; a <= s.AreaCount; ++a) {
        vendrel::PaintArea& area = s.Areas[a];
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

void PlainPaintPass(Workplace& place) {
    FindAreas(place.State);
    EraseToColor(EaselOf(place), kBlack);
    Redraw(place, BrushShape::Square);
    while (const int area = Biggest(place.State->Areas)) {
        PaintArea(place, area);
    }
    Redraw(place, BrushShape::Rounded);
    const int size = place.State->StippleSize;
    (size == 8 ? SmartClean8 : size == 6 ? SmartClean6 : SmartClean4)(EaselOf(place), place.State);
    FixSmallSpots(EaselOf(place), place.State);
}

}  // namespace vendrel::test
