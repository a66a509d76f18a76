#pragma once

#include <QDockWidget>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTableView>

#include "app/diagnostics/exchange_log.h"
#include "app/transfer_commands.h"
#include "image/clone_image.h"
#include "language/message.h"
#include "ui/dialogs.h"

namespace rqm5 {

/// Raw reads, a link test and the log of the line. It uses the line as a transfer does: nothing else
/// starts meanwhile, and it starts nothing while a transfer runs.
class DiagnosticsPanel : public QDockWidget
{
    Q_OBJECT

  public:
    DiagnosticsPanel(const CloneImage& image, RadioLink& link, TransferCommands& transfers, Dialogs& dialogs,
                     QWidget* parent);

  private:
    QWidget* MakeCommands();
    QWidget* MakeLog();
    void Connect();
    void ShowTexts();
    void Tell(Message& text, Message now);
    void SetLineBusy(bool isBusy);

    void cmbRawRead_Click();
    void cmbLinkTest_Click();
    void cmbSaveLog_Click();
    bool GoesOnAfter(int reads);

    const CloneImage& image_;
    RadioLink& link_;
    TransferCommands& transfers_;
    Dialogs& dialogs_;
    ExchangeLog* log_;

    // What the controls say that tell of the line; empty for nothing.
    Message fault_;
    Message reply_;
    Message linkTest_;

    QLineEdit* txtRawAddress_;
    QPushButton* cmbRawRead_;
    QLabel* lblRawFault_;
    QPlainTextEdit* txtRawReply_;
    QPushButton* cmbLinkTest_;
    QLabel* lblLinkTest_;
    QTableView* tblExchanges_;
    QPushButton* cmbSaveLog_;
    QPushButton* cmbClearLog_;
    bool isLogAtEnd_ = true;
};

}  // namespace rqm5
