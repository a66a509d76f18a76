#include <QDir>
#include <QLineEdit>
#include <QProcess>
#include <QSignalSpy>
#include <QTimer>
#include <QWindow>
#include <csignal>

#include "app/ending.h"
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
        StartOther(process, "--edit-until-killed", file);
        ASSERT_EQ(process.readAllStandardOutput(), "kept\n");
        ASSERT_EQ(kill(static_cast<pid_t>(process.processId()), SIGKILL), 0);
        process.waitForFinished(-1);
    }

    void StartOther(QProcess& process, const char* what, const QString& file)
    {
        process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("TMPDIR"), folder_.path());  // who is killed cleans nothing up
        process.setProcessEnvironment(environment);
        process.start(QCoreApplication::applicationFilePath(),
                      {QString::fromLatin1(what), options_.stateFolder, file});
        ASSERT_TRUE(process.waitForReadyRead(60000));
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

TEST_F(RecoveryTest, ASignalEndsTheProgramWithItsEditsKept)
{
    const QString file = Path("radio.RQ5");
    for (const int signal : {SIGTERM, SIGHUP, SIGINT}) {
        ASSERT_FALSE(SaveCloneFile(file, StartUpImage(1)).problem);
        QProcess process;
        StartOther(process, "--edit-until-ended", file);
        EXPECT_TRUE(Kept().isEmpty()) << "long before the first of its edits would be kept";
        ASSERT_EQ(kill(static_cast<pid_t>(process.processId()), signal), 0);
        process.waitForFinished(-1);
        EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
        EXPECT_EQ(process.exitCode(), 128 + signal);
        ASSERT_EQ(Kept().size(), 1);
        // Another program has changed the file since the work began.
        ASSERT_FALSE(SaveCloneFile(file, StartUpImage(2)).problem);
        StartWithAnswer(QMessageBox::Yes);
        EXPECT_EQ(Find<QLineEdit>("txtBank_0").text(), QStringLiteral("7"));
        dialogs_.answers = {QMessageBox::Yes};
        Item("mnuFileSave").trigger();
        EXPECT_EQ(dialogs_.asked.back().text, QStringLiteral("The file was changed by another program."));
        EXPECT_TRUE(Kept().isEmpty());
    }
}

TEST_F(RecoveryTest, TheEndOfASessionKeepsEditsUnlessWorkGoesOn)
{
    options_.recoveryDelay = std::chrono::hours(1);
    for (const bool goesOn : {false, true}) {
        Start();
        EditSomething();
        EXPECT_TRUE(Kept().isEmpty());
        window_->EndSession();
        EXPECT_EQ(Kept().size(), 1);
        if (goesOn)
            QTest::keyClick(window_->windowHandle(), Qt::Key_Shift);
        window_->close();
        EXPECT_EQ(dialogs_.asked.size(), goesOn ? 1U : 0U);
        EXPECT_EQ(window_->isVisible(), goesOn);
        EXPECT_EQ(Kept().size(), 1);
        window_.reset();
        for (const auto& file : RecoveryFile::Abandoned(options_.stateFolder))
            file->Remove();
    }
}

TEST_F(RecoveryTest, SteadyTypingDoesNotPutKeepingOff)
{
    options_.recoveryDelay = std::chrono::milliseconds(300);
    Start();
    QSignalSpy kept(window_->findChild<Recovery*>(), &Recovery::Kept);
    int edits = 0;
    QTimer typing;
    QObject::connect(&typing, &QTimer::timeout,
                     [&] { Click(++edits % 2 != 0 ? "opbScanMode_1" : "opbScanMode_0"); });
    GoTo(Tab::Settings1);
    typing.start(50);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !kept.isEmpty() || edits > 400; }, 60000));
    EXPECT_FALSE(kept.isEmpty()) << "each edit was sooner than the delay after the one before";
}

TEST_F(RecoveryTest, WhatWasReadAndNotSavedIsOfferedAsThat)
{
    {
        RecoveryFile read(options_.stateFolder, RecoveryFile::Work::Read);
        ASSERT_FALSE(read.Keep(FormatCloneFile(StartUpImage(2)), {Path("radio.RQ5"), {}}));
    }
    EXPECT_EQ(QFileInfo(options_.stateFolder).permissions() & (QFile::ReadGroup | QFile::ReadOther), 0);
    StartWithAnswer(QMessageBox::Yes);
    ASSERT_EQ(dialogs_.asked.size(), 1U);
    EXPECT_TRUE(dialogs_.asked[0].text.startsWith(QStringLiteral("What was read from the receiver")));
    EXPECT_EQ(dialogs_.asked[0].defaultButton, QMessageBox::Yes);
    EXPECT_EQ(StatusText("lblRegion"), QStringLiteral("RQ-M5 T"));
}

TEST_F(RecoveryTest, DiscardRemovesAndTheOriginalMayBeGone)
{
    const QString gone = Path("gone\n.RQ5");
    ASSERT_FALSE(SaveCloneFile(gone, StartUpImage(1)).problem);
    Crash(gone);
    Crash(gone);
    QFile::remove(gone);
    ASSERT_EQ(Kept().size(), 2);
    dialogs_.answers = {QMessageBox::Discard, QMessageBox::Yes};
    Start();
    EXPECT_EQ(dialogs_.asked.size(), 2U);
    EXPECT_TRUE(dialogs_.asked[1].details.contains(QStringLiteral("gone\\n.RQ5")))
        << "a name may hold a line end";
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
    ASSERT_TRUE(QFile(options_.stateFolder).open(QIODevice::WriteOnly));
    Start();
    QSignalSpy kept(window_->findChild<Recovery*>(), &Recovery::Kept);
    EditSomething();
    ASSERT_TRUE(!kept.isEmpty() || kept.wait());
    EXPECT_FALSE(kept.constLast().constFirst().value<Message>().empty());
    EXPECT_TRUE(StatusText("lblHint").contains(QStringLiteral("cannot be kept")));
    EXPECT_TRUE(Find<QWidget>("barMessage").isHidden());
    Item("mnuStatusBar").trigger();
    EXPECT_TRUE(StatusText("lblMessage").contains(QStringLiteral("cannot be kept")));
    EXPECT_TRUE(Find<QWidget>("barMessage").isVisible());
    QFile::remove(options_.stateFolder);
    ASSERT_TRUE(kept.wait());
    EXPECT_TRUE(kept.constLast().constFirst().toString().isEmpty());
    EXPECT_EQ(Kept().size(), 1);
    EXPECT_TRUE(Find<QWidget>("barMessage").isHidden());
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

    /// Edits, and ends when somebody says so; nothing is kept before.
    int RunToEnd(const QString& stateFolder, const QString& file)
    {
        options_.stateFolder = stateFolder;
        options_.recoveryDelay = std::chrono::hours(1);
        options_.commandFile = file;
        ProgramEnd end;
        Start();
        EditSomething();
        TypeBankSize(0, "7");
        GoTo(Tab::Settings1);
        puts("edited");
        fflush(stdout);
        return end.Exec(*window_);
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

int EditUntilEnded(const QString& stateFolder, const QString& file)
{
    return DoomedProgram().RunToEnd(stateFolder, file);
}

}  // namespace rqm5
