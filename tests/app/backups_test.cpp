#include <QCheckBox>
#include <QDir>
#include <QSpinBox>
#include <QTreeWidget>

#include "app/backup_list.h"
#include "app/receiver_window_fixture.h"
#include "app/write_options.h"
#include "files/file_store.h"
#include "memory/start_image.h"

namespace rqm5 {
namespace {

class BackupsTest : public ReceiverWindowTest
{
  protected:
    BackupsTest() { SaveWriteOptions({true, false, folder_.path()}); }

    QString Keep(const TransferScope& scope, int day, const CloneImage& image)
    {
        const QString path =
            NewBackupPath(folder_.path(), scope, QDateTime(QDate(2026, 1, day), QTime(8, 0)));
        SaveCloneFile(path, image);
        return path;
    }

    template <typename Control>
    static Control& In(QDialog& dialog, const char* name)
    {
        return *dialog.findChild<Control*>(QLatin1String(name));
    }

    /// Opens the list, chooses a backup by its place and presses a button.
    void Press(int place, const char* button)
    {
        dialogs_.act = [=, this](QDialog& dialog) {
            auto& list = In<QTreeWidget>(dialog, "lstBackups");
            list_.clear();
            for (int i = 0; i < list.topLevelItemCount(); ++i) {
                QTRY_VERIFY(!list.topLevelItem(i)->text(4).isEmpty());
                list_ << list.topLevelItem(i)->text(1) + QLatin1Char('|') + list.topLevelItem(i)->text(2) +
                             QLatin1Char('|') + list.topLevelItem(i)->text(3) + QLatin1Char('|') +
                             list.topLevelItem(i)->text(4);
            }
            list.setCurrentItem(list.topLevelItem(place));
            In<QAbstractButton>(dialog, button).click();
        };
        Item("mnuFileBackups").trigger();
    }

    QStringList list_;
};

TEST_F(BackupsTest, AreListedComparedOpenedWrittenBackAndDeleted)
{
    Item("mnuReAll").trigger();
    CloneImage older = demo_;
    older.MemData(0).frequency = 99'000'000;
    older.Settings().volume = 7;
    CloneImage bank = StartUpImage(0);
    for (int i = 0; i < kBankSizes; ++i)
        bank.SetBankSize(i, demo_.BankSize(i));
    Keep({}, 1, older);
    Keep({.settings = false, .selector = 1}, 2, bank);
    Keep({.memory = false}, 3, older);
    SaveCloneFile(Path("RQ-M5 of mine.RQ5"), older);
    QFile broken(Keep({.settings = false, .memory = false, .banks = true}, 4, older));
    ASSERT_TRUE(broken.open(QIODevice::WriteOnly));
    broken.close();

    Press(2, "cmbBackupCompare");
    ASSERT_EQ(list_.size(), 4);
    EXPECT_TRUE(list_[0].startsWith(QStringLiteral("Bank sizes and links|||cannot be read: ")));
    EXPECT_EQ(list_[1], QStringLiteral("Settings and VFO bands|RQ-M5 E|-|settings: 1"));
    EXPECT_TRUE(list_[2].startsWith(QStringLiteral("Bank 1|-|0|rows: "))) << qPrintable(list_[2]);
    EXPECT_TRUE(list_[3].startsWith(QStringLiteral("Everything|RQ-M5 E|")));
    EXPECT_TRUE(list_[3].endsWith(QStringLiteral("|rows: 1, settings: 1")));
    EXPECT_TRUE(StatusText("lblCompareSource").endsWith(QStringLiteral("which holds: Bank 1")));

    // Only what the backup holds is written, after a question and with a backup of its own.
    Press(1, "cmbBackupWrite");
    EXPECT_EQ(receiver_.Memory(), MemoryFromImage(demo_)) << "the answer was no";
    dialogs_.answers = {QMessageBox::Yes};
    Press(1, "cmbBackupWrite");
    CloneImage expected = demo_;
    expected.Settings().volume = 7;
    EXPECT_EQ(receiver_.Memory().At(0x40), MemoryFromImage(expected).At(0x40));
    EXPECT_EQ(receiver_.Memory().At(0x1000), MemoryFromImage(demo_).At(0x1000));
    EXPECT_EQ(BackupsIn(folder_.path()).size(), 5U);
    EXPECT_TRUE(Item("mnuHistoryUndo").text().contains(QStringLiteral("Read ALL")))
        << "the image is as it was";

    dialogs_.answers = {QMessageBox::Yes};
    Press(1, "cmbBackupDelete");
    EXPECT_FALSE(QFile::exists(broken.fileName()));
    EXPECT_TRUE(QFile::exists(Path("RQ-M5 of mine.RQ5")));
    dialogs_.answers = {QMessageBox::No};
    Press(3, "cmbBackupOpen");
    EXPECT_TRUE(window_->windowTitle().startsWith(QStringLiteral("RQ-M5 2026-01-01 08-00-00 all.RQ5")));
}

TEST_F(BackupsTest, TheOldestGoOnlyBeyondALimitThatTheUserHasSet)
{
    for (int day = 1; day <= 4; ++day)
        Keep({}, day, demo_);
    const std::vector<BackupFile> all = BackupsIn(folder_.path());
    ASSERT_EQ(all.size(), 4U);
    const std::pair<BackupLimit, std::vector<int>> cases[] = {
        {{0, 0}, {}}, {{3, 0}, {1}}, {{0, 7}, {2, 1}}, {{2, 7}, {2, 1}}, {{1, 100}, {3, 2, 1}}};
    for (const auto& [limit, days] : cases) {
        std::vector<int> beyond;
        for (const BackupFile& backup : BeyondLimit(all, limit, QDateTime(QDate(2026, 1, 10), QTime(9, 0))))
            beyond.push_back(backup.time.date().day());
        EXPECT_EQ(beyond, days) << limit.most << " " << limit.days;
    }

    dialogs_.act = [](QDialog& dialog) {
        EXPECT_FALSE(In<QSpinBox>(dialog, "spnBackupNumber").isEnabled());
        In<QCheckBox>(dialog, "chkBackupNumber").click();
        In<QSpinBox>(dialog, "spnBackupNumber").setValue(3);
    };
    Item("mnuFileBackups").trigger();
    EXPECT_EQ(BackupsIn(folder_.path()).size(), 4U) << "not before there is a new one";
    Item("mnuWrSettings").trigger();
    EXPECT_EQ(BackupsIn(folder_.path()).size(), 3U);
    EXPECT_TRUE(StatusText("lblHint").contains(QStringLiteral("Old backups deleted: 2.")));
}

}  // namespace
}  // namespace rqm5
