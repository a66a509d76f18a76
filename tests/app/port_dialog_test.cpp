#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

#include "link/com_ports.h"
#include "window_fixture.h"

namespace rqm5 {
namespace {

template <typename Control>
Control& In(QDialog& dialog, const QString& name)
{
    return *dialog.findChild<Control*>(name);
}

QRadioButton& Option(QDialog& dialog, int index)
{
    return In<QRadioButton>(dialog, QStringLiteral("opbCom_%1").arg(index));
}

TEST_F(WindowTest, PortDialogShowsEveryNumberAndSelectsTheCurrent)
{
    Start();
    dialogs_.act = [](QDialog& dialog) {
        EXPECT_EQ(dialog.objectName(), QStringLiteral("dlgCOM"));
        EXPECT_EQ(dialog.windowTitle(), QStringLiteral("COM Port Setup"));
        EXPECT_EQ(Option(dialog, 0).text(), QStringLiteral("COM  1"));
        EXPECT_EQ(Option(dialog, 8).text(), QStringLiteral("COM  9"));
        EXPECT_EQ(Option(dialog, 13).text(), QStringLiteral("COM 14"));
        EXPECT_TRUE(Option(dialog, 0).isChecked());
        for (int i = 0; i < 14; ++i)
            EXPECT_TRUE(In<QLabel>(dialog, QStringLiteral("lblDevice_%1").arg(i))
                            .text()
                            .startsWith(DeviceOfComPort(i + 1)));
        EXPECT_TRUE(In<QLabel>(dialog, QStringLiteral("lblDevice_13"))
                        .text()
                        .endsWith(QStringLiteral(", not present")));
    };
    Item("mnuToolsOptions").trigger();
    EXPECT_EQ(dialogs_.runs, 1);
}

TEST_F(WindowTest, PortDialogKeepsNumberAndDeviceOnOkOnly)
{
    Start();
    const QString before = DeviceOfComPort(3);
    for (const char* button : {"CancelButton", "OKButton"}) {
        dialogs_.act = [button](QDialog& dialog) {
            QTest::mouseClick(&Option(dialog, 2), Qt::LeftButton, {}, QPoint(8, 8));
            auto& path = In<QLineEdit>(dialog, QStringLiteral("txtDevice"));
            path.selectAll();
            QTest::keyClicks(&path, QStringLiteral("/dev/null"));
            EXPECT_EQ(In<QLabel>(dialog, QStringLiteral("lblDevice_2")).text(), QStringLiteral("/dev/null"));
            QTest::mouseClick(&In<QPushButton>(dialog, QLatin1String(button)), Qt::LeftButton);
        };
        Item("mnuToolsOptions").trigger();
        if (QLatin1String(button) == QLatin1String("CancelButton")) {
            EXPECT_EQ(window_->CommPort(), 1);
            EXPECT_EQ(DeviceOfComPort(3), before);
        }
    }
    EXPECT_EQ(window_->CommPort(), 3);
    EXPECT_EQ(port_.Device(), QStringLiteral("/dev/null"));
    EXPECT_EQ(DeviceOfComPort(3), QStringLiteral("/dev/null"));
    EXPECT_EQ(StatusText("lblPort"), QStringLiteral("COM 3: /dev/null"));
}

TEST_F(WindowTest, PortDialogLeavesDevicesOfTheEnvironmentAlone)
{
    qputenv("RQM5_COM2", "/dev/null");
    Start();
    dialogs_.act = [](QDialog& dialog) {
        EXPECT_TRUE(In<QLineEdit>(dialog, QStringLiteral("txtDevice")).isEnabled());
        Option(dialog, 1).click();
        EXPECT_FALSE(In<QLineEdit>(dialog, QStringLiteral("txtDevice")).isEnabled());
    };
    Item("mnuToolsOptions").trigger();
    qunsetenv("RQM5_COM2");
}

}  // namespace
}  // namespace rqm5
