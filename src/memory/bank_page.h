#pragma once

#include <QWidget>
#include <array>

#include "image/clone_image.h"
#include "ui/dialogs.h"

class QCheckBox;
class QGridLayout;
class QLabel;
class QLineEdit;

namespace rqm5 {

/// The page "Bank": the sizes of the fifty banks, their link flags, and how many channels they hold.
class BankPage : public QWidget
{
    Q_OBJECT

  public:
    BankPage(CloneImage& image, Dialogs& dialogs, QWidget* parent);

    /// Shows the sizes and their total.
    void ShowBanks();
    void ShowLinks();
    void ShowChannelCount(int channels);

    /// Checks the box that is being typed into as if the user had left it.
    /// \return false when what was typed was refused; the box then holds its last accepted size
    bool CommitPending();

    /// Disables the page while a transfer runs.
    void SetTransferRunning(bool running);

    bool eventFilter(QObject* watched, QEvent* event) override;

  signals:
    void Edited();
    void BanksChanged();  ///< a bank size changed, so rows belong to other banks now
    void ReadRequested();
    void WriteRequested();

  private:
    void BuildBank(QGridLayout& grid, int bank);
    QLayout* BuildBottomRow();

    bool txtBank_LostFocus(int bank);
    void txtBank_GotFocus(int bank, Qt::FocusReason reason);
    bool txtBank_KeyDown(int bank, int key);
    void chkLink_Click(int bank, bool isLinked);
    void ShowSize(int bank);
    void ShowTotalTooLarge();

    CloneImage& image_;
    Dialogs& dialogs_;
    std::array<QLineEdit*, kBanks> txtBank_{};
    std::array<QCheckBox*, kLinkFlags> chkLink_{};
    QLabel* lblChannels_;
};

}  // namespace rqm5
