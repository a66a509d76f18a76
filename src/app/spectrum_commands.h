#pragma once

#include <QMainWindow>

#include "app/menus.h"
#include "app/pages.h"
#include "app/transfer_commands.h"
#include "document/document.h"
#include "ui/dialogs.h"

namespace rqm5 {

class SpectrumDock;

/// View > Spectrum, and what the spectrum and the memory table tell each other.
class SpectrumCommands : public QObject
{
    Q_OBJECT

  public:
    SpectrumCommands(const Document& document, Dialogs& dialogs, Pages& pages,
                     const TransferCommands& transfers, QAction& mnuViewSpectrum, QMainWindow& window);

  private:
    void GoTo(int row);
    void ShowSelection();

    Pages& pages_;
    const TransferCommands& transfers_;
    SpectrumDock* dock_;
};

}  // namespace rqm5
