#pragma once

#include <QAction>
#include <QMenuBar>
#include <QObject>
#include <array>

#include "app/menu_items.h"

namespace rqm5 {

/// The menus of the main window. Every item is an action whose objectName is the item's name.
class Menus : public QObject
{
    Q_OBJECT

  public:
    /// Fills the menu bar. Designed texts only; SetFormTexts translates them.
    explicit Menus(QMenuBar& bar);

    QAction& Item(ItemName name) const { return *actions_[name.Index()]; }

    /// A menu of the menu bar by its name, for items that belong to a page.
    QMenu& Menu(const char* name) const;

    /// Switches off everything that starts a transfer, edits the image or replaces it, and on again what
    /// was on before.
    void SetTransferRunning(bool isRunning);

    /// Whether an item can do something; it takes effect when no transfer runs.
    void SetPossible(ItemName name, bool isPossible);

  private:
    void SetItemStates();

    QMenuBar& bar_;
    std::array<QAction*, std::size(kMenuItems)> actions_{};
    std::array<bool, std::size(kMenuItems)> isPossible_{};
    bool isTransferRunning_ = false;
};

}  // namespace rqm5
