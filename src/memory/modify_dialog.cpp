#include "memory/modify_dialog.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>
#include <QShowEvent>
#include <QVBoxLayout>
#include <algorithm>

#include "language/translated.h"
#include "memory/bank_layout.h"
#include "memory/modify_form.h"
#include "memory/refusal_prompt.h"
#include "ui/form_texts.h"
#include "ui/leave_watch.h"
#include "ui/tall_area.h"

namespace rqm5 {
namespace {

constexpr QKeyCombination kPreviousKey = Qt::ALT | Qt::Key_PageUp;
constexpr QKeyCombination kNextKey = Qt::ALT | Qt::Key_PageDown;

}  // namespace

dlgModify::dlgModify(Document& document, Dialogs& dialogs, QWidget* parent)
    : QDialog(parent),
      document_(document),
      dialogs_(dialogs),
      form_(new ModifyForm(this)),
      frequency_{form_->txtFreq(), &dlgModify::CheckFrequencyBox, {}},
      shift_{form_->txtShift(), &dlgModify::CheckOffsetBox, {}}
{
    setObjectName(QStringLiteral("dlgModify"));
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(new TallArea(form_, this));
    // The check boxes and buttons stay in sight when the form has to scroll.
    QBoxLayout* lastRow = form_->TakeLastRow();
    layout->addLayout(lastRow);
    PreviousButton_ = AddStepButton("PreviousButton", Designed(QT_TR_NOOP("&Previous")), kPreviousKey, -1);
    NextButton_ = AddStepButton("NextButton", Designed(QT_TR_NOOP("Ne&xt")), kNextKey, 1);
    // After the check boxes, which Tab reaches first then.
    lastRow->addWidget(BuildButtons());

    connect(new LeaveWatch(*frequency_.box), &LeaveWatch::Left, this, &dlgModify::txtFreq_LostFocus);
    connect(new LeaveWatch(*shift_.box), &LeaveWatch::Left, this, &dlgModify::txtShift_LostFocus);
    connect(frequency_.box, &QLineEdit::textEdited, this, &dlgModify::txtFreq_Change);
    connect(form_->chkEnable(), &QCheckBox::clicked, this, [this] { mayTickEnable_ = false; });
    ShowTexts();
}

/// One editor serves all languages that are chosen while the program runs.
void dlgModify::ShowTexts()
{
    SetFormTexts(*this);
    form_->FitTexts();
    for (const auto& [button, key] : {std::pair(PreviousButton_, kPreviousKey), {NextButton_, kNextKey}})
        button->setToolTip(tr("Store what was changed and go on (%1)")
                               .arg(QKeySequence(key).toString(QKeySequence::NativeText)));
}

void dlgModify::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange || event->type() == QEvent::FontChange)
        ShowTexts();
    QDialog::changeEvent(event);
}

QWidget* dlgModify::BuildButtons()
{
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    QPushButton* ok = buttons->button(QDialogButtonBox::Ok);
    ok->setObjectName(QStringLiteral("OKButton"));
    ok->setDefault(true);
    OKNextButton_ = buttons->addButton(Designed(QT_TR_NOOP("OK and Next")), QDialogButtonBox::ActionRole);
    OKNextButton_->setObjectName(QStringLiteral("OKNextButton"));
    OKNextButton_->setToolTip(Designed(QT_TR_NOOP("Store the row and go on with the next one (Ctrl+Enter)")));
    OKNextButton_->setAutoDefault(false);
    QPushButton* cancel = buttons->button(QDialogButtonBox::Cancel);
    cancel->setObjectName(QStringLiteral("CancelButton"));
    // A click leaves the focus in the box being typed into: OK checks that box itself, so that a refusal
    // can stop it, and Cancel need not care what the box holds.
    for (QPushButton* button : {ok, OKNextButton_, cancel})
        button->setFocusPolicy(Qt::TabFocus);
    connect(ok, &QPushButton::clicked, this, &dlgModify::OKButton_Click);
    connect(OKNextButton_, &QPushButton::clicked, this, [this] { GoOn(1, true); });
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter})
        connect(new QShortcut(QKeySequence(Qt::CTRL | key), this), &QShortcut::activated, OKNextButton_,
                &QPushButton::click);
    return buttons;
}

