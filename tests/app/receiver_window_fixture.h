#pragma once

#include <QProgressBar>
#include <functional>

#include "app/transfer_commands.h"
#include "app/window_fixture.h"
#include "image/problem.h"
#include "simulator/demo_image.h"
#include "simulator/sim_session.h"

namespace rqm5 {

/// A started program with a simulated receiver on its port.
class ReceiverWindowTest : public WindowTest
{
  public:
    ~ReceiverWindowTest() override { port_.Close(); }

  protected:
    ReceiverWindowTest()
    {
        options_.useDevice = [this](const QString&) { port_.SetDevice(receiver_.Device()); };
        Start();
    }

    /// How long the receiver may be silent.
    void SetTimeOut(std::chrono::milliseconds timeOut)
    {
        window_->findChild<RadioLink*>()->SetTimeOut(timeOut);
    }

    QProgressBar& Bar() { return Find<QProgressBar>("ProgressBar1"); }

    /// Does something once, when the row by row part of a transfer has come to a value.
    void At(int value, const std::function<void()>& act)
    {
        connection_ =
            QObject::connect(&Bar(), &QProgressBar::valueChanged, window_.get(), [=, this](int now) {
                if (now < value)
                    return;
                QObject::disconnect(connection_);
                act();
            });
    }

    /// Starts a transfer by a menu item or a button of the page in front.
    void Trigger(const char* control)
    {
        if (std::string_view(control).starts_with("mnu"))
            Item(control).trigger();
        else
            Click(control);
    }

    CloneImage demo_ = DemoImage(1);
    SimSession receiver_{{.memory = MemoryFromImage(demo_)}};
    QMetaObject::Connection connection_;
};

}  // namespace rqm5
