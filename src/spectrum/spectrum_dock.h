#pragma once

#include <QDockWidget>
#include <QScrollBar>

#include "document/document.h"
#include "ui/dialogs.h"

namespace rqm5 {

class ElidedLabel;
class SpectrumView;

/// `dckSpectrum`, View > Spectrum: every channel by its frequency.
class SpectrumDock : public QDockWidget
{
    Q_OBJECT

  public:
    SpectrumDock(const Document& document, Dialogs& dialogs, QWidget* parent);

    SpectrumView& View() { return *view_; }

  signals:
    void RowChosen(int row);

  protected:
    void showEvent(QShowEvent* event) override;

  private:
    QLayout* MakeButtonRow();
    void ShowScroll();
    void ShowImage();
    void cmbSpectrumSave_Click();

    const Document& document_;
    Dialogs& dialogs_;
    SpectrumView* view_;
    QScrollBar* scroll_;
    ElidedLabel* lblSpectrumChannel_;
    bool isStale_ = true;  ///< the image has changed while nobody was looking
};

}  // namespace rqm5
