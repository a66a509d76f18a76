#include "app/current_file.h"

#include <unistd.h>

#include <QDir>
#include <QPushButton>
#include <QSignalSpy>
#include <fstream>

#include "app/window_fixture.h"
#include "files/clone_file.h"
#include "memory/start_image.h"

namespace rqm5 {
namespace {

class CurrentFileTest : public WindowTest
{
  protected:
    CurrentFileTest()
    {
        options_.commandFile = file_;
        PutRegion(0);
    }

    void StartWatched()
    {
        Start();
        seen_ = std::make_unique<QSignalSpy>(window_->findChild<CurrentFile*>(), &CurrentFile::Seen);
    }

    void Put(const std::string& bytes) const
    {
        std::ofstream(file_.toStdString(), std::ios::binary) << bytes;
    }
    void PutRegion(int region) const { Put(FormatCloneFile(StartUpImage(region))); }

    /// Another program does something to the file; waits until the window has seen it.
    template <class Work>
    void Outside(const Work& work)
    {
        seen_->clear();
        work();
        ASSERT_TRUE(!seen_->isEmpty() || seen_->wait(60000));
    }

    bool IsTold() { return Find<QWidget>("barMessage").isVisible(); }
    QString Told() { return StatusText("lblMessage"); }
    QPushButton* LoadAgain() { return window_->findChild<QPushButton*>(QStringLiteral("cmbMessage_0")); }

    std::string Bytes(const QString& path) const
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : std::string();
    }

