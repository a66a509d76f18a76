#include "app/start_up.h"

#include "app/splash.h"

namespace rqm5 {

std::unique_ptr<frmMain> StartUp(SerialPort& port, Dialogs& dialogs, const StartOptions& options)
{
    auto splash = std::make_unique<frmSplash>();
    splash->ShowAtOnce();
    auto window = std::make_unique<frmMain>(port, dialogs, options);
    // A question that comes before the window must not hide behind the splash.
    QObject::connect(window.get(), &frmMain::Asking, splash.get(), &QWidget::hide);
    window->Form_Load();
    splash.reset();
    window->LoadEditor();
    window->show();
    return window;
}

}  // namespace rqm5
