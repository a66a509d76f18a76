#pragma once

#include <QObject>

#include "app/tab_strip.h"
#include "document/document.h"
#include "memory/bank_page.h"
#include "memory/memory_page.h"
#include "settings/settings1_page.h"
#include "settings/settings2_page.h"
#include "ui/dialogs.h"

namespace rqm5 {

/// The four pages and the tabs that they are behind.
class Pages : public QObject
{
    Q_OBJECT

  public:
    Pages(Document& document, Dialogs& dialogs, QWidget* parent);

    TabStrip& Tabs() const { return *TabStrip1_; }
    Settings1Page& Settings1() { return *settings1_; }
    Settings2Page& Settings2() { return *settings2_; }
    MemoryPage& Memory() { return *memory_; }
    BankPage& Banks() { return *banks_; }

    void SetTransferRunning(bool isRunning);

    /// Brings what a step of the history touched to the front and selects it: its page, group and row.
    void GoTo(const ImageChange& change);

    /// Brings a tab's page to the front unless it is there.
    void BringToFront(Tab tab);

  private:
    TabStrip* TabStrip1_;
    Settings1Page* settings1_;
    Settings2Page* settings2_;
    MemoryPage* memory_;
    BankPage* banks_;
};

}  // namespace rqm5
