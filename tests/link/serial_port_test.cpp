#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <semaphore>

#include "link/link_problems.h"
#include "link/simulated_line.h"

namespace rqm5 {
namespace {

using namespace std::chrono_literals;

TEST(LostDevice, IsAPortFailureAndIsOpenedAgainByTheNextOperation)
{
    const QTemporaryDir folder;
    SimulatedLine line(DemoImage(0), {.link = folder.filePath(QStringLiteral("port")).toStdString()});
    line.Spoil("hang-up:1:after=3", 60s);
    EXPECT_EQ(line.reader.ReadBank(), TransferResult::Failed);
    EXPECT_EQ(line.port.Fault(), PortFault::Gone);
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
