#pragma once

#include <gtest/gtest.h>

#include <QAction>
#include <QSettings>
#include <QTabBar>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>
#include <functional>
#include <memory>

#include "app/start_up.h"
#include "link/com_ports.h"
#include "link/qt_serial_port.h"
#include "ui/scripted_dialogs.h"

namespace rqm5 {

/// Scripted answers, and a look at the program while a message is shown.
class WatchedDialogs : public ScriptedDialogs
{
  public:
    std::function<void()> onAsk;

    QMessageBox::StandardButton Ask(QWidget* parent, const Prompt& prompt) override
    {
        if (onAsk)
            onAsk();
        return ScriptedDialogs::Ask(parent, prompt);
    }
};

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

    void Start();

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
    QString StatusText(const char* label);

    /// Clicks a control, bringing the page it is on to the front first.
    void Click(const char* name);
    void GoTo(Tab tab);

    /// Types a size into a bank box and stays in it.
    void TypeBankSize(int bank, const char* size);

    /// Makes an edit that needs no dialog: the scan mode.
    void EditSomething();

    QTemporaryDir folder_;
    WatchedDialogs dialogs_;
    QtSerialPort port_{QString()};
    StartOptions options_;
    std::unique_ptr<frmMain> window_;
};

}  // namespace rqm5
