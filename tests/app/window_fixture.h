#pragma once

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QSettings>
#include <QTabBar>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>
#include <memory>

#include "app/menus.h"
#include "app/pages.h"
#include "app/start_up.h"
#include "app/status_bar.h"
#include "app/tool_bar.h"
#include "link/com_ports.h"
#include "link/qt_serial_port.h"
#include "ui/scripted_dialogs.h"

namespace rqm5 {

/// A started program: its real windows, with scripted answers, a folder of its own and no splash time.
class WindowTest : public testing::Test
{
  protected:
    WindowTest()
    {
        options_.portFile = Path("RQ-M5.ini");
        options_.splashTime = std::chrono::milliseconds(0);
        options_.useDevice = [this](const QString& device) { port_.SetDevice(device); };
        QSettings(QStringLiteral("Tervan"), QStringLiteral("Tervan RQ-M5 Clone Utility")).clear();
    }

    void Start()
    {
        window_ = StartUp(port_, dialogs_, options_);
        window_->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window_.get()));
    }

    QString Path(const char* name) const { return folder_.filePath(QLatin1String(name)); }

    template <typename Control>
    Control& Find(const char* name)
    {
        auto* control = window_->findChild<Control*>(QLatin1String(name));
        if (control == nullptr)
            qFatal("no control %s", name);
        return *control;
    }

    QAction& Item(const char* name) { return Find<QAction>(name); }
    QTabWidget& Tabs() { return Find<QTabWidget>("TabStrip1"); }
    QString StatusText(const char* label) { return Find<QLabel>(label).text(); }

    /// Clicks a button of the page in front where one of any width reacts: at its left end.
    void Click(const char* name)
    {
        auto& button = Find<QAbstractButton>(name);
        QTest::mouseClick(&button, Qt::LeftButton, {}, {8, button.height() / 2});
    }

    void GoTo(Tab tab)
    {
        QTabBar* bar = Tabs().tabBar();
        QTest::mouseClick(bar, Qt::LeftButton, {}, bar->tabRect(static_cast<int>(tab)).center());
    }

    /// Types a size into a bank box and stays in it.
    void TypeBankSize(int bank, const char* size)
    {
        GoTo(Tab::Bank);
        auto& box = Find<QLineEdit>(qPrintable(QStringLiteral("txtBank_%1").arg(bank)));
        box.setFocus();
        box.selectAll();
        QTest::keyClicks(&box, QLatin1String(size));
    }

    /// Presses a key where the focus is.
    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        QWidget* focused = window_->focusWidget();
        QTest::keyClick(focused != nullptr ? focused : window_.get(), key, modifiers);
    }

    /// Makes an edit that needs no dialog: the scan mode.
    void EditSomething()
    {
        GoTo(Tab::Settings1);
        Click("opbScanMode_1");
        ASSERT_EQ(StatusText("lblFileState"), QStringLiteral("Changed"));
    }

    QTemporaryDir folder_;
    ScriptedDialogs dialogs_;
    QtSerialPort port_{QString()};
    StartOptions options_;
    std::unique_ptr<frmMain> window_;
};

}  // namespace rqm5
