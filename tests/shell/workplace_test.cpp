#include "shell/workplace.h"

#include <type_traits>

namespace vendrel {
namespace {

template <class Place>
concept ChangesState = requires(Place& place, int count) {
    place.State->PaintCount = count;
};
template <class Place>
concept ChangesPictures = requires(Place& place) {
    place.Frames->WorkFrame.Picture.Fill(kBlack);
};
template <class Place>
concept ChangesMenu = requires(Place& place) {
    place.MainMenu[MenuId::PaintItNow].Enabled = true;
};
template <class Place>
concept GivesParts = requires(Place& place, void (*take)(Palette&)) {
    take(place.State);
};

template <class Place>
constexpr bool kChanges =
    ChangesState<Place>&& ChangesPictures<Place>&& ChangesMenu<Place>&& GivesParts<Place>;
template <class Place>
constexpr bool kOnlyLooks =
    !ChangesState<Place> && !ChangesPictures<Place> && !ChangesMenu<Place> && !GivesParts<Place>;

static_assert(kChanges<Workplace>);
static_assert(kOnlyLooks<const Workplace>);
static_assert(!std::is_copy_constructible_v<Workplace>, "a copy would be no longer constant");

}  // namespace
}  // namespace vendrel
