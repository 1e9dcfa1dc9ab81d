#pragma once

#include <set>
#include <string>

namespace vendrel {

/// The warnings that the painter was given: none is given twice.
struct GivenWarnings {
    std::set<std::string> WarningsGiven;
};

}  // namespace vendrel
