#include "app/history_commands.h"

#include "language/language.h"
#include "ui/form_texts.h"
#include "ui/history_key.h"
#include "ui/icons.h"

namespace rqm5 {

HistoryCommands::HistoryCommands(Document& document, Menus& menus, QMainWindow& window)
    : QObject(&window), history_(document.History()), menus_(menus)
{
    new HistoryKey(window);
    MakeView(window);
    connect(&history_, &QUndoStack::indexChanged, this, &HistoryCommands::ShowItems);
    // A run that goes on changes the name of the step and nothing else.
    connect(&document, &Document::StateChanged, this, &HistoryCommands::ShowItems);
    connect(&Language::OfProgram(), &Language::Changed, this, &HistoryCommands::ShowLanguage);
    ShowLanguage();
}

void HistoryCommands::MakeView(QMainWindow& window)
{
    dckHistory_ = new QDockWidget(Designed(QT_TR_NOOP("History")), &window);
    dckHistory_->setObjectName(QStringLiteral("dckHistory"));
    SetTextContext(*dckHistory_, "rqm5::HistoryCommands");
    auto* view = new QUndoView(&history_, dckHistory_);
    view->setObjectName(QStringLiteral("lstHistory"));
    view->setAccessibleName(Designed(QT_TR_NOOP("Changes, the latest at the end")));
    view->setStatusTip(Designed(QT_TR_NOOP("A click takes back or makes again every change down to there")));
    view->setCleanIcon(IconOf("mnuFileSave"));
    // A window of its own would take a click without the box that is typed into noticing.
    dckHistory_->setFeatures(QDockWidget::DockWidgetClosable | QDockWidget::DockWidgetMovable);
    dckHistory_->setWidget(view);
    window.addDockWidget(Qt::RightDockWidgetArea, dckHistory_);
    dckHistory_->hide();
    // The dock has a close button of its own.
    connect(dckHistory_->toggleViewAction(), &QAction::toggled, &menus_.Item("mnuViewHistory"),
            &QAction::setChecked);
}

void HistoryCommands::ShowLanguage()
{
    auto* view = static_cast<QUndoView*>(dckHistory_->widget());
    view->setEmptyLabel(tr("Before these changes"));
    view->viewport()->update();  // the document has said its steps anew
    ShowItems();
}

void HistoryCommands::ShowItems()
{
    const auto show = [this](ItemName name, const QString& plain, const QString& named, const QString& step,
                             bool isPossible) {
        QAction& item = menus_.Item(name);
        item.setText(step.isEmpty() ? plain : named.arg(QString(step).replace(u'&', QStringLiteral("&&"))));
        menus_.SetPossible(name, isPossible);
    };
    show("mnuHistoryUndo", tr("&Undo"), tr("&Undo %1"), history_.undoText(), history_.canUndo());
    show("mnuHistoryRedo", tr("&Redo"), tr("&Redo %1"), history_.redoText(), history_.canRedo());
}

void HistoryCommands::mnuViewHistory_Click(bool isWanted)
{
    dckHistory_->setVisible(isWanted);
}

void HistoryCommands::SetTransferRunning(bool isRunning)
{
    dckHistory_->setEnabled(!isRunning);
}

}  // namespace rqm5
