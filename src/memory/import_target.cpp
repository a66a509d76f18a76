#include "memory/import_target.h"

#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QRadioButton>
#include <QSignalBlocker>

#include "language/translated.h"
#include "memory/bank_layout.h"
#include "memory/named_rows.h"
#include "memory/row_moves.h"

namespace rqm5 {
namespace {

template <class Widget>
Widget* Named(Widget* widget, const char* name)
{
    widget->setObjectName(QLatin1String(name));
    return widget;
}

}  // namespace

ImportTarget::ImportTarget(const CloneImage& image, QWidget* parent)
    : QWidget(parent),
      image_(image),
      opbImportNamed_(Named(new QRadioButton(tr("To the &rows that the list names")), "opbImportNamed")),
      opbImportFrom_(Named(new QRadioButton(tr("From this row &on")), "opbImportFrom")),
      cbbImportGroup_(Named(new QComboBox, "cbbImportGroup")),
      cbbImportChannel_(Named(new QComboBox, "cbbImportChannel")),
      chkImportSkip_(Named(new QCheckBox(tr("&Skip rows that hold a channel")), "chkImportSkip"))
{
    cbbImportGroup_->setAccessibleName(tr("Bank or group"));
    cbbImportChannel_->setAccessibleName(tr("Channel"));
    chkImportSkip_->setChecked(true);
    opbImportFrom_->setChecked(true);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins({});
    row->addWidget(opbImportNamed_);
    row->addWidget(opbImportFrom_);
    row->addWidget(cbbImportGroup_);
    row->addWidget(cbbImportChannel_);
    row->addWidget(chkImportSkip_);
    row->addStretch(1);
    FillGroups();
    connect(cbbImportGroup_, &QComboBox::activated, this, [this] {
        FillChannels();
        emit Changed();
    });
    connect(cbbImportChannel_, &QComboBox::activated, this, &ImportTarget::Changed);
    connect(chkImportSkip_, &QCheckBox::clicked, this, &ImportTarget::Changed);
    connect(opbImportNamed_, &QRadioButton::clicked, this, [this] { isChosen_ = true; });
    connect(opbImportFrom_, &QRadioButton::clicked, this, [this] { isChosen_ = true; });
    connect(opbImportFrom_, &QRadioButton::toggled, this, [this] {
        ShowState();
        emit Changed();
    });
}

void ImportTarget::FillGroups()
{
    for (int selector = 0; selector < kSelectAll; ++selector)
        if (GroupRows(image_, selector).count > 0)
            cbbImportGroup_->addItem(Translated(SelectorText(selector)), selector);
    if (TotalBankSize(image_) < kBankRows)
        cbbImportGroup_->addItem(tr("In no bank"), kSelectAll);
    FillChannels();
}

void ImportTarget::FillChannels()
{
    const int selector = cbbImportGroup_->currentData().toInt();
    const int used = TotalBankSize(image_);
    const RowRange rows =
        selector == kSelectAll ? RowRange{used, kBankRows - used} : GroupRows(image_, selector);
    cbbImportChannel_->clear();
    for (int row = rows.first; row <= rows.Last(); ++row)
        cbbImportChannel_->addItem(QString::fromStdString(PlaceInList(image_, row).channel), row);
    cbbImportChannel_->setMaxVisibleItems(20);
}

void ImportTarget::ShowState()
{
    for (QWidget* box : std::initializer_list<QWidget*>{cbbImportGroup_, cbbImportChannel_, chkImportSkip_})
        box->setEnabled(opbImportFrom_->isChecked());
}

void ImportTarget::Offer(bool namesRows)
{
    const QSignalBlocker blocker(opbImportFrom_);
    opbImportNamed_->setEnabled(namesRows);
    const bool goesToNamed = namesRows && (!isChosen_ || opbImportNamed_->isChecked());
    (goesToNamed ? opbImportNamed_ : opbImportFrom_)->setChecked(true);
    ShowState();
}

PastePlan ImportTarget::PlanOf(const std::vector<ListedChannel>& channels) const
{
    if (opbImportNamed_->isChecked())
        return PlanNamed(image_, channels);
    const RowRange rows = RowsOnFrom(image_, cbbImportChannel_->currentData().toInt());
    return PlanOn(image_, chkImportSkip_->isChecked() ? EmptyRows(image_, rows) : RowsOf(rows), channels);
}

}  // namespace rqm5
