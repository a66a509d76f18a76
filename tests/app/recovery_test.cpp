#include <QDir>
#include <QLineEdit>
#include <QProcess>
#include <QSignalSpy>
#include <csignal>

#include "app/recovery.h"
#include "files/clone_file.h"
#include "files/file_store.h"
#include "memory/start_image.h"
#include "window_fixture.h"

namespace rqm5 {
namespace {

QStringList ClonesIn(const QString& folder)
{
    return QDir(folder).entryList({QStringLiteral("*.RQ5")});
}

class RecoveryTest : public WindowTest
{
  protected:
    RecoveryTest()
    {
        options_.stateFolder = Path("state");
        options_.recoveryDelay = std::chrono::milliseconds(0);
    }

    QStringList Kept() const { return ClonesIn(options_.stateFolder); }

    /// Another program with the same state folder edits the scan mode and bank 0, and is killed without
    /// warning once its changes are kept.
    void Crash(const QString& file = {})
    {
        QProcess process;
        process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("TMPDIR"), folder_.path());  // who is killed cleans nothing up
        process.setProcessEnvironment(environment);
        process.start(QCoreApplication::applicationFilePath(),
                      {QStringLiteral("--edit-until-killed"), options_.stateFolder, file});
        ASSERT_TRUE(process.waitForReadyRead(60000));
        ASSERT_EQ(process.readAllStandardOutput(), "kept\n");
        ASSERT_EQ(kill(static_cast<pid_t>(process.processId()), SIGKILL), 0);
        process.waitForFinished(-1);
    }

