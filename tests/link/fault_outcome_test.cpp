#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <semaphore>

#include "link/link_problems.h"
#include "link/simulated_line.h"

namespace rqm5 {
namespace {

using namespace std::chrono_literals;

TEST(Faults, AreOvercomeByTheNextAttemptAndTenInARowEndTheOperation)
{
    // Retries of a read and a write together, and what came back of a write whose ten attempts all fail.
    // clang-format off
    const std::tuple<std::string, std::size_t, const char*> kFaults[] = {
        {"no-echo", 1, "too short"}, {"drop", 2, "too short"}, {"cut", 2, "too short"}, {"garble", 2, "garbled"},
        {"ng", 2, "not answer OK"}, {"silent", 2, "sent nothing"}, {"pieces", 0, nullptr}, {"noise", 0, nullptr},
        {"late", 1, nullptr}};
    // clang-format on
    for (const auto& [kind, retries, cameBack] : kFaults) {
        SCOPED_TRACE(kind);
        SimulatedLine line(DemoImage(0), {.lateDelay = 400ms});
        line.Spoil(kind + ":1:after=3", 250ms);
        EXPECT_EQ(line.reader.ReadBankPage(), TransferResult::Done);
        EXPECT_EQ(line.image.BankSize, DemoImage(0).BankSize);
        line.Spoil(kind + ":1:after=3", 250ms);
        line.image.BankSize[30] = 7;  // in the block that the fault meets
        EXPECT_EQ(line.writer.WriteBankPage(), TransferResult::Done);
        EXPECT_EQ(ImageFromMemory(line.receiver.Memory(), {}).BankSize[30], 7);
        EXPECT_EQ(line.receiver.CommandLog().size(), 16 + retries);
        EXPECT_TRUE(line.observer.problems.empty());
        if (cameBack == nullptr)
            continue;
        const ReceiverMemory before = line.receiver.Memory();
        line.image.BankSize[0] = line.image.BankSize[8] = 1;
        line.Spoil(kind + ":10", 30ms);
        EXPECT_EQ(line.writer.WriteBankPage(), TransferResult::Failed);
        EXPECT_EQ(line.receiver.CommandLog().size(), 16 + retries + 10);
        ASSERT_EQ(line.observer.problems.size(), 1U);
        EXPECT_TRUE(line.ProblemHas(cameBack)) << line.observer.problems[0].details;
        EXPECT_EQ(line.receiver.Memory().At(0x00D0), before.At(0x00D0)) << "the next block was sent";
    }
}

TEST(LostDevice, IsAPortFailureAndIsOpenedAgainByTheNextOperation)
{
    const QTemporaryDir folder;
    SimulatedLine line(DemoImage(0), {.link = folder.filePath(QStringLiteral("port")).toStdString()});
    line.Spoil("hang-up:1:after=3", 60s);
    EXPECT_EQ(line.reader.ReadBank(), TransferResult::Failed);
    EXPECT_EQ(line.port.Fault(), PortFault::Gone);
    ASSERT_EQ(line.observer.problems.size(), 1U);
    EXPECT_EQ(line.observer.problems[0].text, "COM Port Error");
    EXPECT_EQ(line.observer.failed, std::vector<int>{0x00F0});
    EXPECT_EQ(line.reader.ReadBank(), TransferResult::Done);
    line.receiver.HangUp();  // while nothing runs
    EXPECT_EQ(line.reader.ReadBank(), TransferResult::Failed);
    EXPECT_EQ(line.reader.ReadBank(), TransferResult::Done);
    line.receiver.Stop();
    EXPECT_EQ(line.reader.ReadBank(), TransferResult::Failed);
    EXPECT_EQ(line.reader.ReadBank(), TransferResult::Failed);
    EXPECT_EQ(line.port.Fault(), PortFault::NotFound);
}

TEST(QtSerialPort, SaysWhyAPortCannotBeOpened)
{
    const std::tuple<const char*, PortFault, const char*> kCases[] = {
        {"", PortFault::NotFound, "no device"},
        {"/no/missing", PortFault::NotFound, "missing: no such device. "},
        {"/dev", PortFault::NotAPort, "not a serial port"},
        {"/dev/null", PortFault::NotAPort, "Choose another port"},
    };
    for (const auto& [device, fault, reason] : kCases) {
        QtSerialPort port(QString::fromLatin1(device));
        EXPECT_FALSE(port.Open());
        EXPECT_EQ(port.Fault(), fault) << device;
        const std::string details = ComPortProblem(port).details;
        EXPECT_NE(details.find(reason), std::string::npos) << details;
    }
}

TEST(QtSerialPort, BytesFromBeforeACommandAreThrownAwayEvenWithoutAnEventLoop)
{
    std::binary_semaphore isHeard(0);
    SimulatedLine line(DemoImage(0), {.onCommand = [&](const std::string&) { isHeard.release(); }});
    ASSERT_TRUE(line.port.Open() && line.port.Send("QT~F0050R\r"));
    isHeard.acquire();
    line.Spoil("silent", 5ms);
    EXPECT_EQ(line.link.SendReadCommand("QT~F0060R\r"), "ERROR01");
}

}  // namespace
}  // namespace rqm5
