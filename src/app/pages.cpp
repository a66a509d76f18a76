#include "app/pages.h"

namespace rqm5 {

Pages::Pages(Document& document, Dialogs& dialogs, QWidget* parent)
    : QObject(parent),
      TabStrip1_(new TabStrip(parent)),
      settings1_(new Settings1Page(document, TabStrip1_)),
      settings2_(new Settings2Page(document, TabStrip1_)),
      memory_(new MemoryPage(document, dialogs, TabStrip1_)),
      banks_(new BankPage(document, dialogs, TabStrip1_))
{
    TabStrip1_->SetPage(Tab::Settings1, *settings1_);
    TabStrip1_->SetPage(Tab::Settings2, *settings2_);
    TabStrip1_->SetPage(Tab::Memory, *memory_);
    TabStrip1_->SetPage(Tab::Bank, *banks_);
    connect(TabStrip1_, &TabStrip::AboutToSwitch, banks_, &BankPage::CommitPending);
}

void Pages::SetTransferRunning(bool isRunning)
{
    for (QWidget* page : std::initializer_list<QWidget*>{settings1_, settings2_, memory_, banks_})
        page->setEnabled(!isRunning);
}

void Pages::BringToFront(Tab tab)
{
    if (TabStrip1_->Current() != tab)
        TabStrip1_->Select(tab);
}

void Pages::GoTo(const ImageChange& change)
{
    if (change.HasMemoryRows()) {
        BringToFront(Tab::Memory);
        memory_->GoToRows(change.MemoryRows());
    } else if (change.HasVfoRows()) {
        BringToFront(Tab::Settings1);
        settings1_->GoToVfoRow(change.VfoRows().front());
    } else if (change.HasBanks()) {
        BringToFront(Tab::Bank);
        if (change.BankSize.empty())
            banks_->GoToLink(change.BankLink.front().index);
        else
            banks_->GoToBank(change.BankSize.front().index);
    } else if (!change.Settings.empty()) {
        const bool isOnFirst = Settings1Page::Shows(change.Settings.front().index);
        BringToFront(isOnFirst ? Tab::Settings1 : Tab::Settings2);
    }
}

}  // namespace rqm5
