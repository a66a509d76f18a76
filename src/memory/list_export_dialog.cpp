#include "memory/list_export_dialog.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QListWidget>
#include <QLocale>
#include <QPushButton>

#include "language/translated.h"
#include "memory/bank_layout.h"
#include "memory/row_moves.h"
#include "ui/tall_area.h"

namespace rqm5 {
namespace {

void AddEntry(QListWidget& list, const QString& text, int value, bool isChecked)
{
    auto* item = new QListWidgetItem(text, &list);
    item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
    item->setData(Qt::UserRole, value);
    item->setCheckState(isChecked ? Qt::Checked : Qt::Unchecked);
}

QListWidget* MakeList(const char* name, const QString& accessibleName)
{
    constexpr int kLines = 16;
    auto* list = new QListWidget;
    list->setMinimumHeight(kLines * list->fontMetrics().height());
    list->setObjectName(QLatin1String(name));
    list->setAccessibleName(accessibleName);
    return list;
}

}  // namespace

dlgExportList::dlgExportList(const CloneImage& image, QWidget* parent)
    : QDialog(parent),
      image_(image),
      lstExportGroups_(MakeList("lstExportGroups", tr("Groups"))),
      lstExportColumns_(MakeList("lstExportColumns", tr("Columns"))),
      cbbExportDecimal_(new QComboBox),
      lblExportSummary_(new QLabel)
{
    setObjectName(QStringLiteral("dlgExportList"));
    setWindowTitle(tr("Export List"));
    cbbExportDecimal_->setObjectName(QStringLiteral("cbbExportDecimal"));
    lblExportSummary_->setObjectName(QStringLiteral("lblExportSummary"));
    cbbExportDecimal_->addItem(tr("Point: 145.500000, commas between fields"),
                               static_cast<int>(DecimalSign::Point));
    cbbExportDecimal_->addItem(tr("Comma: 145,500000, semicolons between fields"),
                               static_cast<int>(DecimalSign::Comma));
    cbbExportDecimal_->setCurrentIndex(QLocale().decimalPoint() == QLatin1String(",") ? 1 : 0);
    FillGroups();
    FillColumns();
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    ok_ = buttons->button(QDialogButtonBox::Ok);
    ok_->setObjectName(QStringLiteral("OKButton"));
    ok_->setText(tr("&Export..."));
    buttons->button(QDialogButtonBox::Cancel)->setObjectName(QStringLiteral("CancelButton"));
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* lists = new QHBoxLayout;
    for (const auto& [title, list] :
         {std::pair(tr("&Groups"), lstExportGroups_), std::pair(tr("&Columns"), lstExportColumns_)}) {
        auto* column = new QVBoxLayout;
        auto* label = new QLabel(title);
        label->setBuddy(list);
        column->addWidget(label);
        column->addWidget(list, 1);
        lists->addLayout(column);
    }
    auto* form = new QFormLayout;
    form->addRow(tr("&Decimal sign"), cbbExportDecimal_);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(lists, 1);
    layout->addLayout(form);
    layout->addWidget(lblExportSummary_);
    layout->addWidget(buttons);
    connect(lstExportGroups_, &QListWidget::itemChanged, this, &dlgExportList::ShowState);
    connect(lstExportColumns_, &QListWidget::itemChanged, this, &dlgExportList::ShowState);
    ShowState();
    TallArea::FitToScreen(*this);
    lstExportGroups_->setFocus();
}

/// Groups without a channel are there too, but nothing would come of them.
void dlgExportList::FillGroups()
{
    for (int selector = 0; selector < kSelectAll; ++selector) {
        const RowRange rows = GroupRows(image_, selector);
        if (rows.count > 0)
            AddEntry(*lstExportGroups_, Translated(SelectorText(selector)), selector,
                     !ChannelsAmong(image_, RowsOf(rows)).empty());
    }
    if (const int used = TotalBankSize(image_); used < kBankRows)
        AddEntry(*lstExportGroups_, tr("In no bank"), kSelectAll,
                 !ChannelsAmong(image_, RowsOf({used, kBankRows - used})).empty());
}

void dlgExportList::FillColumns()
{
    const Region& region = RegionOf(image_.ModelNo());
    const std::vector<ListColumn> columns = ListColumns();
    for (std::size_t i = 0; i < columns.size(); ++i) {
        const bool isThere = columns[i].part == kSecret    ? region.hasSecretCode
                             : columns[i].part == kCarrier ? region.hasCarrier
                                                           : true;
        AddEntry(*lstExportColumns_, QString::fromStdString(ListTitle(columns[i])), static_cast<int>(i),
                 isThere);
    }
}

ListChoice dlgExportList::Choice() const
{
    ListChoice choice;
    const int used = TotalBankSize(image_);
    for (int i = 0; i < lstExportGroups_->count(); ++i) {
        const QListWidgetItem& item = *lstExportGroups_->item(i);
        const int selector = item.data(Qt::UserRole).toInt();
        if (item.checkState() == Qt::Checked)
            choice.groups.push_back(selector == kSelectAll ? RowRange{used, kBankRows - used}
                                                           : GroupRows(image_, selector));
    }
    const std::vector<ListColumn> columns = ListColumns();
    for (int i = 0; i < lstExportColumns_->count(); ++i)
        if (lstExportColumns_->item(i)->checkState() == Qt::Checked)
            choice.columns.push_back(columns.at(static_cast<std::size_t>(i)));
    choice.decimals = static_cast<DecimalSign>(cbbExportDecimal_->currentData().toInt());
    return choice;
}

void dlgExportList::ShowState()
{
    const ListChoice choice = Choice();
    const int rows = CountRows(image_, choice);
    lblExportSummary_->setText(tr("Channels that are written: %1").arg(rows));
    ok_->setEnabled(rows > 0 && !choice.columns.empty());
}

}  // namespace rqm5
