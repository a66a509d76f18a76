#include "app/edit_commands.h"

namespace rqm5 {

EditCommands::EditCommands(Document& document, Dialogs& dialogs, Pages& pages, QWidget& window)
    : QObject(&window), document_(document), dialogs_(dialogs), pages_(pages), window_(window)
{
    connect(&pages.Settings1(), &Settings1Page::ModifyRequested, this, &EditCommands::ModifyVfo);
    connect(&pages.Memory(), &MemoryPage::ModifyRequested, this, &EditCommands::ModifyMemory);
}

void EditCommands::LoadEditor()
{
    editor_ = new dlgModify(document_, dialogs_, &window_);
}

void EditCommands::mnuEditUndo_Click()
{
    const MemoryPage& memory = pages_.Memory();
    if (pages_.Tabs().Current() == Tab::Settings1)
        ModifyVfo(pages_.Settings1().SelectedVfoRow() - 1);
    else if (memory.CurrentMemoryRow() >= 0)
        ModifyMemory(memory.CurrentMemoryRow());
}

void EditCommands::ModifyMemory(int row)
{
    editor_->OpenMemory(row, pages_.Memory().Selector());
}

void EditCommands::ModifyVfo(int row)
{
    if (row >= 0)
        editor_->OpenVfo(row);
}

}  // namespace rqm5
