#include "memory/bank_move_offer.h"

#include <QPushButton>
#include <QVBoxLayout>

#include "ui/elided_label.h"

namespace rqm5 {

BankMoveOffer::BankMoveOffer(Document& document, QWidget* parent)
    : QWidget(parent), document_(document), lblBankMove_(new ElidedLabel(Qt::ElideRight, this))
{
    setObjectName(QStringLiteral("frmBankMove"));
    lblBankMove_->setObjectName(QStringLiteral("lblBankMove"));
    auto* leave = new QPushButton(tr("&Leave the rows where they are"), this);
    leave->setObjectName(QStringLiteral("cmbBankLeave"));
    leave->setStatusTip(tr("Nothing moves; the channels named here belong to other banks now"));
    auto* move = new QPushButton(tr("&Move the channels so that every bank keeps its own"), this);
    move->setObjectName(QStringLiteral("cmbBankMove"));
    move->setStatusTip(
        tr("What a smaller bank has no room for goes behind all banks; a larger one gets empty rows"));
    connect(leave, &QPushButton::clicked, this, &BankMoveOffer::Withdraw);
    connect(move, &QPushButton::clicked, this, &BankMoveOffer::cmbBankMove_Click);

    auto* buttons = new QHBoxLayout;
    buttons->addWidget(leave);
    buttons->addWidget(move);
    buttons->addStretch();
    auto* lines = new QVBoxLayout(this);
    lines->setContentsMargins(0, 0, 0, 0);
    lines->addWidget(lblBankMove_);
    lines->addLayout(buttons);
    hide();

    // Whatever else changes the rows or sizes ends the plan.
    connect(&document, &Document::Replaced, this, &BankMoveOffer::Withdraw);
    connect(&document, &Document::Changed, this, [this](const ImageChange& change) {
        if (change.HasMemoryRows() || !change.BankSize.empty())
            Withdraw();
    });
}

void BankMoveOffer::SetSize(int bank, int size)
{
    const BankSizes before = before_.value_or(SizesOfBanks(document_.Image()));
    document_.Edit(tr("Bank %1 size: %2").arg(bank).arg(size),
                   [=](CloneImage& image) { image.SetBankSize(bank, size); });
    before_ = before;
    if (!CanKeepBanks(document_.Image(), before))
        return;
    const Displaced displaced = DisplacedChannels(document_.Image(), before);
    lblBankMove_->setText(
        tr("Channels that change their bank with these sizes: %1. Others that change their number: %2.")
            .arg(displaced.bank)
            .arg(displaced.number));
    show();
}

void BankMoveOffer::cmbBankMove_Click()
{
    document_.Edit(tr("Move channels with their banks"),
                   [before = *before_](CloneImage& image) { KeepBanks(image, before); });
}

void BankMoveOffer::Withdraw()
{
    before_.reset();
    lblBankMove_->clear();
    hide();
}

}  // namespace rqm5
