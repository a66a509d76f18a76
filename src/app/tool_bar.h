#pragma once

#include <QToolBar>
#include <functional>

#include "app/menus.h"

namespace rqm5 {

/// `tbToolBar`: five buttons whose data is their key, which alone chooses what they do; and Undo, Redo, Find,
/// Read and Write.
class ToolBar : public QToolBar
{
    Q_OBJECT

  public:
    ToolBar(const Menus& menus, QWidget* parent);

    /// Does what the button of a key stands for; any other key does nothing.
    void tbToolBar_ButtonClick(const QString& key);

  private:
    QAction* AddButton(QAction& item, const char* text);

    const Menus& menus_;
};

}  // namespace rqm5
