#include "app/edit_commands.h"

namespace rqm5 {

EditCommands::EditCommands(Document& document, Dialogs& dialogs, Pages& pages, QWidget& window)
    : QObject(&window), document_(document), dialogs_(dialogs), pages_(pages), window_(window)
{
    connect(&pages.Settings1(), &Settings1Page::ModifyRequested, this, &EditCommands::ModifyVfo);
    connect(&pages.Memory(), &MemoryPage::ModifyRequested, this, &EditCommands::ModifyMemory);
    connect(&pages.Memory(), &MemoryPage::ModifySeveralRequested, this, &EditCommands::ModifySeveral);
}

void EditCommands::LoadEditor()
{
    editor_ = new dlgModify(document_, dialogs_, &window_);
    // The table goes along with Previous and Next.
    connect(editor_, &dlgModify::RowShown, this, [this](RowId row) {
        if (row.IsMemory())
            pages_.Memory().GoToRows({row.row});
        else
            pages_.Settings1().GoToVfoRow(row.row);
    });
}

void EditCommands::mnuEditUndo_Click()
{
    if (pages_.Tabs().Current() == Tab::Settings1)
        ModifyVfo(pages_.Settings1().SelectedVfoRow() - 1);
    else
        pages_.Memory().Modify();
}

void EditCommands::ModifyMemory(int row)
{
    editor_->OpenMemory(row, pages_.Memory().Selector(), pages_.Memory().Filter());
}

void EditCommands::ModifySeveral(const std::vector<int>& rows)
{
    editor_->OpenSeveral(rows, pages_.Memory().Selector());
}

void EditCommands::ModifyVfo(int row)
{
    if (row >= 0)
        editor_->OpenVfo(row);
}

}  // namespace rqm5
