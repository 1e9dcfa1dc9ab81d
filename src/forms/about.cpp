#include "forms/about.h"

namespace vendrel {

std::string_view About::Title() const {
    return "Vendrel";
}

std::string_view About::Version() const {
    return "Version " VENDREL_VERSION;
}

std::string_view About::Description() const {
    return "Turns a photograph into a paint-by-symbol kit: a sheet of numbered areas, "
           "the paints to fill them with, and the picture that comes out.";
}

}  // namespace vendrel
