#include "app/write_options.h"

#include <QComboBox>
#include <QDir>
#include <QPushButton>
#include <QSignalSpy>
#include <QStatusTipEvent>
#include <QTableView>
#include <QTreeWidget>

#include "app/receiver_window_fixture.h"

namespace rqm5 {
namespace {

class WriteOptionsTest : public ReceiverWindowTest
{
  protected:
    WriteOptionsTest() { SaveWriteOptions({false, false, Path("backups")}); }

    QStringList Backups() const { return QDir(Path("backups")).entryList({QStringLiteral("*.RQ5")}); }

    std::string OrderOfVerbs() const
    {
        std::string order;
        for (const std::string& command : receiver_.CommandLog())
            if (order.empty() || order.back() != command.at(8))
                order += command.at(8);
        return order;
    }
};

TEST_F(WriteOptionsTest, AreOffAtFirstRememberedAndInTheMenu)
{
    EXPECT_FALSE(Item("mnuWrVerify").isChecked());
    Item("mnuWrVerify").trigger();
    dialogs_.files = {Path("elsewhere")};
    Item("mnuWrBackupFolder").trigger();
    EXPECT_EQ(dialogs_.suggestions, std::vector<QString>{Path("backups")});
    EXPECT_EQ(LoadWriteOptions().backupFolder, Path("elsewhere"));
    Start();
    EXPECT_FALSE(Item("mnuWrBackup").isChecked());
    EXPECT_TRUE(Item("mnuWrVerify").isChecked());
}

TEST_F(WriteOptionsTest, EachWriteKeepsABackupFirstAndReadsBackAfterwards)
{
    // Reads and writes on the wire without and with the options, and the end of the backup's name.
    const std::tuple<const char*, const char*, const char*, const char*> cases[] = {
        {"mnuWrSettings", "W", "RWR", "settings.RQ5"},
        {"mnuWrMemory", "WRW", "RWRWR", "memory bank 0.RQ5"},
        {"cmbWriteBank", "W", "RWR", "banks.RQ5"},
        {"mnuWrAll", "WRWRW", "RWRWRWR", "all.RQ5"},
    };
    for (const auto& [control, plain, checked, name] : cases)
        for (const bool isChecked : {false, true}) {
            GoTo(Tab::Bank);
            SaveWriteOptions({isChecked, isChecked, Path("backups")});
            receiver_.ClearCommandLog();
            Trigger(control);
            EXPECT_EQ(OrderOfVerbs(), isChecked ? checked : plain) << name;
            EXPECT_EQ(Backups().filter(QLatin1String(name)).size(), isChecked ? 1 : 0);
            EXPECT_EQ(StatusText("lblHint").contains(QStringLiteral(" and verified.")), isChecked);
            EXPECT_TRUE(StatusText("lblHint").startsWith(QStringLiteral("Written in ")));
        }
    EXPECT_TRUE(dialogs_.asked.empty());
}

TEST_F(WriteOptionsTest, AskBeforeTheFirstWriteToAReceiverThatTellsToBeAnotherModel)
{
    const ReceiverMemory before = receiver_.Memory();
    SaveWriteOptions({true, false, Path("backups")});
    Item("mnuWrSettings").trigger();
    ASSERT_EQ(dialogs_.asked.size(), 1U);
    EXPECT_EQ(dialogs_.asked[0].defaultButton, QMessageBox::No);
    EXPECT_EQ(dialogs_.asked[0].buttons, QMessageBox::Yes | QMessageBox::No);
    EXPECT_EQ(dialogs_.asked[0].details,
              QStringLiteral("The receiver is an RQ-M5 E, and what is to be written is for an RQ-M5 J."));
    EXPECT_EQ(receiver_.Memory(), before);
    EXPECT_EQ(StatusText("lblHint"), QStringLiteral("Nothing was written."));

    SaveWriteOptions({false, false, Path("backups")});
    dialogs_.answers = {QMessageBox::Yes};
    for (const char* control : {"mnuWrMemory", "mnuWrSettings", "mnuWrSettings"}) {
        receiver_.ClearCommandLog();
        Trigger(control);
        EXPECT_FALSE(receiver_.CommandLog().empty());
        EXPECT_EQ(dialogs_.asked.size(), 2U) << "once for these two models: " << control;
    }
    Item("mnuReSettings").trigger();
    GoTo(Tab::Settings1);
    Click("opbModel_2");
    Item("mnuWrMemory").trigger();
    ASSERT_EQ(dialogs_.asked.size(), 3U);
    EXPECT_TRUE(dialogs_.asked[2].details.contains(QStringLiteral("an RQ-M5 E, and")))
        << "not what was written";
}

TEST_F(WriteOptionsTest, AGroupThatTakesFlagsFromTheReceiverSaysHowMany)
{
    GoTo(Tab::Memory);
    Find<QComboBox>("cbbBank").setCurrentIndex(kSelectPriority);
    int others = 0;
    for (int row = 0; row < kRadioRows; ++row)
        others += demo_.MemEnable(row) && !kPriority.rows.Contains(row) ? 1 : 0;
    const QString flags =
        QStringLiteral(". Enable flags of other rows replaced by the receiver's: %1.").arg(others);
    QSignalSpy drawn(Find<QTableView>("MSFlexGrid1").model(), &QAbstractItemModel::dataChanged);
    Click("cmbTxData");
    const QString note = StatusText("lblHint");
    EXPECT_TRUE(note.startsWith(QStringLiteral("Written in ")) && note.endsWith(flags)) << qPrintable(note);
    EXPECT_FALSE(drawn.empty()) << "their colour";
    EXPECT_EQ(StatusText("lblEnabled"), QStringLiteral("Channels enabled: %1").arg(others));

    // It stays while the pointer passes over controls, and until the next click or key.
    QStatusTipEvent tip(QStringLiteral("hint"));
    QCoreApplication::sendEvent(window_.get(), &tip);
    EXPECT_EQ(StatusText("lblHint"), note);
    Press(Qt::Key_Shift);
    EXPECT_EQ(StatusText("lblHint"), note);
    Press(Qt::Key_Tab);
    EXPECT_EQ(StatusText("lblHint"), QStringLiteral("hint"));

    Click("cmbTxData");
    EXPECT_FALSE(StatusText("lblHint").contains(QStringLiteral("flags"))) << "they are the same now";
    SaveWriteOptions({false, true, Path("backups")});
    Find<QComboBox>("cbbBank").setCurrentIndex(kSelectSearchPass);
    receiver_.SetMemory(MemoryFromImage(DemoImage(1)));
    Item("mnuFileNew").trigger();
    dialogs_.asked.clear();
    Item("mnuWrMemory").trigger();
    EXPECT_TRUE(StatusText("lblHint").contains(QStringLiteral(" and verified.")))
        << qPrintable(StatusText("lblHint"));
}

TEST_F(WriteOptionsTest, NoBackupReplacesAnother)
{
    const QDateTime now = QDateTime::currentDateTime();
    const QString first = NewBackupPath(folder_.path(), {}, now);
    ASSERT_TRUE(QFile(first).open(QIODevice::WriteOnly));
    const QString second = NewBackupPath(folder_.path(), {}, now);
    ASSERT_TRUE(second != first && QFile(second).open(QIODevice::WriteOnly));
    const QString third = NewBackupPath(folder_.path(), {}, now);
    EXPECT_TRUE(third != first && third != second && !QFile::exists(third));
}

TEST_F(WriteOptionsTest, VerifyNamesTheRowsThatDiffer)
{
    Item("mnuReAll").trigger();
    SaveWriteOptions({false, true, Path("backups")});
    // From the last block on the receiver goes wrong: what it said OK to is not what it keeps.
    At(1209, [this] {
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
    EXPECT_TRUE(dialogs_.asked[0].more.endsWith(QStringLiteral("\nRow 29 (Bank 0, channel 29)")));

    receiver_.SetFaults({{.kind = FaultKind::Ng, .count = 10, .after = 2}});
    receiver_.ClearCommandLog();
    Item("mnuWrSettings").trigger();
    EXPECT_EQ(receiver_.CommandLog().size(), 12U) << "a write that failed is not verified";
}

TEST_F(WriteOptionsTest, WithoutItsBackupNothingIsWrittenAndACancelTellsWhatWas)
{
    const ReceiverMemory before = receiver_.Memory();
    Item("mnuReSettings").trigger();
    SaveWriteOptions({true, false, Path("backups")});
    receiver_.SetFaults({{.kind = FaultKind::Garble, .count = 10, .after = 40}});
    Item("mnuWrAll").trigger();
    ASSERT_EQ(dialogs_.asked.size(), 1U);
    EXPECT_TRUE(dialogs_.asked[0].details.contains(QStringLiteral("nothing was written")));
    EXPECT_EQ(receiver_.Memory(), before);
    EXPECT_TRUE(Backups().isEmpty());

    // A folder that goes away meanwhile, and one that is none: a backup that cannot be saved is kept
    // elsewhere.
    receiver_.SetFaults({});
    qputenv("XDG_STATE_HOME", QFile::encodeName(Path("state")));
    At(100, [this] {
        QDir(Path("backups")).removeRecursively();
        EXPECT_TRUE(QFile(Path("backups")).open(QIODevice::WriteOnly));
    });
    for (const bool wasRead : {true, false}) {
        dialogs_.asked.clear();
        Item("mnuWrMemory").trigger();
        ASSERT_EQ(dialogs_.asked.size(), 1U);
        EXPECT_TRUE(dialogs_.asked[0].details.contains(QStringLiteral("nothing was written")));
        EXPECT_EQ(dialogs_.asked[0].details.contains(Path("state/rq-m5-clone/recovery-read-")), wasRead);
        EXPECT_EQ(receiver_.Memory(), before);
    }
    qunsetenv("XDG_STATE_HOME");
    dialogs_.asked.resize(1);
    SaveWriteOptions({false, false, Path("backups")});
    At(20, [this] { Find<QPushButton>("cmbCancel").click(); });
    Item("mnuWrMemory").trigger();
    ASSERT_EQ(dialogs_.asked.size(), 2U);
    EXPECT_EQ(dialogs_.asked[1].text, QStringLiteral("The write was cancelled."));
    EXPECT_TRUE(dialogs_.asked[1].details.startsWith(
        QStringLiteral("Sent: bank sizes, bank links, enable flags, rows 0 to 19. ")));
    At(0, [this] { Find<QPushButton>("cmbCancel").click(); });
    Item("mnuReMemory").trigger();
    EXPECT_EQ(dialogs_.asked.size(), 2U) << "a read leaves nothing half done in the receiver";

    SaveWriteOptions({false, true, Path("backups")});
    receiver_.ClearCommandLog();
    QObject::connect(&Bar(), &QProgressBar::valueChanged, window_.get(), [this] {
        if (OrderOfVerbs() == "WR")
            Find<QPushButton>("cmbCancel").click();
    });
    Item("mnuWrSettings").trigger();
    EXPECT_TRUE(StatusText("lblHint").contains(QStringLiteral("not all of it could be verified")))
        << qPrintable(StatusText("lblHint"));
}

/// Write > Changes, and what its dialogs show and are told.
TEST_F(WriteOptionsTest, ChangesAreShownCheckedBackedUpWrittenAndVerified)
{
    Item("mnuWrChanges").trigger();
    ASSERT_EQ(dialogs_.asked.size(), 1U);
    EXPECT_EQ(dialogs_.asked[0].details,
              QStringLiteral("The receiver was never read in this run: 1251 blocks, about one minute."));
    EXPECT_TRUE(receiver_.CommandLog().empty()) << "cancelled";

    Item("mnuReAll").trigger();
    const auto textOf = [](const QDialog& dialog, const char* name) {
        return dialog.findChild<QLabel*>(QLatin1String(name))->text();
    };
    std::vector<QString> shown;
    dialogs_.act = [&](QDialog& dialog) {
        const auto* list = dialog.findChild<QTreeWidget*>();
        for (auto line = QTreeWidgetItemIterator(const_cast<QTreeWidget*>(list)); *line != nullptr; ++line) {
            QStringList cells;
            for (int column = 0; column < (*line)->columnCount(); ++column)
                cells << (*line)->text(column);
            shown.push_back(cells.join(QStringLiteral("|")));
        }
        auto* ok = dialog.findChild<QPushButton*>(QStringLiteral("OKButton"));
        if (dialog.objectName() == QLatin1String("dlgWriteConflicts")) {
            EXPECT_FALSE(ok->isEnabled()) << "not decided yet";
            dialog.findChild<QPushButton*>(QStringLiteral("cmbTakeReceivers"))->click();
        } else {
            shown.push_back(textOf(dialog, "lblTime"));
        }
        ok->click();
    };
    Item("mnuWrChanges").trigger();
    EXPECT_EQ(std::exchange(shown, {}),
              std::vector<QString>{
                  QStringLiteral("The receiver holds all of it already. There is nothing to write.")});

    receiver_.ClearCommandLog();
    EditSomething();
    Item("mnuWrChanges").trigger();
    EXPECT_EQ(
        std::exchange(shown, {}),
        (std::vector<QString>{QStringLiteral("Settings 2"), QStringLiteral("Scan Mode|Busy Scan|Timer Scan"),
                              QStringLiteral("1 block is written, less than a second.")}));
    EXPECT_EQ(receiver_.CommandLog().size(), 3U);
    EXPECT_EQ(OrderOfVerbs(), "RWR");
    EXPECT_EQ(Backups().filter(QStringLiteral("changes.RQ5")).size(), 1);
    EXPECT_TRUE(StatusText("lblHint").contains(QStringLiteral(" and verified.")));

    ReceiverMemory memory = receiver_.Memory();
    memory.At(0x0050).SetByte(4, 1);  // the lamp
    receiver_.SetMemory(memory);
    Click("opbScanMode_0");
    Item("mnuWrChanges").trigger();
    EXPECT_EQ(receiver_.Memory(), memory) << "the receiver's was taken";
    EXPECT_EQ(StatusText("lblHint"), QStringLiteral("Nothing was written."));
    EXPECT_EQ(Backups().size(), 1);
    for (const char* field : {"Scan Mode|Timer Scan|Timer Scan|Busy Scan", "Lamp|ON|5sec|ON"})
        EXPECT_EQ(std::ranges::count(shown, QLatin1String(field)), 1) << field;
    EXPECT_TRUE(Find<QAbstractButton>("opbScanMode_1").isChecked()) << "in the window, too";
    Item("mnuHistoryUndo").trigger();
    EXPECT_TRUE(Find<QAbstractButton>("opbScanMode_0").isChecked());

    receiver_.SetFaults({{.kind = FaultKind::Garble, .count = 10}});
    dialogs_.asked.clear();
    Item("mnuWrChanges").trigger();
    ASSERT_EQ(dialogs_.asked.size(), 1U);
    EXPECT_TRUE(dialogs_.asked[0].details.contains(QStringLiteral("Nothing was written.")));
}

}  // namespace
}  // namespace rqm5
