#include "plan/symbol_aspects.h"

#include "shell/symbol_of.h"
#include "support/list.h"

namespace vendrel {

PaintAspects AspectsOf(const PaintList& palette, const SymbolAspects& aspects) {
    PaintAspects byPaint;
    for (int paint = 1; paint <= palette.Count(); ++paint) {
        byPaint.Add(At(aspects, SymbolOf(palette, paint)));
    }
    return byPaint;
}

}  // namespace vendrel
