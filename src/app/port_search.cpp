#include <QVBoxLayout>

#include "app/port_dialog.h"
#include "language/translated.h"
#include "link/link_problems.h"
#include "link/receiver_identity.h"

namespace rqm5 {

QLayout* dlgCOM::MakeSearchRow()
{
    cmbFindReceiver_ = new QPushButton(tr("Find the &Receiver"), this);
    cmbFindReceiver_->setObjectName(QStringLiteral("cmbFindReceiver"));
    cmbFindReceiver_->setAutoDefault(false);
    cmbFindReceiver_->setToolTip(tr("Send one read command to each port that is there and free"));
    lblFound_ = new QLabel(this);
    lblFound_->setObjectName(QStringLiteral("lblFound"));
    lblFound_->setTextFormat(Qt::PlainText);
    lblFound_->setWordWrap(true);
    connect(cmbFindReceiver_, &QPushButton::clicked, this, &dlgCOM::cmbFindReceiver_Click);
    connect(&search_, &ReceiverSearch::Asking, this,
            [this](const QString& device) { lblFound_->setText(tr("Asking %1...").arg(device)); });
    // Room for an answer from the start, so that the list does not jump.
    lblFound_->setMinimumHeight(2 * lblFound_->fontMetrics().lineSpacing());
    lblFound_->setAlignment(Qt::AlignTop);
    auto* column = new QVBoxLayout;
    column->addWidget(cmbFindReceiver_, 0, Qt::AlignLeft);
    column->addWidget(lblFound_);
    return column;
}

void dlgCOM::cmbFindReceiver_Click()
{
    if (search_.IsRunning())
        return search_.Stop();
    emit Searching();
    const QString caption = cmbFindReceiver_->text();
    cmbFindReceiver_->setText(tr("&Stop"));
    OKButton_->setEnabled(false);
    ShowOutcome(search_.Run(PresentDevices()));
    OKButton_->setEnabled(true);
    cmbFindReceiver_->setText(caption);
}

void dlgCOM::ShowOutcome(const ReceiverSearch::Outcome& outcome)
{
    if (!outcome.device.isEmpty()) {
        ChooseFound(outcome.device);
        const QString model = outcome.model ? NameOfModel(*outcome.model) : tr("unknown model");
        lblFound_->setText(tr("A receiver (%1) answers at %2. OK takes it as COM %3.")
                               .arg(model, outcome.device)
                               .arg(SelectedNumber()));
        return;
    }
    QStringList texts;
    if (outcome.asked > 0)
        texts << tr("No receiver answers. Ports asked: %1. Switch the receiver on, check its cable, and try "
                    "again.")
                     .arg(outcome.asked);
    if (!outcome.busy.isEmpty())
        texts << tr("In use by another program: %1.").arg(outcome.busy.join(QStringLiteral(", ")));
    if (!outcome.denied.isEmpty())
        texts << Translated(PortRemedy(outcome.denied.constFirst(), PortFault::NoPermission));
    if (texts.isEmpty())
        texts << tr("There is no port to ask. Plug the receiver's cable in.");
    lblFound_->setText(texts.join(QLatin1Char(' ')));
}

/// Selects the number that stands for a device; without any the selected one stands for it from now on.
void dlgCOM::ChooseFound(const QString& device)
{
    for (int i = 0; i < kComPorts; ++i)
        if (ports_.at(i).device == device) {
            opbCom_.button(i)->setChecked(true);
            return;
        }
    for (int i = 0; !txtDevice_->isEnabled() && i < kComPorts; ++i)
        opbCom_.button(i)->setChecked(true);
    txtDevice_->setText(device);
    txtDevice_Change();
}

void dlgCOM::done(int result)
{
    search_.Stop();
    QDialog::done(result);
}

}  // namespace rqm5