    const QString file_ = Path("radio.RQ5");
    std::unique_ptr<QSignalSpy> seen_;
};

TEST_F(CurrentFileTest, AChangeIsOfferedToBeLoadedAndEveryLaterOneToo)
{
    StartWatched();
    for (const int region : {2, 3}) {
        // A rename over the file makes it another one for the system; its folder is not told of the next
        // change.
        if (region == 2)
            Outside([&] { ASSERT_FALSE(SaveCloneFile(file_, StartUpImage(region)).problem); });
        else
            Outside([&] { PutRegion(region); });
        ASSERT_TRUE(IsTold() && LoadAgain() != nullptr);
        EXPECT_EQ(Told(), QStringLiteral("radio.RQ5 was changed by another program."));
        EXPECT_EQ(StatusText("lblFileState"), QStringLiteral("Saved"));
        LoadAgain()->click();
        EXPECT_FALSE(IsTold());
        EXPECT_EQ(StatusText("lblRegion"),
                  region == 2 ? QStringLiteral("RQ-M5 T") : QStringLiteral("RQ-M5 K"));
    }
    EXPECT_TRUE(dialogs_.asked.empty());
}

TEST_F(CurrentFileTest, WhatLeavesTheContentsAndOwnSavesAreNoChange)
{
    StartWatched();
    Outside([&] { PutRegion(0); });
    EXPECT_FALSE(IsTold());
    EditSomething();
    Outside([&] { Item("mnuFileSave").trigger(); });
    ASSERT_TRUE(seen_->wait(60000)) << "the system tells of the save as well";
    EXPECT_FALSE(IsTold());
    EXPECT_TRUE(dialogs_.asked.empty());
}

TEST_F(CurrentFileTest, UnsavedChangesAreNeverOfferedToBeLost)
{
    StartWatched();
    EditSomething();
    Outside([&] { PutRegion(1); });
    EXPECT_TRUE(Told().contains(QStringLiteral("unsaved changes")) && LoadAgain() == nullptr);
    Item("mnuHistoryUndo").trigger();
    EXPECT_TRUE(IsTold() && LoadAgain() != nullptr) << "nothing would be lost any more";
    Find<QAbstractButton>("cmbMessageClose").click();
    EXPECT_FALSE(IsTold());
    Item("mnuHistoryRedo").trigger();
    Outside([&] { PutRegion(1); });
    EXPECT_FALSE(IsTold()) << "it was read and closed";
    Outside([&] { QFile::remove(file_); });
    EXPECT_TRUE(Told().contains(QStringLiteral("removed"))) << qPrintable(Told());
}

TEST_F(CurrentFileTest, SaveAsksBeforeItOverwritesWhatAnotherProgramDid)
{
    const QString other = Path("other.RQ5");
    const struct
    {
        QMessageBox::StandardButton answer;
        bool isRemoved;
        const char* region;  ///< in the file then; empty for none
    } cases[] = {
        {QMessageBox::Cancel, false, "RQ-M5 E"}, {QMessageBox::Yes, false, "RQ-M5 J"},
        {QMessageBox::No, false, "RQ-M5 E"},     {QMessageBox::Cancel, true, ""},
        {QMessageBox::Yes, true, "RQ-M5 J"},     {QMessageBox::No, true, ""},
    };
    for (const auto& row : cases) {
        SCOPED_TRACE(testing::Message() << row.answer << row.isRemoved);
        dialogs_ = {};
        PutRegion(0);
        Start();
        EditSomething();
        row.isRemoved ? static_cast<void>(QFile::remove(file_)) : PutRegion(1);
        dialogs_.answers = {row.answer};
        dialogs_.files = {other};
        Item("mnuFileSave").trigger();
        ASSERT_EQ(dialogs_.asked.size(), 1U);
        const Prompt& question = dialogs_.asked[0];
        EXPECT_EQ(question.title, QStringLiteral("Save"));
        EXPECT_TRUE(
            question.text.contains(row.isRemoved ? QStringLiteral("removed") : QStringLiteral("changed")));
        EXPECT_EQ(question.defaultButton, QMessageBox::No);
        EXPECT_EQ(question.captions.front().second, QStringLiteral("Overwrite"));
        EXPECT_EQ(question.captions.back().second, QStringLiteral("Save As..."));
        const bool isSaved = row.answer != QMessageBox::Cancel;
        EXPECT_EQ(StatusText("lblFileState"), isSaved ? QStringLiteral("Saved") : QStringLiteral("Changed"));
        EXPECT_EQ(dialogs_.choices.size(), row.answer == QMessageBox::No ? 1U : 0U);
        CloneImage image;
        const bool isThere = !LoadCloneFile(file_, image);
        EXPECT_EQ(isThere ? RegionOf(image.ModelNo()).model : "", row.region);
    }
}

TEST_F(CurrentFileTest, AFileThatIsNoCloneFileIsKeptBesideTheOneThatReplacesIt)
{
    StartWatched();
    const QString csv = Path("table.csv");
    dialogs_.files = {csv};
    Item("mnuFileExport").trigger();
    const std::string exported = Bytes(csv);
    EditSomething();
    Item("mnuFileSave").trigger();
    EXPECT_EQ(Bytes(csv + QLatin1Char('~')), exported);
    EXPECT_EQ(StatusText("lblHint"),
              QStringLiteral("table.csv was no clone file; what it was is kept as table.csv~."));
    Click("opbScanMode_0");
    Item("mnuFileSave").trigger();
    EXPECT_EQ(Bytes(csv + QLatin1Char('~')), exported) << "a clone file needs no second one";
    EXPECT_EQ(StatusText("lblHint").indexOf(QLatin1Char('~')), -1);

    // Where the old one cannot be kept nothing is saved.
    Put("dear diary");
    ASSERT_TRUE(QDir().mkpath(file_ + QStringLiteral("~/x")));
    dialogs_.files = {file_};
    Item("mnuFileSaveAs").trigger();
    ASSERT_EQ(dialogs_.asked.size(), 1U);
    EXPECT_EQ(dialogs_.asked[0].text, QStringLiteral("File Open Error"));
    EXPECT_EQ(Bytes(file_), "dear diary");
}

TEST_F(CurrentFileTest, AHardLinkIsNamedBeforeItIsBroken)
{
    const QString link = Path("link.RQ5");
    ASSERT_EQ(::link(qPrintable(file_), qPrintable(link)), 0);
    const std::string before = Bytes(file_);
    StartWatched();
    EditSomething();
    Item("mnuFileSave").trigger();  // cancelled
    ASSERT_EQ(dialogs_.asked.size(), 1U);
    EXPECT_EQ(dialogs_.asked[0].text, QStringLiteral("The file has more than one name."));
    EXPECT_EQ(Bytes(file_), before);
    EXPECT_EQ(StatusText("lblFileState"), QStringLiteral("Changed"));
    dialogs_.answers = {QMessageBox::Yes};
    Item("mnuFileSave").trigger();
    EXPECT_TRUE(Bytes(file_) != before && Bytes(link) == before);
    Click("opbScanMode_0");
    Item("mnuFileSave").trigger();
    EXPECT_EQ(dialogs_.asked.size(), 2U) << "it has one name now";
}

TEST_F(CurrentFileTest, WhatASaveDoesNotBringBackIsSaidInTheStatusBarUntilItIsMended)
{
    std::ofstream(Path("in.csv").toStdString())
        << "RQ-M5,MEMORY,3,145.5,FM,1KHz,OFF,0,JR,67.0Hz,OFF,0.05,\"a,b\",,\r\n";
    std::ofstream(Path("mended.csv").toStdString())
        << "RQ-M5,MEMORY,3,145.5,FM,9KHz,OFF,0,JR,67.0Hz,OFF,0.5,a;b,,\r\n";
    StartWatched();
    dialogs_.files = {Path("in.csv"), Path("spoilt.RQ5")};
    Item("mnuFileImport").trigger();
    EXPECT_TRUE(StatusText("lblHint").contains(QStringLiteral("will not survive a save")));
    EXPECT_TRUE(StatusText("lblHint").contains(QStringLiteral("memory row 3")));
    Item("mnuFileSaveAs").trigger();
    EXPECT_TRUE(StatusText("lblHint").contains(QStringLiteral(
        "memory row 3 (Bank 0, channel 3): Step 1KHz -> 9KHz, Shift frequency 0.050000 -> 0.500000")));
    const QString warning = QStringLiteral("spoilt.RQ5 was saved with notes that it cannot bring back");
    EditSomething();
    EXPECT_TRUE(StatusText("lblHint").startsWith(warning)) << qPrintable(StatusText("lblHint"));

    dialogs_.files = {Path("mended.csv"), Path("spoilt.RQ5")};
    Item("mnuFileImport").trigger();
    EXPECT_TRUE(StatusText("lblHint").startsWith(warning)) << "the file is as it was";
    Item("mnuFileSaveAs").trigger();
    EXPECT_FALSE(StatusText("lblHint").contains(QStringLiteral("spoilt")))
        << qPrintable(StatusText("lblHint"));
}

TEST_F(CurrentFileTest, RepairShowsTheNotesAndOpensWhatItWrites)
{
    CloneImage image = StartUpImage(2);
    for (int row = 0; row < 12; ++row)
        image.MemData(row).note = "a,b";
    const std::string spoilt = FormatCloneFile(image);
    const QString repaired = Path("repaired.RQ5");
    const QString file = Path("spoilt.RQ5");
    const struct
    {
        QMessageBox::StandardButton answer;
        QString opened;
    } cases[] = {{QMessageBox::Cancel, file_}, {QMessageBox::Yes, repaired}, {QMessageBox::No, file}};
    for (const auto& row : cases) {
        dialogs_ = {};
        std::ofstream(file.toStdString(), std::ios::binary) << spoilt;
        StartWatched();
        dialogs_.answers = {row.answer};
        dialogs_.files = {file, repaired};
        Item("mnuFileRepair").trigger();
        ASSERT_EQ(dialogs_.asked.size(), 1U);
        EXPECT_EQ(dialogs_.asked[0].text, QStringLiteral("These notes keep the file from being opened."));
        EXPECT_TRUE(
            dialogs_.asked[0].details.contains(QStringLiteral("memory row 9: a,b -> a;b\nand 2 more")));
        EXPECT_TRUE(dialogs_.asked[0].more.endsWith(QStringLiteral("memory row 11: a,b -> a;b")));
        EXPECT_TRUE(window_->windowTitle().startsWith(QFileInfo(row.opened).fileName()));
        EXPECT_EQ(QFile::exists(repaired), row.answer != QMessageBox::Cancel);
        EXPECT_EQ(Bytes(row.answer == QMessageBox::No ? file + QLatin1Char('~') : file), spoilt);
    }
    dialogs_.files = {file_};
    Item("mnuFileRepair").trigger();
    EXPECT_TRUE(window_->windowTitle().startsWith(QStringLiteral("radio.RQ5"))) << "nothing to repair";
    EXPECT_TRUE(StatusText("lblHint").startsWith(QStringLiteral("There was nothing to repair")));
}

}  // namespace
}  // namespace rqm5
