#pragma once

#include <QAction>
#include <QMenuBar>
#include <QObject>
#include <array>

#include "shell/menu.h"

namespace vendrel {

/// The main menu on screen: one action per entry, named after it.
class MenuActions : public QObject {
    Q_OBJECT

  public:
    MenuActions(const Menu& menu, const Settings& settings, QMenuBar& bar);

    /// Takes over what is enabled and checked.
    void Mirror();
    [[nodiscard]] QAction* ActionOf(MenuId entry) const {
        return actions_[static_cast<std::size_t>(entry)];
    }

  signals:
    void Chosen(MenuId entry);

  private:
    [[nodiscard]] QAction* MakeAction(const MenuEntry& entry);

    const Menu& menu_;
    const Settings& settings_;
    QMenuBar& bar_;
    std::array<QAction*, kMenuEntryCount> actions_{};
    std::array<QMenu*, kMenuEntryCount> menus_{};
};

}  // namespace vendrel
