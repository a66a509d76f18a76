#include "app/transfer_shell.h"

namespace rqm5 {

TransferShell::TransferShell(TransferCommands& transfers, Menus& menus, Pages& pages,
                             HistoryCommands& history, TransferBar& bar, StatusBar& statusBar,
                             QMainWindow& window)
    : QObject(&window),
      transfers_(transfers),
      menus_(menus),
      pages_(pages),
      history_(history),
      bar_(bar),
      statusBar_(statusBar),
      window_(window)
{
    ConnectPages();
    ConnectTransfers();
}

void TransferShell::ConnectPages()
{
    const auto starts = [this](Transfer transfer) { return [this, transfer] { Start(transfer); }; };
    connect(&pages_.Settings1(), &Settings1Page::ReadRequested, this, starts(Transfer::ReadSettings));
    connect(&pages_.Settings2(), &Settings2Page::ReadRequested, this, starts(Transfer::ReadSettings));
    connect(&pages_.Settings1(), &Settings1Page::WriteRequested, this, starts(Transfer::WriteSettings));
    connect(&pages_.Settings2(), &Settings2Page::WriteRequested, this, starts(Transfer::WriteSettings));
    connect(&pages_.Memory(), &MemoryPage::ReadRequested, this, starts(Transfer::ReadMemory));
    connect(&pages_.Memory(), &MemoryPage::WriteRequested, this, starts(Transfer::WriteMemory));
    connect(&pages_.Banks(), &BankPage::ReadRequested, this, starts(Transfer::ReadBankPage));
    connect(&pages_.Banks(), &BankPage::WriteRequested, this, starts(Transfer::WriteBankPage));
}

void TransferShell::ConnectTransfers()
{
    connect(&transfers_, &TransferCommands::Started, this, [this] {
        statusBar_.ShowNote({});
        SetRunning(true);
    });
    connect(&transfers_, &TransferCommands::Ended, this, [this] { SetRunning(false); });
    connect(&transfers_, &TransferCommands::GroupWanted, &pages_.Memory(), &MemoryPage::SelectGroup);
    connect(&transfers_, &TransferCommands::ProgressBegan, &bar_, &TransferBar::StartProgress);
    connect(&transfers_, &TransferCommands::ProgressAdvanced, &bar_, &TransferBar::MoveProgress);
    connect(&transfers_, &TransferCommands::ProgressTold, &bar_, &TransferBar::Tell);
    connect(&transfers_, &TransferCommands::Noted, &statusBar_, &StatusBar::ShowNote);
    connect(&bar_, &TransferBar::CancelRequested, &transfers_, &TransferCommands::Cancel);
}

void TransferShell::StartOn(Tab tab, Transfer transfer)
{
    pages_.Tabs().Select(tab);
    Start(transfer);
}

void TransferShell::Start(Transfer transfer)
{
    if (pages_.Banks().CommitPending())
        transfers_.Run(transfer, pages_.Memory().Selector());
}

void TransferShell::SetRunning(bool isRunning)
{
    // Disabled controls lose the focus; the one that had it gets it back.
    if (isRunning)
        focusBefore_ = window_.focusWidget();
    menus_.SetTransferRunning(isRunning);
    pages_.SetTransferRunning(isRunning);
    history_.SetTransferRunning(isRunning);
    if (isRunning)
        bar_.Begin();
    else
        bar_.End();
    if (!isRunning && focusBefore_ != nullptr)
        focusBefore_->setFocus();
    // The Cancel button under the pointer is gone, or has come.
    statusBar_.ShowPointerHint({});
    statusBar_.ShowHintOf(window_.focusWidget());
}

}  // namespace rqm5
