#pragma once

namespace vendrel {

/// What buying a paint must be worth at least: by so much it lowers the mean seen difference
/// between stipples and their paints, where 1 is about what the eye begins to see.
inline constexpr double kUsualWorth = 0.05;
inline constexpr double kLargestWorth = 20;
inline constexpr int kMostToBuy = 50;  // no limit: as many as a kit can have

/// Paints that the painter owns go before those that would have to be bought.
struct OwnedFirst {
    bool Asked = false;
    double Worth = kUsualWorth;  // 0..kLargestWorth
    int MostToBuy = kMostToBuy;  // 0..kMostToBuy

    bool operator==(const OwnedFirst&) const = default;
};

}  // namespace vendrel
