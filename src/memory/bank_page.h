#pragma once

#include <QList>
#include <QWidget>

#include "document/document.h"
#include "ui/dialogs.h"

namespace rqm5 {
class BankMoveOffer;
class BankStrip;
class FillBar;
}  // namespace rqm5

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
    BankPage(Document& document, Dialogs& dialogs, QWidget* parent);

    /// Checks the box that is being typed into as if the user had left it.
    /// \return false when what was typed was refused with a message: what made the user leave the box shall
    /// not go on then, and the box, which holds its last accepted size again, has the focus
    bool CommitPending();

    /// Gives the box of a bank's size the focus.
    void GoToBank(int bank);

    /// The same with the box of its link.
    void GoToLink(int bank);

    bool eventFilter(QObject* watched, QEvent* event) override;

  signals:
    void ReadRequested();
    void WriteRequested();

  private:
    void BuildBank(QGridLayout& grid, int bank);
    QLayout* BuildBottomRow();

    /// Shows the sizes and their total.
    void ShowBanks();
    void ShowTexts();
    void ShowFills();
    void ShowLinks();

    /// \return false when the size was refused with a message
    bool txtBank_LostFocus(int bank);
    void txtBank_GotFocus(int bank, Qt::FocusReason reason);
    bool txtBank_KeyDown(int bank, int key);
    void chkLink_Click(int bank, bool isLinked);
    void ShowSize(int bank);
    void ShowTotalTooLarge();

    Document& document_;
    Dialogs& dialogs_;
    QList<QLabel*> lblBank_ = QList<QLabel*>(kBanks);
    QList<QLineEdit*> txtBank_ = QList<QLineEdit*>(kBanks);
    QList<QCheckBox*> chkLink_ = QList<QCheckBox*>(kLinkFlags);
    QList<FillBar*> barFill_ = QList<FillBar*>(kBanks);
    BankStrip* picBanks_;
    BankMoveOffer* offer_;
    QLabel* lblChannels_;
    QLabel* lblNoBank_;
};

}  // namespace rqm5
