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

dlgModify::dlgModify(Document& document, Dialogs& dialogs, QWidget* parent)
    : QDialog(parent),
      document_(document),
      dialogs_(dialogs),
      form_(new ModifyForm(this)),
      frequency_{form_->txtFreq(), CheckFrequency, {}},
      shift_{form_->txtShift(), CheckOffset, {}}
{
    setObjectName(QStringLiteral("dlgModify"));
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(new TallArea(form_, this));
    // The check boxes and buttons stay in sight when the form has to scroll.
    QBoxLayout* lastRow = form_->TakeLastRow();
    layout->addLayout(lastRow);
    // After the check boxes, which Tab reaches first then.
    lastRow->addWidget(BuildButtons());

    connect(new LeaveWatch(*frequency_.box), &LeaveWatch::Left, this, &dlgModify::txtFreq_LostFocus);
    connect(new LeaveWatch(*shift_.box), &LeaveWatch::Left, this, &dlgModify::txtShift_LostFocus);
    connect(frequency_.box, &QLineEdit::textEdited, this, &dlgModify::txtFreq_Change);
    connect(form_->chkEnable(), &QCheckBox::clicked, this, [this] { mayTickEnable_ = false; });
}

QWidget* dlgModify::BuildButtons()
{
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
    return buttons;
}

bool dlgModify::OpenMemory(int row, int selector)
{
    setWindowTitle(tr("Modify Memory"));
    return Open({RowKind::Memory, row}, selector, Grid1Data_);
}

bool dlgModify::OpenVfo(int row)
{
    setWindowTitle(tr("Modify VFO"));
    return Open({RowKind::Vfo, row}, kSelectAll, Grid2Data_);
}

bool dlgModify::Open(RowId row, int selector, ChannelFields& stored)
{
    const CloneImage& image = document_.Image();
    if (!CanModify(image, row))
        return false;
    row_ = row;
    selector_ = selector;
    stored = LoadFields(image, row);
    frequency_.checked = QString::fromStdString(stored.frequency);
    shift_.checked = QString::fromStdString(stored.shiftFrequency);

    const bool isHeld =
        row.IsMemory() && form_->IsHeld() && confirmed_.has_value() && !image.At(row).HasChannel();
    form_->SetAvailable(row.IsMemory(), RegionOf(image.ModelNo()));
    form_->ShowRow(row.IsMemory() ? tr("Memory") : tr("VFO"), RowName(),
                   QString::fromStdString(FrequencyRangeText(image, row)));
    ChannelFields shown = isHeld ? *confirmed_ : stored;
    shown.note = stored.note;  // what is noted of one channel is seldom true of another
    form_->ShowFields(shown);
    // Held values were confirmed with their flag.
    mayTickEnable_ = row.IsMemory() && !isHeld && !image.At(row).HasChannel();
    // The two kinds of row show different controls; the form has to notice before the dialog takes its size.
    form_->layout()->activate();
    TallArea::FitToScreen(*this);
    return dialogs_.Run(*this) == Accepted;
}

QString dlgModify::RowName() const
{
    if (!row_.IsMemory())
        return tr("Band %1").arg(row_.row);
    const CloneImage& image = document_.Image();
    const auto labels = BuildChannelLabels(image, selector_);
    const auto place = static_cast<std::size_t>(row_.row - GroupRows(image, selector_).first);
    const QString label =
        place < labels.size() ? QString::fromStdString(labels[place]) : QString::number(row_.row);
    if (selector_ == kSelectAll)
        return tr("CH %1").arg(label);
    return tr("%1  CH %2").arg(QString::fromStdString(SelectorText(selector_)), label);
}

void dlgModify::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    if (event->spontaneous())
        return;
    form_->txtFreq()->setFocus(Qt::OtherFocusReason);
    form_->txtFreq()->selectAll();
}

void dlgModify::txtFreq_LostFocus()
{
    LeaveBox(frequency_);
}

void dlgModify::txtShift_LostFocus()
{
    LeaveBox(shift_);
}

void dlgModify::txtFreq_Change(const QString& typed)
{
    if (mayTickEnable_)
        form_->chkEnable()->setChecked(!typed.isEmpty());
}

bool dlgModify::LeaveBox(Entry& entry)
{
    if (!isVisible())
        return true;
    const CheckedEntry result =
        entry.check(document_.Image(), row_, selector_, entry.box->text().toStdString());
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
    document_.Edit(tr("Modify (%1)").arg(RowName().simplified()),
                   [&](CloneImage& image) { StoreFields(image, row_, fields); });
    if (row_.IsMemory())
        confirmed_ = fields;
    accept();
}

}  // namespace rqm5
