#pragma once

#include <QAction>
#include <QLineEdit>
#include <QListWidget>
#include <QMainWindow>

#include "help/page_view.h"
#include "ui/dialogs.h"

namespace rqm5 {

/// The help window: contents and search at the left, the page at the right.
class frmHelp : public QMainWindow
{
    Q_OBJECT

  public:
    frmHelp(Dialogs& dialogs, QWidget* parent);

    /// Shows a page, brings the window to the front and gives the page the focus.
    void ShowTopic(const QString& topic);

  protected:
    void changeEvent(QEvent* event) override;

  private:
    void Compose();
    void AddTools();
    QAction* AddTool(const char* name, const QString& text, const QString& icon,
                     const QList<QKeySequence>& keys, std::function<void()> command);
    void FillContents();
    void SelectCurrentPage();
    void OpenItem(const QListWidgetItem* item);
    void txtSearch_Change();
    void txtSearch_Enter();
    void OpenFirst();
    void FindWord();
    void LeaveOrClose();
    void AskToOpen(const QUrl& link);

    Dialogs& dialogs_;
    PageView* brwPage_;
    QLineEdit* txtSearch_;
    QListWidget* lstPages_;
    QString searchPage_;  ///< the page that the words typed so far have opened
};

}  // namespace rqm5
