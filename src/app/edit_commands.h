#pragma once

#include <QObject>

#include "app/menus.h"
#include "app/pages.h"
#include "memory/modify_dialog.h"

namespace rqm5 {

/// Edit > Modify: opens the channel editor on the rows that are selected on the page in front.
class EditCommands : public QObject
{
    Q_OBJECT

  public:
    EditCommands(Document& document, Dialogs& dialogs, Pages& pages, QWidget& window);

    /// Makes the channel editor, which is used again and again.
    void LoadEditor();

    void mnuEditUndo_Click();

  private:
    void ModifyMemory(int row);
    void ModifySeveral(const std::vector<int>& rows);
    void ModifyVfo(int row);

    Document& document_;
    Dialogs& dialogs_;
    Pages& pages_;
    QWidget& window_;
    dlgModify* editor_ = nullptr;
};

}  // namespace rqm5
