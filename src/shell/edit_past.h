#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include "shell/kit_edits.h"

namespace vendrel {

/// The edit layer before and after one step of touching up. Whole layers, so that a step can be
/// taken back whatever palette and grid it lies over by then. A step that converted anew has the
/// bases too, for as long as there is no newer one.
struct EditMoment {
    std::string Name;
    std::shared_ptr<const EditLayer> Before;
    std::shared_ptr<const EditLayer> After;
    std::shared_ptr<const KitEdits> BaseBefore;  // without edits; or none
    std::shared_ptr<const KitEdits> BaseAfter;
};

/// The accepted steps over the base, of which the first DoneMoments are in the kit's layer.
struct EditPast {
    std::vector<EditMoment> Moments;
    std::size_t DoneMoments = 0;
    std::string LaidOn;  // what became of the edits when they were last laid on, as a sentence
};

}  // namespace vendrel
