#include "app/menus.h"

#include <QMenu>

#include "ui/icons.h"

namespace rqm5 {

namespace {

QLatin1String Latin(std::string_view text)
{
    return QLatin1String(text.data(), static_cast<qsizetype>(text.size()));
}

QAction* AddItem(QMenu& menu, const MenuItem& item)
{
    if (item.name.empty())
        return menu.addSeparator();
    auto* action = new QAction(QString::fromUtf8(item.text), &menu);
    action->setObjectName(Latin(item.name));
    action->setStatusTip(QString::fromUtf8(item.hint));
    action->setIcon(IconOf(item.name.data()));
    action->setShortcuts(QKeySequence::listFromString(QLatin1String(item.shortcut)));
    menu.addAction(action);
    return action;
}

}  // namespace

Menus::Menus(QMenuBar& bar) : QObject(&bar), bar_(bar)
{
    for (const MenuTitle& title : kMenuTitles) {
        QMenu* menu = bar.addMenu(QString::fromUtf8(title.text));
        menu->setObjectName(QLatin1String(title.name));
        for (std::size_t i = 0; i < actions_.size(); ++i)
            if (kMenuItems[i].menu == title.name)
                actions_[i] = AddItem(*menu, kMenuItems[i]);
    }
    isPossible_.fill(true);
    for (const ItemName name :
         {ItemName("mnuViewToolbar"), ItemName("mnuStatusBar"), ItemName("mnuViewHistory"),
          ItemName("mnuViewSpectrum"), ItemName("mnuViewDiagnostics"), ItemName("mnuWrBackup"),
          ItemName("mnuWrVerify"), ItemName("mnuReVerify")})
        Item(name).setCheckable(true);
    Item("mnuViewToolbar").setChecked(true);
    Item("mnuStatusBar").setChecked(true);
    Item("mnuFileExit").setMenuRole(QAction::QuitRole);
    Item("mnuHelpAbout").setMenuRole(QAction::AboutRole);
}

QMenu& Menus::Menu(const char* name) const
{
    return *bar_.findChild<QMenu*>(QLatin1String(name));
}

void Menus::SetTransferRunning(bool isRunning)
{
    isTransferRunning_ = isRunning;
    SetItemStates();
}

void Menus::SetPossible(ItemName name, bool isPossible)
{
    isPossible_[name.Index()] = isPossible;
    SetItemStates();
}

void Menus::SetItemStates()
{
    for (std::size_t i = 0; i < actions_.size(); ++i)
        if (kMenuItems[i].during == During::Off)
            actions_[i]->setEnabled(!isTransferRunning_ && isPossible_[i]);
}

}  // namespace rqm5
