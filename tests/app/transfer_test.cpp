#include <QComboBox>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QTableView>

#include "simulator/demo_image.h"
#include "simulator/sim_session.h"
#include "window_fixture.h"

namespace rqm5 {
namespace {

/// Everything that starts a transfer, edits the image or replaces it.
constexpr const char* kOffDuringTransfer[] = {
    "mnuFileNew",  "mnuFileOpen",   "mnuFileSave", "mnuFileSaveAs", "mnuFileImport", "mnuReAll",
    "mnuReMemory", "mnuReSettings", "mnuWrAll",    "mnuWrMemory",   "mnuWrSettings", "mnuToolsOptions",
};
constexpr const char* kControlsOff[] = {
    "opbModel_0", "Slider1",   "MSFlexGrid2", "cmbRxData1",   "cmbTxData1", "cmbTxData2",
    "cmbRxData2", "cbbBank",   "MSFlexGrid1", "cmbInsert",    "cmbRxData",  "cmbTxData",
    "txtBank_7",  "chkLink_3", "cmbReadBank", "cmbWriteBank",
};

class TransferTest : public WindowTest
{
  protected:
    TransferTest()
    {
        options_.useDevice = [this](const QString&) { port_.SetDevice(receiver_.Device()); };
        Start();
        dialogs_.onAsk = [this] { ExpectEverythingOff(); };
    }

    ~TransferTest() override { port_.Close(); }

    QProgressBar& Bar() { return Find<QProgressBar>("ProgressBar1"); }

    /// Does something once, when the row by row part has come to a value.
    void At(int value, const std::function<void()>& act)
    {
        connection_ =
            QObject::connect(&Bar(), &QProgressBar::valueChanged, window_.get(), [=, this](int now) {
                if (now < value)
                    return;
                QObject::disconnect(connection_);
                act();
            });
    }

    void ExpectEverythingOff()
    {
        for (const char* name : kOffDuringTransfer)
            EXPECT_FALSE(Item(name).isEnabled()) << name;
        for (const char* name : kControlsOff)
            EXPECT_FALSE(Find<QWidget>(name).isEnabled()) << name;
        EXPECT_FALSE(Item("mnuEditUndo").isEnabled());
        EXPECT_TRUE(Item("mnuFileExit").isEnabled());
        EXPECT_TRUE(Find<QPushButton>("cmbCancel").isVisible());
    }

