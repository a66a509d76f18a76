#include "memory/modify_dialog.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QShowEvent>
#include <QVBoxLayout>

#include "memory/bank_layout.h"
#include "memory/modify_form.h"
#include "ui/leave_watch.h"
#include "ui/tall_area.h"

namespace rqm5 {

dlgModify::dlgModify(CloneImage& image, Dialogs& dialogs, QWidget* parent)
    : QDialog(parent),
      image_(image),
      dialogs_(dialogs),
      form_(new ModifyForm(this)),
      frequency_{form_->txtFreq, CheckFrequency, {}},
      shift_{form_->txtShift, CheckOffset, {}}
{
    setObjectName(QStringLiteral("dlgModify"));
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    QPushButton* ok = buttons->button(QDialogButtonBox::Ok);
    ok->setObjectName(QStringLiteral("OKButton"));
    ok->setDefault(true);
    QPushButton* cancel = buttons->button(QDialogButtonBox::Cancel);
    cancel->setObjectName(QStringLiteral("CancelButton"));
    // A click leaves the focus in the box being typed into: OK checks that box itself, so that a refusal
    // can stop it, and Cancel need not care what the box holds.
    ok->setFocusPolicy(Qt::TabFocus);
    cancel->setFocusPolicy(Qt::TabFocus);
    connect(ok, &QPushButton::clicked, this, &dlgModify::OKButton_Click);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(new LeaveWatch(*frequency_.box), &LeaveWatch::Left, this, &dlgModify::txtFreq_LostFocus);
    connect(new LeaveWatch(*shift_.box), &LeaveWatch::Left, this, &dlgModify::txtShift_LostFocus);

    form_->lastRow->addWidget(buttons);
    auto* layout = new QVBoxLayout(this);
    auto* area = new TallArea(form_, this);
    layout->addWidget(area);
    layout->addLayout(form_->lastRow);  // stays in sight when the form has to scroll
}

bool dlgModify::OpenMemory(int row, int selector)
{
    setWindowTitle(tr("Modify Memory"));
    return Open({.ModifyTarget = EditTarget::kMemory, .ModifyRow = row + 1, .selector = selector}, Grid1Data);
}

bool dlgModify::OpenVfo(int row)
{
    setWindowTitle(tr("Modify VFO"));
    return Open({.ModifyTarget = EditTarget::kVfo, .ModifyRow = row + 1}, Grid2Data);
}

bool dlgModify::Open(const EditTarget& target, ChannelFields& stored)
{
    if (!CanModify(image_, target))
        return false;
    target_ = target;
    stored = LoadFields(image_, target);
    frequency_.checked = QString::fromStdString(stored.frequency);
    shift_.checked = QString::fromStdString(stored.shiftFrequency);

    const bool isHeld = target.IsMemory() && form_->chkHold->isChecked() && confirmed_.has_value() &&
                        !HasChannel(image_, target.Row());
    form_->SetAvailable(target.IsMemory(), image_.ModelNo());
    form_->lblMode->setText(target.IsMemory() ? tr("Memory") : tr("VFO"));
    form_->lblCH->setText(RowName());
    form_->lblMHz->setText(QString::fromStdString(FrequencyRangeText(image_, target)));
    form_->txtFreq->setAccessibleDescription(form_->lblMHz->text());
    form_->ShowFields(isHeld ? *confirmed_ : stored);
    // The two kinds of row show different controls; the form has to notice before the dialog takes its size.
    form_->layout()->activate();
    TallArea::FitToScreen(*this);
    return dialogs_.Run(*this) == Accepted;
}

QString dlgModify::RowName() const
{
    if (!target_.IsMemory())
        return tr("Band %1").arg(target_.Row());
    const auto labels = BuildChannelLabels(image_, target_.selector);
    const auto place = static_cast<std::size_t>(target_.Row() - GroupRows(image_, target_.selector).first);
    const QString label =
        place < labels.size() ? QString::fromStdString(labels[place]) : QString::number(target_.Row());
    if (target_.selector == kSelectAll)
        return tr("CH %1").arg(label);
    return tr("%1  CH %2").arg(QString::fromStdString(SelectorText(target_.selector)), label);
}

void dlgModify::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    if (event->spontaneous())
        return;
    form_->txtFreq->setFocus(Qt::OtherFocusReason);
    form_->txtFreq->selectAll();
}

void dlgModify::txtFreq_LostFocus()
{
    LeaveBox(frequency_);
}

void dlgModify::txtShift_LostFocus()
{
    LeaveBox(shift_);
}

bool dlgModify::LeaveBox(Entry& entry)
{
    if (!isVisible())
        return true;
    const CheckedEntry result = entry.check(image_, target_, entry.box->text().toStdString());
    entry.checked = QString::fromStdString(result.text);
    entry.box->setText(entry.checked);
    ShowRefusal(result.verdict);
    return result.verdict == Verdict::Accepted;
}

bool dlgModify::LeaveIfPending(Entry& entry)
{
    // What the row holds already may stay although it could not be typed: a band or region may have
    // changed since, and the note of such a row must remain editable.
    const bool isPending = entry.box->text().isEmpty() || entry.box->text() != entry.checked;
    if (!isPending || LeaveBox(entry))
        return true;
    entry.box->setFocus(Qt::OtherFocusReason);
    entry.box->selectAll();
    return false;
}

void dlgModify::ShowRefusal(Verdict verdict)
{
    Prompt prompt;
    if (verdict == Verdict::Cellular)
        prompt = {.title = tr("Frequency of the cellular phone"),
                  .text = tr("It is a frequency of the cellular phone.\nIt is not possible to set it.")};
    else if (verdict == Verdict::Duplicate)
        prompt = {.title = tr("ERROR"),
                  .text = tr("The same frequency as other channels cannot be set in Search Pass bank.")};
    else
        return;
    dialogs_.Ask(this, prompt);
    ReleasePressedButtons(*this);
}

void dlgModify::OKButton_Click()
{
    if (!LeaveIfPending(frequency_) || !LeaveIfPending(shift_))
        return;
    const ChannelFields fields = form_->Fields();
    StoreFields(image_, target_, fields);
    if (target_.IsMemory())
        confirmed_ = fields;
    accept();
}

}  // namespace rqm5
