#pragma once

namespace vendrel {

/// Keeps the kit in hand as a file, where a window has kits.
class KitKeeper {
  public:
    KitKeeper() = default;
    KitKeeper(const KitKeeper&) = delete;
    KitKeeper& operator=(const KitKeeper&) = delete;
    virtual ~KitKeeper() = default;

    /// Whether something would be lost with the kit.
    [[nodiscard]] virtual bool Unsaved() const = 0;
    /// Keeps it; false when the painter would rather not. Throws Error.
    [[nodiscard]] virtual bool Save() = 0;
    /// What is in hand from now on is no kit yet.
    virtual void Close() = 0;
};

}  // namespace vendrel
