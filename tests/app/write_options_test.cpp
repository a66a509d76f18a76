#include <QDir>
#include <QProgressBar>
#include <QPushButton>

#include "app/write_options.h"
#include "files/file_store.h"
#include "simulator/demo_image.h"
#include "simulator/sim_session.h"
#include "window_fixture.h"

namespace rqm5 {
namespace {

class WriteOptionsTest : public WindowTest
{
  protected:
    WriteOptionsTest()
    {
        options_.useDevice = [this](const QString&) { port_.SetDevice(receiver_.Device()); };
        Start();
        SaveWriteOptions({false, false, Path("backups")});
    }

    ~WriteOptionsTest() override { port_.Close(); }

    QStringList Backups() const { return QDir(Path("backups")).entryList({QStringLiteral("*.RQ5")}); }

    std::string OrderOfVerbs() const
    {
        std::string order;
        for (const std::string& command : receiver_.CommandLog())
            if (order.empty() || order.back() != command.at(8))
                order += command.at(8);
        return order;
    }

    SimSession receiver_{{.memory = MemoryFromImage(DemoImage(1))}};
};

TEST_F(WriteOptionsTest, AreOffAtFirstRememberedAndInTheMenu)
{
    EXPECT_FALSE(Item("mnuWrBackup").isChecked());
    EXPECT_FALSE(Item("mnuWrVerify").isChecked());
    Item("mnuWrVerify").trigger();
    dialogs_.files = {Path("elsewhere")};
    Item("mnuWrBackupFolder").trigger();
    EXPECT_EQ(dialogs_.suggestions, std::vector<QString>{Path("backups")});
    EXPECT_EQ(LoadWriteOptions().backupFolder, Path("elsewhere"));
    window_.reset();
    Start();
    EXPECT_FALSE(Item("mnuWrBackup").isChecked());
    EXPECT_TRUE(Item("mnuWrVerify").isChecked());
}

TEST_F(WriteOptionsTest, EachWriteKeepsABackupFirstAndReadsBackAfterwards)
{
    const struct
    {
        std::function<void()> write;
        const char* plain;    ///< reads and writes on the wire without options
        const char* checked;  ///< with both
        const char* name;     ///< end of the backup's name
    } cases[] = {
        {[this] { Item("mnuWrSettings").trigger(); }, "W", "RWR", "settings.RQ5"},
        {[this] { Item("mnuWrMemory").trigger(); }, "WRW", "RWRWR", "memory bank 0.RQ5"},
        {[this] {
             GoTo(Tab::Bank);
             Click("cmbWriteBank");
         },
         "W", "RWR", "banks.RQ5"},
        {[this] { Item("mnuWrAll").trigger(); }, "WRWRW", "RWRWRWR", "all.RQ5"},
    };
    int backups = 0;
    for (const auto& test : cases)
        for (const bool isChecked : {false, true}) {
            Item("mnuWrBackup").setChecked(isChecked);
            Item("mnuWrVerify").setChecked(isChecked);
            SaveWriteOptions({isChecked, isChecked, Path("backups")});
            receiver_.ClearCommandLog();
            test.write();
            EXPECT_EQ(OrderOfVerbs(), isChecked ? test.checked : test.plain) << test.name;
            backups += isChecked ? 1 : 0;
            EXPECT_EQ(Backups().size(), backups);
            EXPECT_EQ(Backups().filter(QLatin1String(test.name)).size(), isChecked ? 1 : 0);
            EXPECT_EQ(StatusText("lblHint").startsWith(QStringLiteral("Written and verified")), isChecked);
        }
    EXPECT_TRUE(dialogs_.asked.empty());
}

TEST_F(WriteOptionsTest, ABackupThatFailsStopsTheWriteBeforeItsFirstBlock)
{
    const ReceiverMemory before = receiver_.Memory();
    SaveWriteOptions({true, false, Path("a file") + QStringLiteral("/backups")});
    QFile(Path("a file")).open(QIODevice::WriteOnly);
    Item("mnuWrAll").trigger();
    SaveWriteOptions({true, false, Path("backups")});
    receiver_.SetFaults({{.kind = FaultKind::Garble, .count = 10, .after = 40}});
    Item("mnuWrAll").trigger();
    ASSERT_EQ(dialogs_.asked.size(), 2U);
    EXPECT_EQ(dialogs_.asked[0].text, QStringLiteral("File Open Error"));
    EXPECT_EQ(dialogs_.asked[1].text, QStringLiteral("Communication Error"));
    for (const Prompt& prompt : dialogs_.asked)
        EXPECT_TRUE(prompt.details.contains(QStringLiteral("nothing was written")))
            << prompt.details.toStdString();
    EXPECT_EQ(receiver_.Memory(), before);
    EXPECT_TRUE(Backups().isEmpty());
    EXPECT_TRUE(Find<QPushButton>("cmbTxData1").isEnabled());
}

TEST_F(WriteOptionsTest, VerifyNamesTheRowsThatDiffer)
{
    Item("mnuReAll").trigger();
    SaveWriteOptions({false, true, Path("backups")});
    // From the last block on the receiver goes wrong: what it said OK to is not what it keeps.
    QObject::connect(&Find<QProgressBar>("ProgressBar1"), &QProgressBar::valueChanged, window_.get(),
                     [this](int value) {
                         if (value != 1209)
                             return;
                         ReceiverMemory memory = receiver_.Memory();
                         for (int row = 0; row < 30; ++row)
                             memory.At(0x1000 + row * 0x10).SetByte(0, 0x99);
                         receiver_.SetMemory(memory);
                     });
    Item("mnuWrAll").trigger();
    ASSERT_EQ(dialogs_.asked.size(), 1U);
    EXPECT_EQ(dialogs_.asked[0].title, QStringLiteral("Verify"));
    const QStringList lines = dialogs_.asked[0].details.split(QLatin1Char('\n'));
    EXPECT_EQ(lines.size(), 21);
    EXPECT_EQ(lines.constFirst(), QStringLiteral("Row 0 (Bank 0, channel 0)"));
    EXPECT_EQ(lines.constLast(), QStringLiteral("and 10 more"));
}

TEST_F(WriteOptionsTest, AWriteThatStopsSaysWhatTheReceiverHolds)
{
    receiver_.SetFaults({{.kind = FaultKind::Ng, .count = 10, .after = 30}});
    Item("mnuWrMemory").trigger();
    ASSERT_EQ(dialogs_.asked.size(), 1U);
    EXPECT_TRUE(dialogs_.asked[0].details.contains(
        QStringLiteral("Sent: bank sizes, bank links, enable flags, rows 0 to 1.")))
        << dialogs_.asked[0].details.toStdString();
    receiver_.SetFaults({});
    QObject::connect(&Find<QProgressBar>("ProgressBar1"), &QProgressBar::valueChanged, window_.get(),
                     [this](int value) {
                         if (value == 20)
                             Find<QPushButton>("cmbCancel").click();
                     });
    Item("mnuWrMemory").trigger();
    EXPECT_EQ(dialogs_.asked.size(), 1U) << "a cancel shows no message";
    EXPECT_TRUE(StatusText("lblHint").contains(
        QStringLiteral("Sent: bank sizes, bank links, enable flags, rows 0 to 19. ")))
        << StatusText("lblHint").toStdString();
    EditSomething();
    EXPECT_FALSE(StatusText("lblHint").contains(QStringLiteral("Sent"))) << "makes room for hints again";
}

}  // namespace
}  // namespace rqm5
