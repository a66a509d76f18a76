#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

#include "link/com_ports.h"
#include "platform/pseudo_terminal.h"
#include "simulator/demo_image.h"
#include "simulator/sim_session.h"
#include "window_fixture.h"

namespace rqm5 {
namespace {

template <typename Control>
Control& In(QDialog& dialog, const char* name)
{
    return *dialog.findChild<Control*>(QLatin1String(name));
}

QRadioButton& Option(QDialog& dialog, int index)
{
    return In<QRadioButton>(dialog, qPrintable(QStringLiteral("opbCom_%1").arg(index)));
}

TEST_F(WindowTest, PortDialogKeepsNumberAndDeviceOnOkOnly)
{
    qputenv("RQM5_COM2", "/dev/null");
    Start();
    const QString before = DeviceOfComPort(3);
    for (const char* button : {"CancelButton", "OKButton"}) {
        EXPECT_EQ(window_->CommPort(), 1);
        EXPECT_EQ(DeviceOfComPort(3), before);
        dialogs_.act = [button](QDialog& dialog) {
            EXPECT_EQ(dialog.windowTitle(), QStringLiteral("COM Port Setup"));
            EXPECT_EQ(Option(dialog, 8).text(), QStringLiteral("COM  9"));
            EXPECT_TRUE(Option(dialog, 0).isChecked());
            auto& path = In<QLineEdit>(dialog, "txtDevice");
            Option(dialog, 1).click();
            const auto& found = In<QComboBox>(dialog, "cbbDevice");
            EXPECT_FALSE(path.isEnabled() || found.isEnabled()) << "the environment decides";
            Option(dialog, 2).click();
            EXPECT_TRUE(path.isEnabled());
            EXPECT_EQ(found.isEnabled(), found.count() > 0);
            path.selectAll();
            QTest::keyClicks(&path, QStringLiteral(" /dev/null "));
            EXPECT_EQ(In<QLabel>(dialog, "lblDevice_2").text(), QStringLiteral("/dev/null"));
            QTest::mouseClick(&In<QPushButton>(dialog, button), Qt::LeftButton);
        };
        Item("mnuToolsOptions").trigger();
    }
    qunsetenv("RQM5_COM2");
    EXPECT_EQ(window_->CommPort(), 3);
    EXPECT_EQ(port_.Device(), QStringLiteral("/dev/null"));
    EXPECT_EQ(DeviceOfComPort(3), QStringLiteral("/dev/null"));
    EXPECT_EQ(StatusText("lblPort"), QStringLiteral("COM 3: /dev/null"));
}

TEST_F(WindowTest, PortDialogFindsTheReceiverAndSeesAdaptersComeAndGo)
{
    SimSession receiver({.memory = MemoryFromImage(DemoImage(1))});
    PseudoTerminal silent;
    ASSERT_TRUE(silent.Open()) << silent.Error();
    qputenv("RQM5_COM2", silent.Device().c_str());
    qputenv("RQM5_COM7", Path("adapter").toLocal8Bit());
    Start();
    const QString device = Path("adapter");
    const auto find = [](QDialog& dialog) {
        In<QPushButton>(dialog, "cmbFindReceiver").click();
        return In<QLabel>(dialog, "lblFound").text();
    };
    dialogs_.act = [&](QDialog& dialog) {
        EXPECT_TRUE(receiver.CommandLog().empty());
        EXPECT_TRUE(find(dialog).startsWith(QStringLiteral("No receiver answers. ")))
            << qPrintable(In<QLabel>(dialog, "lblFound").text());
        EXPECT_EQ(In<QLabel>(dialog, "lblDevice_6").text(), device + QStringLiteral(", not present"));
        ASSERT_TRUE(QFile::link(receiver.Device(), device));
        EXPECT_TRUE(QTest::qWaitFor([&] { return In<QLabel>(dialog, "lblDevice_6").text() == device; }));
        EXPECT_EQ(find(dialog),
                  QStringLiteral("A receiver (RQ-M5 E) answers at %1. OK takes it as COM 7.").arg(device));
        EXPECT_EQ(receiver.CommandLog(), std::vector<std::string>{"QT~F0040R"});
        EXPECT_TRUE(Option(dialog, 6).isChecked());
        In<QPushButton>(dialog, "OKButton").click();
    };
    Item("mnuToolsOptions").trigger();
    qunsetenv("RQM5_COM2");
    EXPECT_EQ(StatusText("lblPort"), QStringLiteral("COM 7: ") + device);
    ReceiverKnowledge& knowledge = window_->findChild<RadioLink*>()->Knowledge();
    knowledge.TakeRead(0x0040, MemoryBlock(std::string(kBlockChars, '0')));
    QFile::remove(device);
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return StatusText("lblPort") == QStringLiteral("COM 7: %1, not present").arg(device); }));
    EXPECT_EQ(knowledge.Find(0x0040), nullptr) << "another receiver may come back";
    qunsetenv("RQM5_COM7");
}

}  // namespace
}  // namespace rqm5
