#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QSignalSpy>
#include <QTableView>
#include <algorithm>

#include "app/receiver_window_fixture.h"

namespace rqm5 {
namespace {

/// Menu items that neither start a transfer nor edit or replace the image.
constexpr const char* kOnDuringTransfer[] = {"mnuFileExit",    "mnuViewToolbar",  "mnuStatusBar",
                                             "mnuViewHistory", "mnuViewSpectrum", "mnuViewDiagnostics",
                                             "mnuHelpContents"};
constexpr const char* kControlsOff[] = {
    "opbModel_0", "Slider1",   "MSFlexGrid2", "cmbRxData1",   "cmbTxData1", "cmbTxData2",
    "cmbRxData2", "cbbBank",   "MSFlexGrid1", "cmbInsert",    "cmbRxData",  "cmbTxData",
    "txtBank_7",  "chkLink_3", "cmbReadBank", "cmbWriteBank",
};

class TransferTest : public ReceiverWindowTest
{
  protected:
    TransferTest()
    {
        dialogs_.onAsk = [this] { ExpectEverythingOff(); };
    }

    /// Calls for every menu item with a name of its own; those of the table go by the page in front.
    void EachItem(const std::function<void(const QAction& item, const std::string& name)>& look)
    {
        for (const QAction* item : window_->findChildren<QAction*>())
            if (item->objectName().startsWith(QStringLiteral("mnu")) &&
                !item->objectName().startsWith(QStringLiteral("mnuEditSort")) &&
                !item->objectName().startsWith(QStringLiteral("mnuLanguage")) &&  // they stay, all of them
                qobject_cast<const QMenu*>(item->parent()) != nullptr)
                look(*item, item->objectName().toStdString());
    }

    void ExpectEverythingOff()
    {
        EachItem([](const QAction& item, const std::string& name) {
            EXPECT_EQ(item.isEnabled(), std::ranges::count(kOnDuringTransfer, name) == 1) << name;
        });
        for (const char* name : kControlsOff)
            EXPECT_FALSE(Find<QWidget>(name).isEnabled()) << name;
        EXPECT_FALSE(Find<QWidget>("lstHistory").isEnabled());
        EXPECT_TRUE(Find<QPushButton>("cmbCancel").isVisible());
    }

    void ExpectEverythingOn()
    {
        EachItem([](const QAction& item, const std::string& name) {
            const bool depends = name.starts_with("mnuHistory") || name == "mnuEditUndo";
            EXPECT_TRUE(item.isEnabled() || depends) << name;
        });
        EXPECT_TRUE(Find<QWidget>("lstHistory").isEnabled());
        for (const char* name : kControlsOff) {
            const auto& control = Find<QWidget>(name);
            // The page of another tab is disabled as a whole; what is in it must be ready.
            const QWidget* frame = &control;
            while (!frame->objectName().startsWith(QStringLiteral("Frame1_")))
                frame = frame->parentWidget();
            EXPECT_TRUE(control.isEnabledTo(frame)) << name;
        }
        EXPECT_FALSE(Bar().isVisible());
        EXPECT_FALSE(Find<QPushButton>("cmbCancel").isVisible());
    }

