#include "app/find_commands.h"

#include "memory/duplicates_dialog.h"
#include "memory/find_bar.h"

namespace rqm5 {

FindCommands::FindCommands(const Document& document, Pages& pages, QWidget& window)
    : QObject(&window), document_(document), pages_(pages), window_(window)
{
    const FindBar& finder = pages.Memory().Finder();
    connect(&finder, &FindBar::Left, this, &FindCommands::Return);
    // After a hit was chosen, leaving the box does not go back to the page before.
    connect(&finder, &FindBar::Found, this, [this] {
        tab_ = Tab::Memory;
        focus_ = nullptr;
    });
}

void FindCommands::mnuEditFind_Click()
{
    FindBar& finder = pages_.Memory().Finder();
    QWidget* focused = window_.focusWidget();
    if (focused == nullptr || !finder.isAncestorOf(focused)) {
        tab_ = pages_.Tabs().Current();
        focus_ = focused;
    }
    pages_.BringToFront(Tab::Memory);
    finder.Begin();
}

void FindCommands::mnuEditFindNext_Click()
{
    Step(1);
}

void FindCommands::mnuEditFindPrevious_Click()
{
    Step(-1);
}

void FindCommands::Step(int by)
{
    if (pages_.Memory().Finder().HasHits())
        pages_.BringToFront(Tab::Memory);
    else
        return mnuEditFind_Click();
    pages_.Memory().Finder().Step(by);
}

void FindCommands::Return()
{
    pages_.BringToFront(std::exchange(tab_, Tab::Memory));
    if (focus_ != nullptr && focus_->isVisible() && focus_->isEnabled())
        focus_->setFocus(Qt::OtherFocusReason);
    else
        pages_.Memory().FocusTable();
    focus_ = nullptr;
}

void FindCommands::mnuToolsDuplicates_Click()
{
    if (duplicates_ == nullptr) {
        duplicates_ = new dlgDuplicates(document_, &window_);
        connect(duplicates_, &dlgDuplicates::PlaceChosen, this, &FindCommands::GoToRow);
    }
    duplicates_->Present();
}

void FindCommands::GoToRow(int memoryRow)
{
    // While a transfer runs, the page is off by itself, not only covered by another one.
    if (!pages_.Memory().isEnabledTo(pages_.Memory().parentWidget()))
        return;
    pages_.BringToFront(Tab::Memory);
    pages_.Memory().GoToRow(memoryRow);
}

}  // namespace rqm5
