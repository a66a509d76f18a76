#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QSignalSpy>
#include <QTest>

#include "document/document.h"
#include "image/channel_block.h"
#include "memory/start_image.h"
#include "ui/scripted_dialogs.h"

namespace rqm5 {

/// A page or dialog on its own, over a document as the program starts with it.
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

    /// Enabled channels of 100 to 999 MHz, each 1 MHz above the one before.
    void PutChannels(RowRange rows, int megahertz)
    {
        document_.Absorb([=](CloneImage& image) {
            for (int i = 0; i < rows.count; ++i) {
                const std::string block = "0" + std::to_string(megahertz + i) + std::string(28, '0');
                DecodeMemoryBlock(image, MemoryBlock(block), rows.first + i);
                image.MemData(rows.first + i).enabled = true;
            }
        });
    }

    void SetModel(int model)
    {
        document_.Absorb([model](CloneImage& image) { image.Settings().model = model; });
    }

    int Steps() { return document_.History().count(); }

    Document document_{StartUpImage(0)};
    const CloneImage& image_ = document_.Image();
    ScriptedDialogs dialogs_;
};

}  // namespace rqm5
