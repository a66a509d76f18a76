#pragma once

#include <QDockWidget>
#include <QMainWindow>
#include <QUndoView>

#include "app/menus.h"
#include "document/document.h"

namespace rqm5 {

/// Undo, Redo and the list of the steps.
class HistoryCommands : public QObject
{
    Q_OBJECT

  public:
    HistoryCommands(Document& document, Menus& menus, QMainWindow& window);

    /// Nothing is taken back while a transfer runs.
    void SetTransferRunning(bool isRunning);

  private:
    void MakeView(QMainWindow& window);
    void ShowItems();

    QUndoStack& history_;
    Menus& menus_;
    QDockWidget* dckHistory_ = nullptr;
};

}  // namespace rqm5
