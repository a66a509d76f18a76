#include "memory/fill_dialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QTableView>

#include "image/number_text.h"
#include "image/value_tables.h"
#include "language/translated.h"
#include "memory/row_names.h"
#include "ui/key_filter.h"
#include "ui/plain_text.h"
#include "ui/tall_area.h"

namespace rqm5 {
namespace {

constexpr int kNumberLength = 20;
constexpr int kHertzPerKilohertz = 1000;
constexpr int kUsual = -1;

QLineEdit* NumberBox(const char* name)
{
    auto* box = new QLineEdit;
    box->setObjectName(QLatin1String(name));
    box->setMaxLength(kNumberLength);
    box->setAlignment(Qt::AlignRight);
    new KeyFilter(*box, KeySet::Decimal);
    return box;
}

template <class Widget>
Widget* Named(Widget* widget, const char* name)
{
    widget->setObjectName(QLatin1String(name));
    return widget;
}

QLayout* Beside(QWidget* box, const QString& unit)
{
    auto* row = new QHBoxLayout;
    row->addWidget(box, 1);
    row->addWidget(new QLabel(unit));
    return row;
}

/// The tuning step of a channel in hertz.
std::int64_t StepOf(const Channel& channel)
{
    return Hertz(ReadNumber(TextAt(StepName, channel.step)) / kHertzPerKilohertz);
}

}  // namespace

dlgFill::dlgFill(const CloneImage& image, RowRange group, int from, QWidget* parent)
    : QDialog(parent),
      image_(image),
      group_(group),
      from_(from),
      txtFillStart_(NumberBox("txtFillStart")),
      txtFillSpacing_(NumberBox("txtFillSpacing")),
      opbFillCount_(Named(new QRadioButton(tr("&Number of channels")), "opbFillCount")),
      opbFillLast_(Named(new QRadioButton(tr("&Last frequency")), "opbFillLast")),
      spnFillCount_(Named(new QSpinBox, "spnFillCount")),
      txtFillLast_(NumberBox("txtFillLast")),
      cbbFillLike_(Named(new QComboBox, "cbbFillLike")),
      chkFillSkip_(Named(new QCheckBox(tr("S&kip rows that hold a channel")), "chkFillSkip")),
      lblFillSummary_(Named(new QLabel, "lblFillSummary")),
      model_(image, nullptr)
{
    setObjectName(QStringLiteral("dlgFill"));
    setWindowTitle(tr("Fill Series"));
    FillLikes();
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    ok_ = Named(buttons->button(QDialogButtonBox::Ok), "OKButton");
    Named(buttons->button(QDialogButtonBox::Cancel), "CancelButton");
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    QTableView* table = Named(MakePlanTable(model_, this), "tblFill");
    table->setAccessibleName(tr("What goes where"));

    auto* columns = new QHBoxLayout;
    columns->addLayout(BuildNumbers(), 1);
    columns->addLayout(BuildLength(), 1);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(columns);
    layout->addWidget(lblFillSummary_);
    layout->addWidget(table, 1);
    layout->addWidget(buttons);

    const Channel& first = image.MemData(from);
    const Channel like = first.HasChannel() ? first : NewChannel(image, Hertz(118));
    // A row that holds a channel is one that the series goes on from.
    const std::int64_t start = like.frequency + (first.HasChannel() ? StepOf(like) : 0);
    txtFillStart_->setText(QString::fromStdString(FormatMegahertz(start)));
    txtFillSpacing_->setText(QString::number(static_cast<double>(StepOf(like)) / kHertzPerKilohertz));
    spnFillCount_->setRange(1, group.count);
    spnFillCount_->setValue(std::min(10, group.first + group.count - from));
    opbFillCount_->setChecked(true);
    chkFillSkip_->setChecked(true);

    for (QLineEdit* box : {txtFillStart_, txtFillSpacing_, txtFillLast_})
        connect(box, &QLineEdit::textChanged, this, &dlgFill::ShowPlan);
    connect(txtFillLast_, &QLineEdit::textEdited, this, [this] { opbFillLast_->setChecked(true); });
    connect(spnFillCount_, &QSpinBox::valueChanged, this, [this] {
        opbFillCount_->setChecked(true);
        ShowPlan();
    });
    connect(opbFillCount_, &QRadioButton::toggled, this, &dlgFill::ShowPlan);
    connect(cbbFillLike_, &QComboBox::currentIndexChanged, this, &dlgFill::ShowPlan);
    connect(chkFillSkip_, &QCheckBox::toggled, this, &dlgFill::ShowPlan);
    ShowPlan();
    TallArea::FitToScreen(*this);
    txtFillStart_->setFocus();
    txtFillStart_->selectAll();
}

QLayout* dlgFill::BuildNumbers()
{
    auto* form = new QFormLayout;
    form->addRow(tr("&Start"), Beside(txtFillStart_, tr("MHz")));
    form->addRow(tr("S&pacing"), Beside(txtFillSpacing_, tr("kHz")));
    form->addRow(tr("&Mode and the rest"), cbbFillLike_);
    static_cast<QLabel*>(form->labelForField(form->itemAt(0, QFormLayout::FieldRole)->layout()))
        ->setBuddy(txtFillStart_);
    static_cast<QLabel*>(form->labelForField(form->itemAt(1, QFormLayout::FieldRole)->layout()))
        ->setBuddy(txtFillSpacing_);
    return form;
}

QLayout* dlgFill::BuildLength()
{
    spnFillCount_->setAccessibleName(tr("Number of channels"));
    txtFillLast_->setAccessibleName(tr("Last frequency"));
    auto* form = new QFormLayout;
    form->addRow(opbFillCount_, spnFillCount_);
    form->addRow(opbFillLast_, Beside(txtFillLast_, tr("MHz")));
    form->addRow(chkFillSkip_);
    return form;
}

/// The rows that a series can be like: the one it begins at stands in front.
void dlgFill::FillLikes()
{
    cbbFillLike_->addItem(tr("As usual on the frequency"), kUsual);
    for (const int row : RowsOf(group_)) {
        const Channel& channel = image_.MemData(row);
        if (!channel.HasChannel())
            continue;
        std::string values;
        for (const Column column : {kFrequency, kMode, kStep})
            values += (values.empty() ? "" : " ") + CellText(channel, RowKind::Memory, kNoRegion, column);
        cbbFillLike_->addItem(Translated({MESSAGE("%1: %2"), {PlaceOfRow(image_, row), values}}), row);
    }
    cbbFillLike_->setCurrentIndex(std::max(0, cbbFillLike_->findData(from_)));
    cbbFillLike_->setMaxVisibleItems(20);
    cbbFillLike_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    cbbFillLike_->setMinimumContentsLength(24);
}

FillSeries dlgFill::Series() const
{
    FillSeries series;
    series.start = ReadHertz(txtFillStart_->text().toStdString());
    series.spacing = Hertz(ReadNumber(txtFillSpacing_->text().toStdString()) / kHertzPerKilohertz);
    const std::int64_t last = ReadHertz(txtFillLast_->text().toStdString());
    if (opbFillLast_->isChecked() && last < series.start)
        series.spacing = -series.spacing;
    series.count =
        opbFillLast_->isChecked() ? CountUpTo(series.start, series.spacing, last) : spnFillCount_->value();
    series.skipsOccupied = chkFillSkip_->isChecked();
    const int like = cbbFillLike_->currentData().toInt();
    if (like != kUsual)
        series.like = image_.MemData(like);
    return series;
}

PastePlan dlgFill::Plan() const
{
    return PlanSeries(image_, group_, from_, Series());
}

void dlgFill::ShowPlan()
{
    const PastePlan plan = Plan();
    model_.ShowPlan(plan);
    lblFillSummary_->setText(Translated(PlanSummary(image_, plan)));
    ok_->setEnabled(!RowsWritten(plan).empty());
}

}  // namespace rqm5
