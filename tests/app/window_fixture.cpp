#include "window_fixture.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace rqm5 {

void WindowTest::Start()
{
    window_ = StartUp(port_, dialogs_, options_);
    window_->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window_.get()));
}

QString WindowTest::StatusText(const char* label)
{
    return Find<QLabel>(label).text();
}

void WindowTest::GoTo(Tab tab)
{
    QTabBar* bar = Tabs().tabBar();
    QTest::mouseClick(bar, Qt::LeftButton, {}, bar->tabRect(static_cast<int>(tab)).center());
}

void WindowTest::Click(const char* name)
{
    QTest::mouseClick(&Find<QAbstractButton>(name), Qt::LeftButton);
}

void WindowTest::TypeBankSize(int bank, const char* size)
{
    GoTo(Tab::Bank);
    auto& box = Find<QLineEdit>(qPrintable(QStringLiteral("txtBank_%1").arg(bank)));
    box.setFocus();
    box.selectAll();
    QTest::keyClicks(&box, QLatin1String(size));
}

void WindowTest::EditSomething()
{
    GoTo(Tab::Settings1);
    QTest::mouseClick(&Find<QAbstractButton>("opbScanMode_1"), Qt::LeftButton);
    ASSERT_EQ(StatusText("lblFileState"), QStringLiteral("Changed"));
}

}  // namespace rqm5