QPushButton* dlgModify::AddStepButton(const char* name, const QString& text, const QKeySequence& key,
                                      int step)
{
    auto* button = new QPushButton(text, this);
    button->setObjectName(QLatin1String(name));
    button->setAutoDefault(false);
    button->setFocusPolicy(Qt::TabFocus);
    connect(button, &QPushButton::clicked, this, [this, step] { GoOn(step, false); });
    connect(new QShortcut(key, this), &QShortcut::activated, button, &QPushButton::click);
    form_->AddToTitle(button);
    return button;
}

bool dlgModify::OpenMemory(int row, int selector, RowFilter filter)
{
    selector_ = selector;
    filter_ = filter;
    ShowRow({RowKind::Memory, row});
    return Run();
}

bool dlgModify::OpenVfo(int row)
{
    const RowId id{RowKind::Vfo, row};
    if (!CanModify(document_.Image(), id))
        return false;
    selector_ = kSelectAll;
    ShowRow(id);
    return Run();
}

bool dlgModify::OpenSeveral(const RowList& rows, int selector)
{
    selector_ = selector;
    row_ = {RowKind::Memory, rows.front()};
    rows_ = rows;
    isHeld_ = false;
    mayTickEnable_ = false;
    ShowForm({MESSAGE("%1 channels"), {static_cast<int>(rows.size())}}, LoadShared(document_.Image(), rows));
    return Run();
}

bool dlgModify::Run()
{
    setWindowTitle(row_.IsMemory() ? tr("Modify Memory") : tr("Modify VFO"));
    // The two kinds of row show different controls; the form has to notice before the dialog takes its size.
    form_->layout()->activate();
    TallArea::FitToScreen(*this);
    return dialogs_.Run(*this) == Accepted;
}

void dlgModify::ShowRow(RowId row)
{
    const CloneImage& image = document_.Image();
    row_ = row;
    rows_.clear();
    ChannelFields& stored = row.IsMemory() ? Grid1Data_ : Grid2Data_;
    stored = LoadFields(image, row);
    isHeld_ = row.IsMemory() && form_->IsHeld() && confirmed_.has_value() && !image.At(row).HasChannel();
    ChannelFields shown = isHeld_ ? *confirmed_ : stored;
    shown.note = stored.note;  // what is noted of one channel is seldom true of another
    ShowForm(RowName(MESSAGE("%1  CH %2")), {shown});
    // Held values were confirmed with their flag.
    mayTickEnable_ = row.IsMemory() && !isHeld_ && !image.At(row).HasChannel();
    frequency_.checked = QString::fromStdString(stored.frequency);
    shift_.checked = QString::fromStdString(stored.shiftFrequency);
}

void dlgModify::ShowForm(const Message& name, const SharedFields& shown)
{
    const CloneImage& image = document_.Image();
    form_->SetAvailable(row_.IsMemory(), RegionOf(image.ModelNo()));
    form_->ShowRow(row_.IsMemory() ? tr("Memory") : tr("VFO"), Translated(name),
                   Translated(FrequencyRangeText(image, row_)));
    form_->ShowShared(shown, IsSeveral());
    shown_ = shown;
    frequency_.checked = QString::fromStdString(shown.fields.frequency);
    shift_.checked = QString::fromStdString(shown.fields.shiftFrequency);
    for (QPushButton* button : {PreviousButton_, NextButton_, OKNextButton_})
        button->setVisible(!IsSeveral());
    PreviousButton_->setEnabled(Neighbour(-1).has_value());
    NextButton_->setEnabled(Neighbour(1).has_value());
    OKNextButton_->setEnabled(Neighbour(1).has_value());
}

