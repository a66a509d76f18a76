#include "memory/modify_form.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QVBoxLayout>

#include "image/value_tables.h"
#include "memory/note_line.h"
#include "ui/form_texts.h"
#include "ui/key_filter.h"

namespace rqm5 {
namespace {

constexpr char kContext[] = "Modify";
constexpr int kNoteLength = 255;
constexpr int kNumberLength = 20;

constexpr Option kWaves[] = {{0, "FM"}, {1, "AM"}, {2, "WFM"}};

// In the order of their size. What is stored is the button's number, the receiver's own step code.
constexpr Option kSteps[] = {
    {19, "1KHz"}, {1, "5KHz"},    {2, "6.25KHz"}, {3, "8.33KHz"}, {0, "9KHz"},
    {4, "10KHz"}, {5, "12.5KHz"}, {6, "15KHz"},   {7, "20KHz"},   {8, "25KHz"},
    {9, "30KHz"}, {10, "50KHz"},  {11, "100KHz"}, {12, "125KHz"}, {13, "200KHz"},
};

constexpr Option kOptions[] = {
    {0, QT_TRANSLATE_NOOP("Modify", "None")},    {1, QT_TRANSLATE_NOOP("Modify", "Secret")},
    {2, QT_TRANSLATE_NOOP("Modify", "Carrier")}, {3, QT_TRANSLATE_NOOP("Modify", "Tone")},
    {4, QT_TRANSLATE_NOOP("Modify", "Reverse")},
};

constexpr Option kShifts[] = {{0, QT_TRANSLATE_NOOP("Modify", "OFF")}, {1, "+"}, {2, "-"}};

template <class Widget>
Widget* Named(Widget* widget, const char* name)
{
    widget->setObjectName(QLatin1String(name));
    return widget;
}

QLabel* PlainLabel(const char* name)
{
    auto* label = Named(new QLabel, name);
    label->setTextFormat(Qt::PlainText);
    return label;
}

QLineEdit* MegahertzBox(const char* name)
{
    auto* box = Named(new QLineEdit, name);
    box->setMaxLength(kNumberLength);
    box->setAlignment(Qt::AlignRight);
    new KeyFilter(*box, KeySet::Decimal);
    return box;
}

}  // namespace

ModifyForm::ModifyForm(QWidget* parent)
    : QWidget(parent),
      lblMode_(PlainLabel("lblMode")),
      lblCH_(PlainLabel("lblCH")),
      lblMHz_(PlainLabel("lblMHz")),
      txtFreq_(MegahertzBox("txtFreq")),
      txtShift_(MegahertzBox("txtShift")),
      chkHold_(Named(new QCheckBox(Designed(QT_TRANSLATE_NOOP("rqm5::dlgModify", "&Hold"))), "chkHold")),
      titleRow_(new QHBoxLayout),
      lastRow_(new QHBoxLayout),
      opbWave_(
          new OptionGroup(kContext, "opbWave", QT_TRANSLATE_NOOP("Modify", "Modulation Mode"), kWaves, 3)),
      opbStep_(new OptionGroup(kContext, "opbStep", QT_TRANSLATE_NOOP("Modify", "Tuning Step"), kSteps, 3)),
      opbTone_(new OptionGroup(kContext, "opbTone", QT_TRANSLATE_NOOP("Modify", "Option"), kOptions, 1)),
      opbSift_(new OptionGroup(kContext, "opbSift", QT_TRANSLATE_NOOP("Modify", "Shift"), kShifts, 3)),
      cbbSec_(Named(new QComboBox, "cbbSec")),
      cbbAir_(Named(new QComboBox, "cbbAir")),
      cbbTxTone_(Named(new QComboBox, "cbbTxTone")),
      lblNote_(new QLabel(Designed(QT_TR_NOOP("&Note")))),
      txtNote_(Named(new QLineEdit, "txtNote")),
      noteLine_(new NoteLine(*txtNote_)),
      chkSkip_(Named(new QCheckBox(Designed(QT_TRANSLATE_NOOP("rqm5::dlgModify", "S&kip"))), "chkSkip")),
      chkEnable_(Named(new QCheckBox(Designed(QT_TRANSLATE_NOOP("rqm5::dlgModify", "&Enable"))), "chkEnable"))
{
    auto* left = new QVBoxLayout;
    left->addLayout(BuildFrequency());
    left->addWidget(opbWave_);
    left->addWidget(opbStep_, 1);
    auto* right = new QVBoxLayout;
    right->addLayout(BuildChoices(), 1);
    right->addLayout(BuildShift());
    auto* columns = new QHBoxLayout;
    columns->addLayout(left);
    columns->addLayout(right, 1);
    auto* form = new QVBoxLayout(this);
    form->setContentsMargins(0, 0, 0, 0);
    form->addLayout(BuildTitle());
    form->addLayout(columns);
    form->addLayout(BuildNote());
    form->addStretch();
    BuildChecks();
}

QLayout* ModifyForm::BuildTitle()
{
    QFont bold = font();
    bold.setBold(true);
    lblMode_->setFont(bold);
    lblCH_->setFont(bold);
    titleRow_->addWidget(lblMode_);
    titleRow_->addWidget(lblCH_);
    titleRow_->addStretch();
    return titleRow_;
}

void ModifyForm::AddToTitle(QWidget* button)
{
    titleRow_->addWidget(button);
}

QLayout* ModifyForm::BuildFrequency()
{
    auto* label = new QLabel(Designed(QT_TR_NOOP("&Frequency")));
    label->setBuddy(txtFreq_);
    auto* row = new QHBoxLayout;
    row->addWidget(label);
    row->addWidget(txtFreq_, 1);
    row->addWidget(lblMHz_);
    return row;
}

QLayout* ModifyForm::BuildChoices()
{
    auto* row = new QHBoxLayout;
    row->addWidget(opbTone_);
    row->addWidget(BuildCodes(), 1);
    return row;
}

QWidget* ModifyForm::BuildCodes()
{
    for (int code = 0; code < kSecretCodes; ++code)
        cbbSec_->addItem(QString::number(code));
    for (int code = 0; code <= kCarrierJr; ++code)
        cbbAir_->addItem(QString::fromStdString(CarrierText(code)));
    for (const std::string_view tone : ToneName)
        cbbTxTone_->addItem(QString::fromUtf8(tone.data(), static_cast<qsizetype>(tone.size())));
    auto* box = new QGroupBox(Designed(QT_TR_NOOP("Codes and tones")));
    codes_ = new QFormLayout(box);
    codes_->addRow(Designed(QT_TR_NOOP("&Secret code")), cbbSec_);
    codes_->addRow(Designed(QT_TR_NOOP("T&rain tone")), cbbAir_);
    codes_->addRow(Designed(QT_TR_NOOP("&CTCSS tone")), cbbTxTone_);
    return box;
}

void ModifyForm::FitTexts()
{
    // On a screen whose scale is no whole number a text can be a little wider than it says.
    for (QWidget* list : {cbbSec_, cbbAir_, cbbTxTone_}) {
        QWidget* label = codes_->labelForField(list);
        label->setMinimumWidth(label->sizeHint().width() + 2);
    }
}

QLayout* ModifyForm::BuildShift()
{
    auto* offset = new QGroupBox(Designed(QT_TR_NOOP("&Offset Frequency")));
    txtShift_->setAccessibleName(Designed(QT_TR_NOOP("Offset Frequency")));
    auto* box = new QHBoxLayout(offset);
    box->addWidget(txtShift_, 1);
    box->addWidget(new QLabel(Designed(QT_TR_NOOP("MHz"))));
    auto* row = new QHBoxLayout;
    row->addWidget(opbSift_);
    row->addWidget(offset, 1);
    return row;
}

QLayout* ModifyForm::BuildNote()
{
    lblNote_->setBuddy(txtNote_);
    auto* row = new QHBoxLayout;
    row->addWidget(lblNote_);
    row->addWidget(txtNote_, 1);
    auto* column = new QVBoxLayout;
    column->addLayout(row);
    column->addWidget(noteLine_);
    return column;
}

void ModifyForm::BuildChecks()
{
    chkSkip_->setToolTip(Designed(QT_TRANSLATE_NOOP("rqm5::dlgModify", "Scanning skips this channel")));
    chkEnable_->setToolTip(Designed(QT_TRANSLATE_NOOP("rqm5::dlgModify", "The channel is in use")));
    chkHold_->setToolTip(Designed(QT_TRANSLATE_NOOP(
        "rqm5::dlgModify", "The next empty channel starts with the values confirmed here")));
    lastRow_->addWidget(chkSkip_);
    lastRow_->addWidget(chkEnable_);
    lastRow_->addWidget(chkHold_);
    lastRow_->addStretch();
}

void ModifyForm::ShowFields(const ChannelFields& fields)
{
    txtFreq_->setText(QString::fromStdString(fields.frequency));
    opbWave_->Select(fields.mode);
    opbStep_->Select(fields.step);
    opbTone_->Select(fields.option);
    cbbSec_->setCurrentIndex(fields.secret);
    cbbAir_->setCurrentIndex(fields.carrier);
    cbbTxTone_->setCurrentIndex(fields.tone);
    opbSift_->Select(fields.shift);
    txtShift_->setText(QString::fromStdString(fields.shiftFrequency));
    // A note from a file may be longer than what may be typed; it must not lose its end here.
    const QString note = QString::fromStdString(fields.note);
    txtNote_->setMaxLength(std::max(kNoteLength, static_cast<int>(note.size())));
    noteLine_->ShowNote(note);
    chkSkip_->setChecked(fields.skip);
    chkEnable_->setChecked(fields.enable);
}

void ModifyForm::ShowShared(const SharedFields& shared, bool isSeveral)
{
    ShowFields(shared.fields);
    const auto show = [](QCheckBox& box, bool isMixed) {
        box.setTristate(isMixed);
        if (isMixed)
            box.setCheckState(Qt::PartiallyChecked);
    };
    show(*chkSkip_, shared.isSkipMixed);
    show(*chkEnable_, shared.isEnableMixed);
    const bool isNoteMixed = isSeveral && shared.fields.note.empty();
    txtNote_->setPlaceholderText(isNoteMixed ? tr("What is blank stays as it is in each channel")
                                             : QString());
    if (isSeveral)
        chkHold_->hide();
}

SharedFields ModifyForm::Shared() const
{
    return {.fields = Fields(),
            .isSkipMixed = chkSkip_->checkState() == Qt::PartiallyChecked,
            .isEnableMixed = chkEnable_->checkState() == Qt::PartiallyChecked};
}

ChannelFields ModifyForm::Fields() const
{
    return {.frequency = txtFreq_->text().toStdString(),
            .mode = opbWave_->Selected(),
            .step = opbStep_->Selected(),
            .option = opbTone_->Selected(),
            .secret = cbbSec_->currentIndex(),
            .carrier = cbbAir_->currentIndex(),
            .tone = cbbTxTone_->currentIndex(),
            .shift = opbSift_->Selected(),
            .shiftFrequency = txtShift_->text().toStdString(),
            .note = txtNote_->text().toStdString(),
            .skip = chkSkip_->isChecked(),
            .enable = chkEnable_->isChecked()};
}

void ModifyForm::ShowRow(const QString& kind, const QString& name, const QString& range)
{
    lblMode_->setText(kind);
    lblCH_->setText(name);
    lblMHz_->setText(range);
    txtFreq_->setAccessibleDescription(range);
}

bool ModifyForm::IsHeld() const
{
    return chkHold_->isChecked();
}

void ModifyForm::SetAvailable(bool isMemory, const Region& region)
{
    for (QWidget* control :
         std::initializer_list<QWidget*>{lblNote_, txtNote_, chkSkip_, chkEnable_, chkHold_})
        control->setVisible(isMemory);
    // The hint comes and goes while somebody types; its place must be in sight then.
    noteLine_->KeepPlace(isMemory);
    cbbSec_->setEnabled(region.hasSecretCode);
    cbbAir_->setEnabled(region.hasCarrier);
    opbTone_->Button(1)->setEnabled(region.hasSecretCode);
    opbTone_->Button(2)->setEnabled(region.hasCarrier);
}

}  // namespace rqm5
