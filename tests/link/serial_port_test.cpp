#include <gtest/gtest.h>
#include <sys/stat.h>
#include <termios.h>

#include <QFileInfo>
#include <QTemporaryDir>
#include <semaphore>

#include "link/link_problems.h"
#include "link/simulated_line.h"
#include "platform/pseudo_terminal.h"

namespace rqm5 {
namespace {

using namespace std::chrono_literals;

TEST(LostDevice, IsAPortFailureAndIsOpenedAgainByTheNextOperation)
{
    const QTemporaryDir folder;
    const QString link = folder.filePath(QStringLiteral("port"));
    // The device is gone a moment before the link leads to the new one.
    std::counting_semaphore<> isBack(0);
    SimulatedLine line(DemoImage(0), {.link = link.toStdString(),
                                      .onDevice = [&](const std::string&) { isBack.release(); }});
    line.Spoil("hang-up:1:after=3", 60s);
    EXPECT_EQ(line.reader.ReadBankPage(), TransferResult::Failed);
    EXPECT_EQ(line.port.Fault(), PortFault::Gone);
    EXPECT_EQ(line.observer.read, (std::set{0x00C0, 0x00D0, 0x00E0}));
    isBack.acquire();
    EXPECT_EQ(line.reader.ReadBankPage(), TransferResult::Done);
    line.receiver.HangUp();  // while nothing runs
    isBack.acquire();
    EXPECT_EQ(line.reader.ReadBankPage(), TransferResult::Failed);
    EXPECT_EQ(line.reader.ReadBankPage(), TransferResult::Done);
    line.receiver.Stop();
    EXPECT_FALSE(QFileInfo(link).isSymLink());
    EXPECT_EQ(line.reader.ReadBankPage(), TransferResult::Failed);
    EXPECT_EQ(line.reader.ReadBankPage(), TransferResult::Failed);
    EXPECT_EQ(line.port.Fault(), PortFault::NotFound);
}

TEST(QtSerialPort, SaysWhyAPortCannotBeOpened)
{
    const QTemporaryDir folder;
    const QString pipe = folder.filePath(QStringLiteral("pipe"));
    ASSERT_EQ(mkfifo(QFile::encodeName(pipe).constData(), S_IRUSR | S_IWUSR), 0);
    PseudoTerminal terminal;
    ASSERT_TRUE(terminal.Open());
    const QString held = QString::fromStdString(terminal.Device());
    QtSerialPort holder(held);
    ASSERT_TRUE(holder.Open());
    const std::tuple<QString, PortFault, const char*> cases[] = {
        {QString(), PortFault::NotFound, "no device"},
        {folder.filePath(QStringLiteral("missing")), PortFault::NotFound, "missing: no such device. "},
        {folder.path(), PortFault::NotAPort, "not a serial port"},
        {pipe, PortFault::NotAPort, "Choose another port"},
        {held, PortFault::Busy, "Another program uses the port"},
    };
    for (const auto& [device, fault, reason] : cases) {
        QtSerialPort port(device);
        EXPECT_FALSE(port.Open());
        EXPECT_EQ(port.Fault(), fault) << reason;
        const std::string details = ComPortProblem(port).details.English();
        EXPECT_NE(details.find(reason), std::string::npos) << details;
    }
    holder.SetDevice(pipe);
    EXPECT_FALSE(holder.IsOpen());
}

TEST(QtSerialPort, SetsTheLineUp)
{
    PseudoTerminal terminal;
    ASSERT_TRUE(terminal.Open());
    termios line{};
    ASSERT_EQ(tcgetattr(terminal.Descriptor(), &line), 0);
    // All that a pseudo-terminal does not refuse: it has 8 bits without parity in any case.
    line.c_cflag |= CSTOPB | CRTSCTS;
    line.c_iflag |= IXON | IXOFF;
    cfsetspeed(&line, B19200);
    ASSERT_EQ(tcsetattr(terminal.Descriptor(), TCSANOW, &line), 0);
    QtSerialPort port(QString::fromStdString(terminal.Device()));
    ASSERT_TRUE(port.Open());
    ASSERT_EQ(tcgetattr(terminal.Descriptor(), &line), 0);
    EXPECT_EQ(cfgetispeed(&line), static_cast<speed_t>(B9600));
    EXPECT_EQ(cfgetospeed(&line), static_cast<speed_t>(B9600));
    EXPECT_EQ(line.c_cflag & (CSIZE | PARENB | CSTOPB | CRTSCTS), static_cast<tcflag_t>(CS8));
    EXPECT_EQ(line.c_iflag & (IXON | IXOFF), 0U);
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
