#include "memory/bank_page.h"

#include <QCheckBox>
#include <QFocusEvent>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QTimer>

#include "language/language.h"
#include "language/translated.h"
#include "memory/bank_layout.h"
#include "memory/bank_move_offer.h"
#include "memory/bank_strip.h"
#include "memory/fill_bar.h"
#include "ui/elided_label.h"
#include "ui/form_texts.h"
#include "ui/key_filter.h"
#include "ui/leave_watch.h"
#include "ui/tall_area.h"
#include "ui/transfer_buttons.h"

namespace rqm5 {
namespace {

constexpr int kBanksPerColumn = 10;
constexpr int kGap = 12;
constexpr int kDigits = 9;  ///< more than any size, few enough to stay a number

}  // namespace

BankPage::BankPage(Document& document, Dialogs& dialogs, QWidget* parent)
    : QWidget(parent),
      document_(document),
      dialogs_(dialogs),
      picBanks_(new BankStrip(document.Image(), this)),
      offer_(new BankMoveOffer(document, this)),
      lblChannels_(new QLabel(this)),
      lblNoBank_(new ElidedLabel(Qt::ElideRight, this))
{
    auto* boxes = new QWidget;
    auto* grid = new QGridLayout(boxes);
    grid->setContentsMargins(0, 0, 0, 0);
    for (int bank = 0; bank < kBanks; ++bank)
        BuildBank(*grid, bank);
    // The receiver keeps six more link flags than there are banks. They have boxes that nobody sees.
    for (int flag = 0; flag < kLinkFlags; ++flag) {
        if (flag >= kBanks) {
            chkLink_[flag] = new QCheckBox(this);
            chkLink_[flag]->hide();
        }
        chkLink_[flag]->setObjectName(QStringLiteral("chkLink_%1").arg(flag));
    }
    auto* page = new QVBoxLayout(this);
    grid->setRowStretch(kBanksPerColumn + 1, 1);
    auto* area = new TallArea(boxes, this);
    area->ScrollSidewaysToo();
    page->addWidget(picBanks_);
    connect(picBanks_, &BankStrip::BankClicked, this, &BankPage::GoToBank);
    page->addWidget(area, 1);
    page->addWidget(offer_);
    page->addLayout(BuildBottomRow());
    connect(&document, &Document::Replaced, this, [this] {
        ShowBanks();
        ShowLinks();
        ShowFills();
    });
    connect(&document, &Document::Changed, this, [this](const ImageChange& change) {
        if (!change.BankSize.empty())
            ShowBanks();
        if (!change.BankLink.empty())
            ShowLinks();
        if (change.HasMemoryRows() || !change.BankSize.empty())
            ShowFills();
    });
    connect(&Language::OfProgram(), &Language::Changed, this, [this] {
        ShowTexts();
        ShowFills();
    });
    ShowTexts();
    ShowBanks();
    ShowLinks();
    ShowFills();
}

void BankPage::BuildBank(QGridLayout& grid, int bank)
{
    constexpr int kCells = 5;  // label, size, how full it is, link and a gap
    auto* box = new QLineEdit;
    box->setObjectName(QStringLiteral("txtBank_%1").arg(bank));
    box->setMaxLength(kDigits);
    box->setAlignment(Qt::AlignRight);
    box->setMinimumWidth(box->fontMetrics().horizontalAdvance(QStringLiteral("00000")));
    auto* label = new QLabel;
    label->setBuddy(box);
    auto* link = new QCheckBox;
    lblBank_[bank] = label;
    txtBank_[bank] = box;
    chkLink_[bank] = link;
    barFill_[bank] = new FillBar;
    barFill_[bank]->setObjectName(QStringLiteral("barFill_%1").arg(bank));

    new KeyFilter(*box, KeySet::Digits);
    box->installEventFilter(this);
    connect(new LeaveWatch(*box), &LeaveWatch::Left, this, [this, bank] { txtBank_LostFocus(bank); });
    connect(link, &QCheckBox::clicked, this, [this, bank](bool on) { chkLink_Click(bank, on); });

    const int row = bank % kBanksPerColumn + 1;  // the heads of the columns stand above
    const int column = bank / kBanksPerColumn * kCells;
    if (row == 1)
        grid.addWidget(new QLabel(Designed(QT_TR_NOOP("Link"))), 0, column + 3);
    grid.addWidget(label, row, column);
    grid.addWidget(box, row, column + 1);
    grid.addWidget(barFill_[bank], row, column + 2);
    grid.addWidget(link, row, column + 3);
    grid.setColumnStretch(column + 1, 1);
    grid.setColumnMinimumWidth(column + 4, 6);
}

void BankPage::ShowTexts()
{
    for (int bank = 0; bank < kBanks; ++bank) {
        const QString name = Translated(SelectorText(bank));
        lblBank_[bank]->setText(name);
        txtBank_[bank]->setAccessibleName(name);
        txtBank_[bank]->setStatusTip(
            tr("Number of channels in bank %1; all banks together hold 1000 at most").arg(bank));
        chkLink_[bank]->setAccessibleName(tr("Link bank %1").arg(bank));
        chkLink_[bank]->setStatusTip(tr("Scan bank %1 together with the other linked banks").arg(bank));
    }
}

QLayout* BankPage::BuildBottomRow()
{
    lblChannels_->setObjectName(QStringLiteral("lblChannels"));
    lblChannels_->setTextFormat(Qt::PlainText);
    lblNoBank_->setObjectName(QStringLiteral("lblNoBank"));
    const TransferButtons buttons("cmbReadBank", Designed(QT_TR_NOOP("Read Ban&k")), "cmbWriteBank",
                                  Designed(QT_TR_NOOP("Write &Bank")));
    buttons.read->setStatusTip(Designed(QT_TR_NOOP("Read bank sizes and links from the receiver")));
    buttons.write->setStatusTip(Designed(QT_TR_NOOP("Write bank sizes and links to the receiver")));
    connect(buttons.read, &QPushButton::clicked, this, &BankPage::ReadRequested);
    connect(buttons.write, &QPushButton::clicked, this, &BankPage::WriteRequested);
    buttons.row->insertWidget(0, new QLabel(Designed(QT_TR_NOOP("Channels in all banks (1000 at most):"))));
    buttons.row->insertWidget(1, lblChannels_);
    buttons.row->insertSpacing(2, kGap);
    buttons.row->insertWidget(3, lblNoBank_);
    return buttons.row;
}

void BankPage::ShowBanks()
{
    for (int bank = 0; bank < kBanks; ++bank)
        ShowSize(bank);
    lblChannels_->setText(QString::number(TotalBankSize(document_.Image())));
}

void BankPage::ShowFills()
{
    const CloneImage& image = document_.Image();
    picBanks_->ShowImage();
    for (int bank = 0; bank < kBanks; ++bank)
        barFill_[bank]->Show(FillOf(image, GroupRows(image, bank)));
    const Fill outside = FillOf(image, RowsInNoBank(image));
    lblNoBank_->setText(tr("In no bank: %1 rows, %2 with a channel").arg(outside.rows).arg(outside.used));
}

void BankPage::ShowLinks()
{
    for (int flag = 0; flag < kLinkFlags; ++flag)
        chkLink_[flag]->setChecked(document_.Image().BankLink(flag));
}

void BankPage::ShowSize(int bank)
{
    txtBank_[bank]->setText(QString::fromStdString(document_.Image().BankSizeText(bank)));
}

bool BankPage::CommitPending()
{
    for (int bank = 0; bank < kBanks; ++bank)
        if (txtBank_[bank] == window()->focusWidget() && !txtBank_LostFocus(bank)) {
            txtBank_[bank]->setFocus(Qt::OtherFocusReason);
            txtBank_[bank]->selectAll();
            return false;
        }
    return true;
}

void BankPage::GoToBank(int bank)
{
    if (bank < kBanks)
        txtBank_[bank]->setFocus(Qt::OtherFocusReason);
}

void BankPage::GoToLink(int bank)
{
    if (bank < kBanks)
        chkLink_[bank]->setFocus(Qt::OtherFocusReason);
}

bool BankPage::eventFilter(QObject* watched, QEvent* event)
{
    for (int bank = 0; bank < kBanks; ++bank) {
        if (watched != txtBank_[bank])
            continue;
        if (event->type() == QEvent::FocusIn)
            txtBank_GotFocus(bank, static_cast<QFocusEvent*>(event)->reason());
        if (event->type() == QEvent::KeyPress) {
            const auto* key = static_cast<QKeyEvent*>(event);
            const bool isPlain = (key->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
            if (isPlain && txtBank_KeyDown(bank, key->key()))
                return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

void BankPage::txtBank_GotFocus(int bank, Qt::FocusReason reason)
{
    QLineEdit* box = txtBank_[bank];
    // The click that brings the focus puts the cursor somewhere afterwards and would undo the selection.
    if (reason == Qt::MouseFocusReason)
        QTimer::singleShot(0, box, &QLineEdit::selectAll);
    else if (reason != Qt::PopupFocusReason)
        box->selectAll();
}

bool BankPage::txtBank_KeyDown(int bank, int key)
{
    const bool isNext = key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Down;
    if (!isNext && key != Qt::Key_Up)
        return false;
    const int next = isNext ? bank + 1 : bank - 1;
    if (next >= 0 && next < kBanks)
        txtBank_[next]->setFocus(isNext ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    return true;
}

bool BankPage::txtBank_LostFocus(int bank)
{
    const CloneImage& image = document_.Image();
    const CheckedBankSize typed = CheckBankSize(image, bank, txtBank_[bank]->text().toStdString());
    if (typed.entry == BankEntry::Accepted && typed.size != image.BankSize(bank))
        offer_->SetSize(bank, typed.size);
    // A refused box is put right before the message comes up, which takes the focus from it once more.
    ShowSize(bank);
    if (typed.entry == BankEntry::TotalTooLarge)
        ShowTotalTooLarge();
    return typed.entry != BankEntry::TotalTooLarge;
}

void BankPage::ShowTotalTooLarge()
{
    dialogs_.Ask(this, {.title = tr("ERROR"),
                        .text = tr("The total of the number of channels exceeds 1000.\n"
                                   "Please set for the total of the channel to become 1000 or less.")});
    ReleasePressedButtons(*window());
}

void BankPage::chkLink_Click(int bank, bool isLinked)
{
    const char* name = isLinked ? MESSAGE("Link bank %1") : MESSAGE("Unlink bank %1");
    document_.Edit({name, {bank}}, [=](CloneImage& image) { image.SetBankLink(bank, isLinked); });
}

}  // namespace rqm5
