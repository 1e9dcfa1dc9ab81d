#include "paints/owned_paints.h"

#include <map>
#include <set>

#include "shell/paint_id.h"

namespace vendrel {

void JoinOwned(PaintList& allowed, const PaintList& owned) {
    std::map<PaintId, int> places;
    for (int i = 1; i <= allowed.Count(); ++i) {
        places.emplace(IdOf(allowed[i]), i);
    }
    for (const PaintColor& paint : owned) {
        const auto [place, isNew] = places.emplace(IdOf(paint), allowed.Count() + 1);
        if (isNew) {
            allowed.Add(paint);
        } else {
            allowed[place->second] = paint;
        }
    }
}

std::vector<bool> WhichAreOwned(const PaintList& paints, const PaintList& owned) {
    std::set<PaintId> ids;
    for (const PaintColor& paint : owned) {
        ids.insert(IdOf(paint));
    }
    std::vector<bool> areOwned;
    for (const PaintColor& paint : paints) {
        areOwned.push_back(ids.contains(IdOf(paint)));
    }
    return areOwned;
}

}  // namespace vendrel
