#include <gtest/gtest.h>

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include "files/file_store.h"
#include "link/simulated_line.h"
#include "memory/change_words.h"

namespace rqm5 {
namespace {

/// rq-m5-sim, given a line of arguments.
struct Program : QProcess
{
    explicit Program(const QString& arguments)
    {
        start(QStringLiteral(RQM5_SIM_PROGRAM), arguments.split(QLatin1Char(' ')));
    }
};

TEST(Program, KeepsWhatWasWrittenAndTheNotesOfItsFile)
{
    const QTemporaryDir folder;
    const QString memory = folder.filePath(QStringLiteral("memory.RQ5"));
    const QString saved = folder.filePath(QStringLiteral("saved.RQ5"));
    const QString log = folder.filePath(QStringLiteral("log"));
    CloneImage image = DemoImage(1);
    image.MemData(0).note = "Tower";
    ASSERT_FALSE(SaveCloneFile(memory, image).problem);

    Program program(QStringLiteral("--memory %1 --save %2 --log %3 --baud 0").arg(memory, saved, log));
    ASSERT_TRUE(program.waitForReadyRead());
    QtSerialPort port(QString::fromLocal8Bit(program.readLine()).trimmed());
    RadioLink link(port);
    RecordingObserver observer;
    image.SetBankLink(7, true);
    EXPECT_EQ(ReceiverWriter(image, kBanksOnly, link, observer).Write(), TransferResult::Done);
    program.terminate();
    EXPECT_TRUE(program.waitForFinished() && program.exitStatus() == QProcess::NormalExit);
    EXPECT_EQ(program.exitCode(), 0);

    CloneImage kept;
    EXPECT_FALSE(LoadCloneFile(saved, kept));
    EXPECT_TRUE(kept == image) << testing::PrintToString(DescribeChange(image, Difference(image, kept)));
    QFile commands(log);
    EXPECT_TRUE(commands.open(QIODevice::ReadOnly));
    EXPECT_EQ(commands.readAll().count('\n'), 8);
}

TEST(Program, NamesTheNotesThatItCannotSave)
{
    const QTemporaryDir folder;
    const QString memory = folder.filePath(QStringLiteral("memory.RQ5"));
    CloneImage image = DemoImage(0);
    image.MemData(3).note = "\"a,b\"";
    SaveCloneFile(memory, image);
    Program program(QStringLiteral("--memory %1 --save %1").arg(memory));
    ASSERT_TRUE(program.waitForReadyRead());
    program.terminate();
    ASSERT_TRUE(program.waitForFinished());
    EXPECT_EQ(program.exitCode(), 1);
    EXPECT_TRUE(program.readAllStandardError().contains("notes:\n  "));
}

TEST(Program, SaysWhatItCannotDo)
{
    const std::pair<const char*, int> kCases[] = {{"--memory missing.RQ5", 1},
                                                  {"--save /no/such/folder/a.RQ5", 1},
                                                  {"--link /no/such/folder/port", 1},
                                                  {"--baud fast", 2},
                                                  {"--region 4", 2},
                                                  {"--fault none", 2},
                                                  {"file", 2}};
    for (const auto& [arguments, status] : kCases) {
        Program program(QString::fromLatin1(arguments));
        program.waitForFinished();
        EXPECT_EQ(program.exitCode(), status) << arguments;
        EXPECT_FALSE(program.readAllStandardError().isEmpty()) << arguments;
    }
}

}  // namespace
}  // namespace rqm5