/// \param inGroup  the message for a row of a bank or group
Message dlgModify::RowName(const char* inGroup) const
{
    if (!row_.IsMemory())
        return {MESSAGE("Band %1"), {row_.row}};
    const CloneImage& image = document_.Image();
    // The view of all rows does not say where a row is, so its bank or group names it there too.
    const int selector = selector_ == kSelectAll ? SelectorOfRow(image, row_.row) : selector_;
    const auto labels = BuildChannelLabels(image, selector);
    const auto place = static_cast<std::size_t>(row_.row - GroupRows(image, selector).first);
    const Message label = place < labels.size() ? Message(labels[place]) : Message(row_.row);
    if (selector == kSelectAll)
        return {MESSAGE("CH %1"), {label}};
    return {inGroup, {SelectorText(selector), label}};
}

/// The rows that Previous and Next go through: those that the table shows now.
RowList dlgModify::Neighbours() const
{
    const CloneImage& image = document_.Image();
    return row_.IsMemory() ? FilterGroup(image, selector_, filter_).rows
                           : RowsOf(RowRange{0, RegionOf(image.ModelNo()).vfoBands});
}

/// The next row in a direction; the row itself need not be shown any more.
std::optional<int> dlgModify::Neighbour(int step) const
{
    const RowList rows = IsSeveral() ? RowList() : Neighbours();
    const auto place = std::ranges::lower_bound(rows, step > 0 ? row_.row + 1 : row_.row);
    if (step > 0)
        return place != rows.end() ? std::optional(*place) : std::nullopt;
    return place != rows.begin() ? std::optional(*std::prev(place)) : std::nullopt;
}

/// \param storesAlways  else a row that nobody touched stays as it is
void dlgModify::GoOn(int step, bool storesAlways)
{
    if (!Neighbour(step) || ((storesAlways || isHeld_ || IsTouched()) && !Store()))
        return;
    // What was stored may have hidden every other row from a filter.
    const std::optional<int> next = Neighbour(step);
    ShowRow({row_.kind, next.value_or(row_.row)});
    if (next)
        emit RowShown(row_);
    FocusFrequency();
}

bool dlgModify::IsTouched() const
{
    return !TouchedParts(shown_, form_->Shared()).IsEmpty();
}

void dlgModify::FocusFrequency()
{
    form_->txtFreq()->setFocus(Qt::OtherFocusReason);
    form_->txtFreq()->selectAll();
}

CheckedEntry dlgModify::CheckFrequencyBox(const std::string& typed) const
{
    const CloneImage& image = document_.Image();
    return IsSeveral() ? CheckSharedFrequency(image, rows_, selector_, typed)
                       : CheckFrequency(image, row_, selector_, typed);
}

CheckedEntry dlgModify::CheckOffsetBox(const std::string& typed) const
{
    const CloneImage& image = document_.Image();
    return IsSeveral() ? CheckSharedOffset(image, rows_, selector_, typed)
                       : CheckOffset(image, row_, selector_, typed);
}

void dlgModify::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    if (event->spontaneous())
        return;
    FocusFrequency();
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
    const CheckedEntry result = (this->*entry.check)(entry.box->text().toStdString());
    entry.checked = QString::fromStdString(result.text);
    entry.box->setText(entry.checked);
    if (ShowRefusal(result.verdict, dialogs_, *this))
        ReleasePressedButtons(*this);
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

/// \return false when a box has to be looked at again; nothing is stored then
bool dlgModify::Store()
{
    if (!LeaveIfPending(frequency_) || !LeaveIfPending(shift_))
        return false;
    const SharedFields entered = form_->Shared();
    if (IsSeveral()) {
        document_.Edit(
            {MESSAGE("Modify (%1, %2 channels)"), {SelectorText(selector_), static_cast<int>(rows_.size())}},
            [&](CloneImage& image) { StoreShared(image, rows_, shown_, entered); });
        return true;
    }
    document_.Edit({MESSAGE("Modify (%1)"), {RowName(MESSAGE("%1 CH %2"))}},
                   [&](CloneImage& image) { StoreFields(image, row_, entered.fields); });
    if (row_.IsMemory())
        confirmed_ = entered.fields;
    return true;
}

void dlgModify::OKButton_Click()
{
    if (Store())
        accept();
}

}  // namespace rqm5
