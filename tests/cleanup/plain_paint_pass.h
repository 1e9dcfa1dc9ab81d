#pragma once

#include "shell/workplace.h"

namespace vendrel::test {

/// The paint pass in its plainest form: a list for a queue, a scan of the whole grid per area and
/// per paint, one stamp at a time. Slow and obviously right; what the fast pass is held against.
void PlainPaintPass(Workplace& place);

}  // namespace vendrel::test
