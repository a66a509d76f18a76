#include "app/ending.h"

#include <QApplication>
#include <QSessionManager>

namespace rqm5 {

ProgramEnd::ProgramEnd()
    : signals_(EndSignals::Ignored::AllStayIgnored, [this](int status) {
          status_ = status;
          if (window_ != nullptr)
              window_->KeepWork();
          QApplication::exit(status);
      })
{
    connect(qApp, &QGuiApplication::commitDataRequest, this, [this](QSessionManager&) {
        if (window_ != nullptr)
            window_->EndSession();
    });
}

int ProgramEnd::Exec(frmMain& window)
{
    window_ = &window;
    const int status = status_ != 0 ? status_ : QApplication::exec();
    // A transfer may have stored something after the first call.
    if (status_ != 0)
        window.KeepWork();
    window_ = nullptr;
    return status;
}

}  // namespace rqm5