    QString MemoryText(int row, int column)
    {
        const QAbstractItemModel* model = Find<QTableView>("MSFlexGrid1").model();
        return model->index(row, column).data().toString();
    }
};

TEST_F(TransferTest, ReadAllShowsWhatTheReceiverHolds)
{
    QString counter;
    At(1200, [&] {
        EXPECT_EQ(Bar().maximum(), 1209);
        EXPECT_EQ(StatusText("lblRegion"), QStringLiteral("RQ-M5 E")) << "what has arrived is shown";
        counter = Find<QLineEdit>("Text3").text();
        ExpectEverythingOff();
        EXPECT_TRUE(Find<QPushButton>("cmbCancel").hasFocus());
        const std::size_t sent = receiver_.CommandLog().size();
        Find<TransferCommands>("").Run(Transfer::ReadBankPage, kSelectAll);
        EXPECT_EQ(receiver_.CommandLog().size(), sent) << "one at a time";
    });
    Find<QWidget>("Slider1").setFocus();
    Item("mnuReAll").trigger();
    EXPECT_TRUE(Find<QWidget>("Slider1").hasFocus());
    EXPECT_EQ(counter, QStringLiteral("1200"));
    ExpectEverythingOn();
    EXPECT_TRUE(dialogs_.asked.empty());
    EXPECT_EQ(Find<QComboBox>("cbbBank").currentText(), QStringLiteral("All"));
    EXPECT_EQ(StatusText("lblFileState"), QStringLiteral("Changed"));
    EXPECT_EQ(MemoryText(1209, 0).toStdString(), demo_.MemText(1209, kFrequency));
}

TEST_F(TransferTest, EveryMenuAndButtonMovesItsPartAndShowsItsPage)
{
    const std::tuple<Tab, const char*, const char*, Tab> cases[] = {
        // clang-format off
        {Tab::Bank, "mnuReMemory", "QT~F01C0R", Tab::Memory}, {Tab::Bank, "mnuWrMemory", "QT~F00C0W", Tab::Memory},
        {Tab::Bank, "mnuReSettings", "QT~F0040R", Tab::Settings1},
        {Tab::Bank, "mnuWrSettings", "QT~F0040W", Tab::Settings1},
        {Tab::Settings1, "cmbRxData1", "QT~F0040R", Tab::Settings1},
        {Tab::Settings1, "cmbTxData1", "QT~F0040W", Tab::Settings1},
        {Tab::Settings2, "cmbRxData2", "QT~F0040R", Tab::Settings2},
        {Tab::Settings2, "cmbTxData2", "QT~F0040W", Tab::Settings2},
        {Tab::Memory, "cmbRxData", "QT~F01C0R", Tab::Memory}, {Tab::Memory, "cmbTxData", "QT~F00C0W", Tab::Memory},
        {Tab::Bank, "cmbReadBank", "QT~F00C0R", Tab::Bank}, {Tab::Bank, "cmbWriteBank", "QT~F00C0W", Tab::Bank},
        // clang-format on
    };
    for (const auto& [from, control, firstCommand, shown] : cases) {
        GoTo(from);
        receiver_.ClearCommandLog();
        Trigger(control);
        ASSERT_FALSE(receiver_.CommandLog().empty()) << control;
        EXPECT_TRUE(receiver_.CommandLog().front().starts_with(firstCommand)) << control;
        EXPECT_EQ(Tabs().currentIndex(), static_cast<int>(shown)) << control;
    }
    EXPECT_TRUE(dialogs_.asked.empty());
}

TEST_F(TransferTest, WriteAllLeavesInTheReceiverWhatTheWindowShows)
{
    Item("mnuReAll").trigger();
    GoTo(Tab::Settings1);
    Click("opbScanMode_1");
    TypeBankSize(49, "1");
    const int size = Find<QLineEdit>("txtBank_49").text().toInt();
    Item("mnuWrAll").trigger();
    EXPECT_TRUE(dialogs_.asked.empty());
    const CloneImage now = ImageFromMemory(receiver_.Memory(), CloneImage{});
    EXPECT_EQ(now.Settings().scanMode, 1);
    EXPECT_EQ(now.BankSize(49), size);
    for (int row = 0; row < kRadioRows; ++row)
        EXPECT_TRUE(now.MemData(row) == demo_.MemData(row)) << row;
}

TEST_F(TransferTest, CancelEndsItWithoutAMessageAndKeepsWhatCame)
{
    const std::function<void()> ways[] = {
        [this] { Find<QPushButton>("cmbCancel").click(); },
        [this] { QTest::keyClick(window_.get(), Qt::Key_Escape); },
    };
    dialogs_.onAsk = nullptr;
    for (const auto& way : ways) {
        dialogs_.answers = {QMessageBox::No};
        Item("mnuFileNew").trigger();
        dialogs_.asked.clear();
        QSignalSpy drawn(Find<QTableView>("MSFlexGrid1").model(), &QAbstractItemModel::dataChanged);
        At(20, [&] {
            drawn.clear();
            way();
        });
        Item("mnuReMemory").trigger();
        EXPECT_FALSE(drawn.empty()) << "shown as well as kept";
        EXPECT_EQ(StatusText("lblFileState"), QStringLiteral("Changed"));
        EXPECT_EQ(MemoryText(19, 0).toStdString(), demo_.MemText(19, kFrequency));
        EXPECT_EQ(MemoryText(30, 0), QString());
        EXPECT_TRUE(dialogs_.asked.empty());
        ExpectEverythingOn();
    }
}

TEST_F(TransferTest, FlagsThatAWriteTakesOverAreShownButNeitherAStepNorUnsaved)
{
    Item("mnuReAll").trigger();
    dialogs_.files = {Path("kept.RQ5")};
    Item("mnuFileSaveAs").trigger();
    const int enabled = StatusText("lblEnabled").section(u' ', -1).toInt();
    demo_.MemData(200).enabled = !demo_.MemEnable(200);  // in bank 3
    receiver_.SetMemory(MemoryFromImage(demo_));
    Find<QComboBox>("cbbBank").setCurrentIndex(0);
    Item("mnuWrMemory").trigger();
    EXPECT_EQ(StatusText("lblEnabled").section(u' ', -1).toInt(), enabled + (demo_.MemEnable(200) ? 1 : -1));
    EXPECT_EQ(StatusText("lblFileState"), QStringLiteral("Saved"));
    EXPECT_EQ(Item("mnuHistoryUndo").text(), QStringLiteral("&Undo Read ALL"));
}

TEST_F(TransferTest, WhatHasArrivedIsAnUnsavedChangeAlsoWhenItIsNothingNew)
{
    struct
    {
        const char* control;
        int failsAfter;  ///< so many commands; -1: it does not fail
        const char* state;
    } const cases[] = {
        {"mnuReAll", -1, "Changed"},    {"mnuReMemory", -1, "Changed"}, {"mnuReSettings", -1, "Changed"},
        {"cmbReadBank", -1, "Changed"}, {"mnuReSettings", 1, "Saved"},  {"mnuReSettings", 2, "Changed"},
        {"cmbReadBank", 6, "Saved"},    {"cmbReadBank", 7, "Changed"},  {"mnuReMemory", 5, "Saved"},
        {"mnuWrAll", -1, "Saved"},      {"mnuWrMemory", -1, "Saved"},   {"mnuWrSettings", 5, "Saved"},
        {"cmbWriteBank", -1, "Saved"},
    };
    Item("mnuReAll").trigger();
    dialogs_.onAsk = nullptr;
    for (const auto& row : cases) {
        SCOPED_TRACE(testing::Message() << row.control << " " << row.failsAfter);
        dialogs_.files = {Path("kept.RQ5")};
        Item("mnuFileSaveAs").trigger();
        const QString step = Item("mnuHistoryUndo").text();
        GoTo(Tab::Bank);
        dialogs_.asked.clear();
        if (row.failsAfter >= 0)
            receiver_.SetFaults({{.kind = FaultKind::Garble, .count = 10, .after = row.failsAfter}});
        Trigger(row.control);
        receiver_.SetFaults({});
        EXPECT_EQ(StatusText("lblFileState").toStdString(), row.state);
        EXPECT_EQ(dialogs_.asked.size(), row.failsAfter >= 0 ? 1U : 0U);
        EXPECT_EQ(Item("mnuHistoryUndo").text(), step) << "nothing has changed, so there is no step";
    }
}

TEST_F(TransferTest, ARefusedBankSizeStopsTheCommandThatLeavesItsBox)
{
    dialogs_.onAsk = nullptr;
    const auto expectStopped = [this](const std::string& command, const std::function<void()>& act) {
        TypeBankSize(49, "1000");
        auto& box = Find<QLineEdit>("txtBank_49");
        dialogs_.asked.clear();
        receiver_.ClearCommandLog();
        act();
        ASSERT_EQ(dialogs_.asked.size(), 1U) << command;
        EXPECT_TRUE(dialogs_.asked[0].text.startsWith(QStringLiteral("The total of the number"))) << command;
        EXPECT_TRUE(receiver_.CommandLog().empty() && dialogs_.choices.empty() && dialogs_.runs == 0)
            << command;
        EXPECT_TRUE(window_->isVisible() && box.hasFocus() && box.selectedText() == QStringLiteral("0"))
            << command;
    };
    EachItem([&](const QAction& item, const std::string& name) {
        if (item.isEnabled() && !item.isCheckable() && !name.starts_with("mnuHistory"))
            expectStopped(name, [&] { Item(name.c_str()).trigger(); });
    });
    expectStopped("close", [this] { window_->close(); });
    expectStopped("Alt+B", [this] { Find<QAbstractButton>("cmbWriteBank").click(); });

    TypeBankSize(49, "1001");  // goes back without a message, and nothing is stopped
    dialogs_.asked.clear();
    Trigger("mnuWrMemory");
    EXPECT_TRUE(dialogs_.asked.empty() && !receiver_.CommandLog().empty());
}

TEST_F(TransferTest, ClosingDuringATransferCancelsItAndThenAsks)
{
    dialogs_.onAsk = [this] { EXPECT_FALSE(Find<QPushButton>("cmbCancel").isVisible()); };
    for (const bool closes : {false, true}) {
        EditSomething();
        dialogs_.answers = {closes ? QMessageBox::No : QMessageBox::Cancel};
        receiver_.ClearCommandLog();
        At(5, [this] { window_->close(); });
        Item("mnuReAll").trigger();
        EXPECT_TRUE(window_->isVisible()) << "the question comes when the transfer has ended";
        EXPECT_LT(receiver_.CommandLog().size(), 60U);
        QCoreApplication::processEvents();
        EXPECT_EQ(dialogs_.asked.size(), closes ? 2U : 1U);
        EXPECT_EQ(window_->isVisible(), !closes);
    }
}

}  // namespace
}  // namespace rqm5
