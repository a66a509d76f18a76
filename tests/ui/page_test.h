#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QSignalSpy>
#include <QTest>

#include "image/channel_record.h"
#include "memory/start_image.h"
#include "ui/scripted_dialogs.h"

namespace rqm5 {

/// A page or dialog on its own, over an image as the program starts with it.
class PageTest : public testing::Test
{
  protected:
    template <class Control>
    static Control& Find(QWidget& window, const QString& name)
    {
        auto* control = window.findChild<Control*>(name);
        if (control == nullptr)
            qFatal("no control %s", qPrintable(name));
        return *control;
    }

    static void Show(QWidget& window)
    {
        window.show();
        window.activateWindow();
        // A dialog counts as active while its parent is, but keys go to the parent until it is really so.
        ASSERT_TRUE(QTest::qWaitFor([&window] { return QApplication::activeWindow() == &window; }));
    }

    /// Clicks a control where a button of any width reacts: at its left end.
    static void Click(QWidget& window, const char* name)
    {
        auto& control = Find<QWidget>(window, QLatin1String(name));
        QTest::mouseClick(&control, Qt::LeftButton, {}, {8, control.height() / 2});
    }

    /// An enabled channel of 100 to 999 MHz.
    void PutChannel(int row, int megahertz)
    {
        const std::string block = "0" + std::to_string(megahertz) + std::string(28, '0');
        DecodeMemoryBlock(image_, MemoryBlock(block), row);
        image_.MemEnable[static_cast<std::size_t>(row)] = true;
    }

    CloneImage image_ = StartUpImage(0);
    ScriptedDialogs dialogs_;
};

}  // namespace rqm5
