#include "desktop/menu_actions.h"

#include <QKeySequence>
#include <QMenu>
#include <algorithm>
#include <cstddef>
#include <iterator>

#include "desktop/text.h"

namespace vendrel {
namespace {

using enum MenuId;

/// What the keyboard adds to an entry: the letter to underline, a shortcut.
struct Keys {
    MenuId Entry;
    char Mnemonic;
    const char* Shortcut = "";
};

constexpr Keys kKeys[] = {
    {FileHeader, 'P'},
    {LoadBMP, 'L', "Ctrl+N"},
    {OpenKit, 'O', "Ctrl+O"},
    {SaveKit, 'K', "Ctrl+S"},
    {SaveKitAs, 'A'},
    {CropOrTurn, 'r'},
    {LoadStipples, 'S'},
    {SaveStipples, 'e', "Ctrl+Shift+S"},
    {StartupPaintShop, 'h'},
    {ChangeToStipples, 'C'},
    {ColorPickerSelect, 'T'},
    {UndoTouchUp, 'U', "Ctrl+Z"},
    {RedoTouchUp, 'd', "Ctrl+Shift+Z"},
    {MakeItPaintable, 'M'},
    {PaintItNow, 'I'},
    {PrintMenu, 'v'},
    {PrintWorkform, 'P'},
    {SaveReference, 'R'},
    {PrintAll, 'S'},
    {PrintColorChart, 'C'},
    {SaveItAll, 'E', "Ctrl+E"},
    {SaveKitPdf, 'K'},
    {Difficulty, 'D'},
    {EasySet, 'E'},
    {MediumSet, 'M'},
    {HardSet, 'H'},
    {SetPaintMax, 'F'},
    {Set16Colors, '1'},
    {Set32Colors, '3'},
    {Set40Colors, '4'},
    {Set50Colors, '5'},
    {TemplateMenu, 'T'},
    {RunTemplateShop, 'T'},
    {ShowMyPaints, 'y'},
    {ChoosePaintSource, 'F'},
    {ShowMissingPaints, 'I'},
    {ShowShopping, 'L'},
    {AddPaintCatalogue, 'A'},
    {NextBestColors, 'C'},
    {SampleMethod, 'S'},
    {AveragePixel, 'A'},
    {SamplePixel, 'S'},
    {MatchColors, 'M'},
    {MatchPlain, 'P'},
    {MatchEye, 'E'},
    {WatchItPaint, 'W'},
    {ShowAbout, 'A'},
    {EndItAll, 'x', "Ctrl+Q"},
};

static_assert(std::size(kKeys) == kMenuEntryCount, "every entry has its keys");

constexpr MenuId kCheckable[] = {EasySet,     MediumSet,   HardSet,     Set16Colors,
                                 Set32Colors, Set40Colors, Set50Colors, AveragePixel,
                                 SamplePixel, MatchPlain,  MatchEye,    WatchItPaint};

template <std::size_t N>
bool Contains(const MenuId (&list)[N], MenuId entry) {
    return std::find(std::begin(list), std::end(list), entry) != std::end(list);
}

const Keys& KeysOf(MenuId entry) {
    return *std::find_if(std::begin(kKeys), std::end(kKeys),
                         [entry](const Keys& keys) { return keys.Entry == entry; });
}

std::size_t At(MenuId entry) {
    return static_cast<std::size_t>(entry);
}

QString Caption(const Menu& menu, MenuId entry) {
    QString caption = Text(menu.CaptionOf(entry));
    const qsizetype letter = caption.indexOf(QLatin1Char(KeysOf(entry).Mnemonic));
    return letter < 0 ? caption : caption.insert(letter, QLatin1Char('&'));
}

bool IsMenu(const Menu& menu, MenuId id) {
    const auto& entries = menu.Entries();
    return std::any_of(entries.begin(), entries.end(),
                       [id](const MenuEntry& entry) { return entry.Parent == id; });
}

}  // namespace

MenuActions::MenuActions(const Menu& menu, const Settings& settings, QMenuBar& bar)
    : QObject(&bar), menu_(menu), settings_(settings), bar_(bar) {
    for (const MenuEntry& entry : menu_.Entries()) {
        actions_[At(entry.Id)] = MakeAction(entry);
    }
    Mirror();
}

QAction* MenuActions::MakeAction(const MenuEntry& entry) {
    QMenu* parent = entry.Parent == kMenuBar ? nullptr : menus_[At(entry.Parent)];
    const QString caption = Caption(menu_, entry.Id);
    if (IsMenu(menu_, entry.Id)) {
        QMenu* menu = parent != nullptr ? parent->addMenu(caption) : bar_.addMenu(caption);
        menus_[At(entry.Id)] = menu;
        menu->menuAction()->setObjectName(Text(entry.Name));
        return menu->menuAction();
    }
    QAction* action = parent != nullptr ? parent->addAction(caption) : bar_.addAction(caption);
    action->setObjectName(Text(entry.Name));
    action->setMenuRole(QAction::NoRole);
    action->setShortcut(QKeySequence(QString::fromLatin1(KeysOf(entry.Id).Shortcut)));
    action->setCheckable(Contains(kCheckable, entry.Id));
    connect(action, &QAction::triggered, this, [this, id = entry.Id] { emit Chosen(id); });
    return action;
}

void MenuActions::Mirror() {
    for (const MenuEntry& entry : menu_.Entries()) {
        QAction* action = actions_[At(entry.Id)];
        action->setText(Caption(menu_, entry.Id));
        // About starts no work, so none has to wait for it.
        action->setEnabled(entry.Enabled || entry.Id == ShowAbout);
        action->setChecked(action->isCheckable() && IsChecked(settings_, entry.Id));
    }
}

}  // namespace vendrel