    void StartWithAnswer(QMessageBox::StandardButton answer)
    {
        window_.reset();
        dialogs_.asked.clear();
        dialogs_.answers = {answer};
        Start();
        dialogs_.answers.clear();
    }
};

TEST_F(RecoveryTest, EditsSurviveAKilledProgram)
{
    const QString file = Path("radio.RQ5");
    ASSERT_FALSE(SaveCloneFile(file, StartUpImage(1)).problem);
    Crash(file);
    ASSERT_EQ(Kept().size(), 1);
    CloneImage image;
    ASSERT_FALSE(LoadCloneFile(QDir(options_.stateFolder).filePath(Kept().constFirst()), image));

    options_.commandFile = file;
    StartWithAnswer(QMessageBox::Cancel);
    ASSERT_EQ(dialogs_.asked.size(), 1U);
    const Prompt& question = dialogs_.asked[0];
    EXPECT_TRUE(question.details.contains(QStringLiteral("radio.RQ5")));
    EXPECT_EQ(question.buttons, QMessageBox::Yes | QMessageBox::Discard | QMessageBox::Cancel);
    EXPECT_EQ(question.defaultButton, QMessageBox::Yes);
    EXPECT_EQ(question.captions.size(), 3U) << "Yes and Cancel would answer nothing";
    EXPECT_EQ(StatusText("lblFileState"), QStringLiteral("Saved")) << "the file of the command line is open";
    EXPECT_TRUE(window_->windowTitle().startsWith(QStringLiteral("radio.RQ5")));
    window_->close();
    ASSERT_EQ(Kept().size(), 1) << "Later keeps it, whatever this program did";

    StartWithAnswer(QMessageBox::Yes);
    ASSERT_EQ(dialogs_.asked.size(), 1U);
    EXPECT_EQ(StatusText("lblFileState"), QStringLiteral("Changed"));
    EXPECT_EQ(StatusText("lblRegion"), QStringLiteral("RQ-M5 E"));
    EXPECT_EQ(Find<QLineEdit>("txtBank_0").text(), QStringLiteral("7"));
    EXPECT_TRUE(window_->windowTitle().startsWith(QStringLiteral("radio.RQ5")));
    EXPECT_EQ(Kept().size(), 1) << "not saved yet, so still to be lost";
    Item("mnuFileSave").trigger();
    EXPECT_TRUE(Kept().isEmpty());
    StartWithAnswer(QMessageBox::Yes);
    EXPECT_TRUE(dialogs_.asked.empty());
}

TEST_F(RecoveryTest, DiscardRemovesAndTheOriginalMayBeGone)
{
    Crash();
    Crash();
    ASSERT_EQ(Kept().size(), 2);
    dialogs_.answers = {QMessageBox::Discard, QMessageBox::Yes};
    Start();
    EXPECT_EQ(dialogs_.asked.size(), 2U);
    EXPECT_EQ(Kept().size(), 1);
    EXPECT_FALSE(window_->windowTitle().contains(QStringLiteral(" - ")));
    EXPECT_EQ(Find<QLineEdit>("txtBank_0").text(), QStringLiteral("7"));
    dialogs_.answers = {QMessageBox::No};
    window_->close();
    EXPECT_TRUE(QDir(options_.stateFolder).isEmpty()) << "locks and all";
}

TEST_F(RecoveryTest, ProgramsAtWorkLeaveEachOtherAlone)
{
    Start();
    auto& recovery = *window_->findChild<Recovery*>();
    QSignalSpy kept(&recovery, &Recovery::Kept);
    EditSomething();
    ASSERT_TRUE(!kept.isEmpty() || kept.wait());
    EXPECT_EQ(Kept().size(), 1);
    EXPECT_TRUE(RecoveryFile::Abandoned(options_.stateFolder).empty());
    Crash();  // beside it; nothing was offered to that one, or it would not have come to an edit
    EXPECT_EQ(Kept().size(), 2);
    EXPECT_EQ(RecoveryFile::Abandoned(options_.stateFolder).size(), 1U);
    dialogs_.answers = {QMessageBox::No};
    window_->close();
    EXPECT_EQ(Kept().size(), 1);
}

TEST_F(RecoveryTest, WhatIsKeptCanAlwaysBeLoaded)
{
    CloneImage image = StartUpImage(0);
    image.MemData(3).note = "a,b";
    image.VFOData(2).note = "\"x\"";
    image.MemData(9).note = "5\" rod";
    CloneImage loaded;
    EXPECT_TRUE(ParseCloneFile(FormatCloneFile(image), loaded)) << "the reason why notes are mended";
    ASSERT_FALSE(ParseCloneFile(RecoveryText(image), loaded));
    EXPECT_EQ(loaded.MemData(3).note, "a;b");
    EXPECT_EQ(loaded.VFOData(2).note, "'x'");
    EXPECT_EQ(loaded.MemData(9).note, "5\" rod");
}

TEST_F(RecoveryTest, AFolderThatCannotBeWrittenIsToldAndTriedAgain)
{
    QFile(options_.stateFolder).open(QIODevice::WriteOnly);
    Start();
    QSignalSpy kept(window_->findChild<Recovery*>(), &Recovery::Kept);
    EditSomething();
    ASSERT_TRUE(!kept.isEmpty() || kept.wait());
    EXPECT_FALSE(kept.constLast().constFirst().toString().isEmpty());
    EXPECT_TRUE(StatusText("lblHint").contains(QStringLiteral("cannot be kept")));
    QFile::remove(options_.stateFolder);
    ASSERT_TRUE(kept.wait());
    EXPECT_TRUE(kept.constLast().constFirst().toString().isEmpty());
    EXPECT_EQ(Kept().size(), 1);
}

}  // namespace

/// The program that is going to be killed.
class DoomedProgram : public WindowTest
{
  public:
    int Run(const QString& stateFolder, const QString& file)
    {
        options_.stateFolder = stateFolder;
        options_.recoveryDelay = std::chrono::milliseconds(0);
        options_.commandFile = file;
        others_ = ClonesIn(stateFolder);
        Start();
        QSignalSpy kept(window_->findChild<Recovery*>(), &Recovery::Kept);
        EditSomething();
        TypeBankSize(0, "7");
        GoTo(Tab::Settings1);
        while (KeptBankSize() != 7)
            kept.wait();
        puts("kept");
        fflush(stdout);
        return QCoreApplication::exec();
    }

    void TestBody() override {}

  private:
    /// Of bank 0 in this program's own recovery file.
    int KeptBankSize() const
    {
        CloneImage image;
        for (const QString& name : ClonesIn(options_.stateFolder))
            if (!others_.contains(name) && !LoadCloneFile(QDir(options_.stateFolder).filePath(name), image))
                return image.BankSize(0);
        return -1;
    }

    QStringList others_;
};

int EditUntilKilled(const QString& stateFolder, const QString& file)
{
    return DoomedProgram().Run(stateFolder, file);
}

}  // namespace rqm5
