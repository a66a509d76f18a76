#include "memory/bank_move_offer.h"

#include <QPushButton>
#include <QVBoxLayout>

#include "language/language.h"
#include "ui/elided_label.h"
#include "ui/form_texts.h"

namespace rqm5 {

BankMoveOffer::BankMoveOffer(Document& document, QWidget* parent)
    : QWidget(parent), document_(document), lblBankMove_(new ElidedLabel(Qt::ElideRight, this))
{
    setObjectName(QStringLiteral("frmBankMove"));
    lblBankMove_->setObjectName(QStringLiteral("lblBankMove"));
    auto* leave = new QPushButton(Designed(QT_TR_NOOP("&Leave the rows where they are")), this);
    leave->setObjectName(QStringLiteral("cmbBankLeave"));
    leave->setStatusTip(
        Designed(QT_TR_NOOP("Nothing moves; the channels named here belong to other banks now")));
    auto* move =
        new QPushButton(Designed(QT_TR_NOOP("&Move the channels so that every bank keeps its own")), this);
    move->setObjectName(QStringLiteral("cmbBankMove"));
    move->setStatusTip(Designed(QT_TR_NOOP(
        "What a smaller bank has no room for goes behind all banks; a larger one gets empty rows")));
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
    connect(&Language::OfProgram(), &Language::Changed, this, [this] {
        if (!isHidden())
            ShowDisplaced();
    });
}

void BankMoveOffer::SetSize(int bank, int size)
{
    const BankSizes before = before_.value_or(SizesOfBanks(document_.Image()));
    document_.Edit({MESSAGE("Bank %1 size: %2"), {bank, size}},
                   [=](CloneImage& image) { image.SetBankSize(bank, size); });
    before_ = before;
    if (!CanKeepBanks(document_.Image(), before))
        return;
    ShowDisplaced();
    show();
}

void BankMoveOffer::ShowDisplaced()
{
    const Displaced displaced = DisplacedChannels(document_.Image(), *before_);
    lblBankMove_->setText(
        tr("Channels that change their bank with these sizes: %1. Others that change their number: %2.")
            .arg(displaced.bank)
            .arg(displaced.number));
}

void BankMoveOffer::cmbBankMove_Click()
{
    document_.Edit(MESSAGE("Move channels with their banks"),
                   [before = *before_](CloneImage& image) { KeepBanks(image, before); });
}

void BankMoveOffer::Withdraw()
{
    before_.reset();
    lblBankMove_->clear();
    hide();
}

}  // namespace rqm5
