#pragma once

#include <QAction>
#include <QMenuBar>
#include <QObject>

namespace rqm5 {

/// The menus of the main window. Every item is an action whose objectName is the item's name.
class Menus : public QObject
{
    Q_OBJECT

  public:
    /// Fills the menu bar. Designed texts only; SetFormTexts translates them.
    explicit Menus(QMenuBar& bar);

    /// The item of a name; there must be one.
    QAction& Item(const char* name) const;

    /// Switches off everything that starts a transfer, edits the image or replaces it, and on again what
    /// was on before.
    void SetTransferRunning(bool isRunning);

    /// What the tabs decide about Modify; it takes effect when no transfer runs.
    void SetModifyPossible(bool isPossible);

  private:
    void SetItemStates();

    QMenuBar& bar_;
    bool isTransferRunning_ = false;
    bool isModifyPossible_ = true;
};

}  // namespace rqm5
