#pragma once

#include <QDockWidget>
#include <QMainWindow>
#include <QUndoView>

#include "app/menus.h"
#include "document/document.h"

namespace rqm5 {

/// The items of Undo and Redo, and the list of the steps.
class HistoryCommands : public QObject
{
    Q_OBJECT

  public:
    HistoryCommands(Document& document, Menus& menus, QMainWindow& window);

    void mnuViewHistory_Click(bool isWanted);

    /// Nothing is taken back while a transfer runs.
    void SetTransferRunning(bool isRunning);

  private:
    void MakeView(QMainWindow& window);
    void ShowLanguage();
    void ShowItems();

    QUndoStack& history_;
    Menus& menus_;
    QDockWidget* dckHistory_ = nullptr;
};

}  // namespace rqm5
