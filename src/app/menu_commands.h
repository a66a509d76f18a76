#pragma once

#include <QObject>
#include <functional>

#include "app/menu_items.h"
#include "app/window_parts.h"

namespace rqm5 {

/// Joins the menus to what they do, and the parts of the window to the bar that tells of it.
class MenuCommands : public QObject
{
    Q_OBJECT

  public:
    /// \param parts  those of the window, which outlive this
    MenuCommands(Document& document, const WindowParts& parts, QMainWindow& window);

  private:
    void Connect(ItemName name, std::function<void()> command);
    void ConnectFileMenu();
    void ConnectTransferMenus();
    void ConnectOtherMenus();
    void ConnectFiles();
    void ConnectNews();

    Document& document_;
    const WindowParts& parts_;
    QMainWindow& window_;
};

}  // namespace rqm5