    void ExpectEverythingOn()
    {
        for (const char* name : kOffDuringTransfer)
            EXPECT_TRUE(Item(name).isEnabled()) << name;
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

    CloneImage demo_ = DemoImage(1);
    SimSession receiver_{{.memory = MemoryFromImage(demo_)}};
    QMetaObject::Connection connection_;
};

TEST_F(TransferTest, ReadAllShowsWhatTheReceiverHolds)
{
    int maximum = 0;
    QString counter;
    At(1200, [&] {
        maximum = Bar().maximum();
        counter = Find<QLineEdit>("Text3").text();
        EXPECT_TRUE(Bar().isVisible());
        ExpectEverythingOff();
    });
    Item("mnuReAll").trigger();
    EXPECT_EQ(maximum, 1209);
    EXPECT_EQ(counter, QStringLiteral("1200"));
    ExpectEverythingOn();
    EXPECT_TRUE(dialogs_.asked.empty());
    EXPECT_EQ(Find<QComboBox>("cbbBank").currentText(), QStringLiteral("All"));
    EXPECT_EQ(Find<QLineEdit>("txtBank_0").text(), QString::number(demo_.BankSize[0]));
    EXPECT_EQ(StatusText("lblRegion"), QStringLiteral("RQ-M5 E"));
    EXPECT_EQ(StatusText("lblFileState"), QStringLiteral("Changed"));
    EXPECT_EQ(MemoryText(0, 0).toStdString(), demo_.MemText[0][kFrequency]);
    EXPECT_EQ(MemoryText(1209, 0).toStdString(), demo_.MemText[1209][kFrequency]);
}

TEST_F(TransferTest, MenusBringTheirPageToTheFront)
{
    const std::pair<const char*, Tab> cases[] = {{"mnuReMemory", Tab::Memory},
                                                 {"mnuReSettings", Tab::Settings1},
                                                 {"mnuWrMemory", Tab::Memory},
                                                 {"mnuWrSettings", Tab::Settings1}};
    for (const auto& [item, tab] : cases) {
        GoTo(Tab::Bank);
        receiver_.ClearCommandLog();
        Item(item).trigger();
        EXPECT_EQ(Tabs().currentIndex(), static_cast<int>(tab)) << item;
        EXPECT_TRUE(Tabs().currentWidget()->isEnabled());
        const std::vector<std::string> log = receiver_.CommandLog();
        ASSERT_FALSE(log.empty()) << item;
        const bool writes = std::string_view(item).starts_with("mnuWr");
        EXPECT_EQ(log.back().at(8), writes ? 'W' : 'R');
    }
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
    ExpectEverythingOn();
    const CloneImage now = ImageFromMemory(receiver_.Memory(), CloneImage{});
    EXPECT_EQ(now.Settings.scanMode, 1);
    EXPECT_EQ(now.BankSize[49], size);
    EXPECT_EQ(now.MemData, demo_.MemData);
}

TEST_F(TransferTest, AFaultInTheMiddleTellsAndTheNextOperationWorks)
{
    const struct
    {
        Tab tab;
        const char* control;  ///< a menu item or a button
        bool writes;
        std::size_t parts;  ///< that meet a line that is gone for good
    } cases[] = {
        {Tab::Memory, "mnuReAll", false, 2},      {Tab::Memory, "mnuWrAll", true, 2},
        {Tab::Memory, "mnuReMemory", false, 1},   {Tab::Memory, "mnuWrMemory", true, 1},
        {Tab::Memory, "mnuReSettings", false, 1}, {Tab::Memory, "mnuWrSettings", true, 1},
        {Tab::Bank, "cmbReadBank", false, 1},     {Tab::Bank, "cmbWriteBank", true, 1},
    };
    const auto act = [this](const auto& test) {
        dialogs_.asked.clear();
        GoTo(test.tab);
        if (std::string_view(test.control).starts_with("mnu"))
            Item(test.control).trigger();
        else
            Click(test.control);
        ExpectEverythingOn();
    };
    for (const auto& test : cases)
        for (const bool hangsUp : {false, true}) {
            SCOPED_TRACE(std::string(test.control) + (hangsUp ? ", hang-up" : ", bad replies"));
            port_.SetDevice(receiver_.Device());
            receiver_.SetFaults({{.kind = hangsUp       ? FaultKind::HangUp
                                          : test.writes ? FaultKind::Ng
                                                        : FaultKind::Garble,
                                  .count = hangsUp ? 1 : 10,
                                  .after = 4}});
            act(test);
            ASSERT_EQ(dialogs_.asked.size(), hangsUp ? test.parts : 1U);
            for (const Prompt& prompt : dialogs_.asked) {
                EXPECT_EQ(prompt.title, QStringLiteral("ERROR"));
                EXPECT_EQ(prompt.text,
                          hangsUp ? QStringLiteral("COM Port Error") : QStringLiteral("Communication Error"));
                EXPECT_EQ(prompt.icon, QMessageBox::Critical);
                EXPECT_EQ(prompt.details.contains(QStringLiteral("\n\nSent: ")), test.writes)
                    << prompt.details.toStdString();
            }
            receiver_.SetFaults({});
            port_.SetDevice(receiver_.Device());
            act(test);
            EXPECT_TRUE(dialogs_.asked.empty()) << "the fault is gone";
        }
}

TEST_F(TransferTest, CancelEndsItWithoutAMessageAndKeepsWhatCame)
{
    const std::function<void()> ways[] = {
        [this] { Find<QPushButton>("cmbCancel").click(); },
        [this] { QTest::keyClick(window_.get(), Qt::Key_Escape); },
    };
    GoTo(Tab::Memory);
    for (const auto& way : ways) {
        Item("mnuFileNew").trigger();
        receiver_.ClearCommandLog();
        At(20, way);
        dialogs_.answers = {QMessageBox::No};
        Item("mnuReMemory").trigger();
        EXPECT_LT(receiver_.CommandLog().size(), 60U);
        EXPECT_EQ(MemoryText(19, 0).toStdString(), demo_.MemText[19][kFrequency]);
        EXPECT_EQ(MemoryText(30, 0), QString());
        EXPECT_TRUE(dialogs_.asked.empty());
        ExpectEverythingOn();
        dialogs_.answers = {QMessageBox::No};
        dialogs_.onAsk = nullptr;
        Item("mnuFileNew").trigger();
        dialogs_.asked.clear();
    }
}

TEST_F(TransferTest, ClosingDuringATransferCancelsItAndThenAsks)
{
    bool wasRunning = true;
    dialogs_.onAsk = [&] { wasRunning = Find<QPushButton>("cmbCancel").isVisible(); };
    for (const bool closes : {false, true}) {
        EditSomething();
        dialogs_.answers = {closes ? QMessageBox::No : QMessageBox::Cancel};
        receiver_.ClearCommandLog();
        At(5, [this] { window_->close(); });
        Item("mnuReAll").trigger();
        EXPECT_TRUE(window_->isVisible()) << "the question comes when the transfer has ended";
        EXPECT_LT(receiver_.CommandLog().size(), 60U);
        QCoreApplication::processEvents();
        EXPECT_FALSE(wasRunning);
        EXPECT_EQ(dialogs_.asked.size(), closes ? 2U : 1U);
        EXPECT_EQ(window_->isVisible(), !closes);
    }
}

}  // namespace
}  // namespace rqm5
