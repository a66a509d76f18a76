#include "memory/memory_page.h"

#include <QFocusEvent>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>

#include "memory/bank_list.h"
#include "memory/channel_operations.h"
#include "memory/filter_box.h"
#include "memory/find_bar.h"
#include "memory/memory_table.h"
#include "memory/row_names.h"
#include "memory/shift_note.h"
#include "ui/fold_button.h"
#include "ui/table_font.h"
#include "ui/tall_area.h"

namespace rqm5 {

struct MemoryPage::Operation
{
    const char* name;
    const char* caption;
    const char* tip;
    void (MemoryPage::*run)();
};

MemoryPage::MemoryPage(Document& document, Dialogs& dialogs, QWidget* parent)
    : QWidget(parent),
      document_(document),
      dialogs_(dialogs),
      cbbBank_(new BankList(document, this)),
      filter_(new FilterBox(this)),
      finder_(new FindBar(document, this)),
      table_(new MemoryTable(document.Image(), this))
{
    auto* middle = new QHBoxLayout;
    middle->addWidget(table_, 1);
    auto* operations = new TallArea(BuildOperations(), this);
    operations->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    auto* fold = new FoldButton(*operations, QStringLiteral("Memory/ButtonsFolded"), tr("operation buttons"));
    fold->setObjectName(QStringLiteral("cmbFold"));
    middle->addWidget(fold);
    middle->addWidget(operations);
    auto* page = new QVBoxLayout(this);
    page->addLayout(BuildSelectorRow());
    page->addLayout(middle, 1);
    page->addLayout(BuildTransferRow());
    setTabOrder(finder_, table_);

    connect(table_, &MemoryTable::RowChosen, this,
            [this](int tableRow) { emit ModifyRequested(table_->MemoryRow(tableRow)); });
    connect(table_, &MemoryTable::InsertPressed, this, &MemoryPage::cmbInsert_Click);
    connect(table_, &MemoryTable::DeletePressed, this, &MemoryPage::cmbDelete_Click);
    connect(table_, &MemoryTable::HintChanged, this, &MemoryPage::HintChanged);
    connect(filter_, &FilterBox::Changed, this, &MemoryPage::ShowFiltered);
    connect(finder_, &FindBar::Found, this, &MemoryPage::GoToRow);
    connect(finder_, &FindBar::Done, this, &MemoryPage::FocusTable);
    connect(&document, &Document::Replaced, this, &MemoryPage::ShowReplaced);
    connect(&document, &Document::Changed, this, &MemoryPage::ShowChange);
    ShowReplaced();
}

void MemoryPage::ShowReplaced()
{
    filter_->SwitchOff();
    GoToFirstRow();
    UpDateMemData();
}

void MemoryPage::ShowChange(const ImageChange& change)
{
    if (change.HasMemoryRows() || !change.BankSize.empty() || change.HasSetting(&ReceiverSettings::model))
        UpDateMemData();
}

QLayout* MemoryPage::BuildSelectorRow()
{
    cbbBank_->installEventFilter(this);
    connect(cbbBank_, &QComboBox::currentIndexChanged, this, &MemoryPage::cbbBank_Click);

    auto* label = new QLabel(tr("Ban&k:"));
    label->setBuddy(cbbBank_);
    auto* row = new QHBoxLayout;
    row->addWidget(label);
    row->addWidget(cbbBank_);
    row->addWidget(filter_);
    row->addWidget(finder_, 1);
    return row;
}

void MemoryPage::AddButtons(QBoxLayout& layout, std::span<const Operation> operations)
{
    for (const Operation& operation : operations) {
        auto* button = new QPushButton(tr(operation.caption));
        button->setObjectName(QLatin1String(operation.name));
        button->setStatusTip(tr(operation.tip));
        connect(button, &QPushButton::clicked, this, operation.run);
        layout.addWidget(button);
    }
}

QWidget* MemoryPage::BuildOperations()
{
    static constexpr Operation kOneRow[] = {
        {"cmbEnable", QT_TR_NOOP("E&nable"), QT_TR_NOOP("Enable the selected channel"),
         &MemoryPage::cmbEnable_Click},
        {"cmbDisable", QT_TR_NOOP("&Disable"),
         QT_TR_NOOP("Disable the selected channel; it keeps its contents"), &MemoryPage::cmbDisable_Click},
        {"cmbInsert", QT_TR_NOOP("&Insert"),
         QT_TR_NOOP("Insert an empty row among memory rows 0 to 199; the channel in row 199 is lost"),
         &MemoryPage::cmbInsert_Click},
        {"cmbDelete", QT_TR_NOOP("De&lete"),
         QT_TR_NOOP("Delete a row among memory rows 0 to 199; the rows behind it move up"),
         &MemoryPage::cmbDelete_Click},
        {"cmbClear", QT_TR_NOOP("&Clear"), QT_TR_NOOP("Empty the selected channel"),
         &MemoryPage::cmbClear_Click},
    };
    static constexpr Operation kWholeGroup[] = {
        {"cmbEnAll", QT_TR_NOOP("Ena&ble All"), QT_TR_NOOP("Enable every channel shown"),
         &MemoryPage::cmbEnAll_Click},
        {"cmbDisAll", QT_TR_NOOP("Di&sable All"), QT_TR_NOOP("Disable every channel shown"),
         &MemoryPage::cmbDisAll_Click},
        {"cmbClAll", QT_TR_NOOP("Clear &All"), QT_TR_NOOP("Empty every channel shown"),
         &MemoryPage::cmbClAll_Click},
    };
    auto* one = new QGroupBox(tr("Selected channel"));
    AddButtons(*new QVBoxLayout(one), kOneRow);
    auto* all = new QGroupBox(tr("All channels shown"));
    AddButtons(*new QVBoxLayout(all), kWholeGroup);
    auto* boxes = new QWidget;
    auto* column = new QVBoxLayout(boxes);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(one);
    column->addWidget(all);
    column->addStretch();
    return boxes;
}

QLayout* MemoryPage::BuildTransferRow()
{
    static constexpr Operation kTransfers[] = {
        {"cmbRxData", QT_TR_NOOP("Read &Memory"),
         QT_TR_NOOP("Read the channels of the selected group from the receiver"), &MemoryPage::ReadRequested},
        {"cmbTxData", QT_TR_NOOP("Write Memor&y"),
         QT_TR_NOOP("Write the channels of the selected group to the receiver"), &MemoryPage::WriteRequested},
    };
    auto* row = new QHBoxLayout;
    row->addStretch();
    AddButtons(*row, kTransfers);
    return row;
}

void MemoryPage::UpDateMemData()
{
    table_->UpDateMemData(Selector(), filter_->Filter());
    filter_->ShowCount(static_cast<int>(table_->MemoryRows().size()), Group().count);
}

void MemoryPage::SelectGroup(int selector)
{
    cbbBank_->setCurrentIndex(selector);
}

int MemoryPage::Selector() const
{
    return cbbBank_->currentIndex();
}

int MemoryPage::CurrentTableRow() const
{
    return table_->CurrentTableRow();
}

void MemoryPage::GoToFirstRow()
{
    table_->SelectTableRow(1);
}

int MemoryPage::CurrentMemoryRow() const
{
    return CurrentTableRow() > 0 ? table_->MemoryRow(CurrentTableRow()) : -1;
}

bool MemoryPage::IsFiltered() const
{
    return filter_->IsOn();
}

/// What is gone to is shown, whatever the filter leaves.
void MemoryPage::ShowAllIfHidden(const std::vector<int>& rows)
{
    const auto isShown = [this](int row) { return std::ranges::binary_search(table_->MemoryRows(), row); };
    if (!std::ranges::all_of(rows, isShown))
        filter_->SwitchOff();
}

void MemoryPage::GoToRow(int memoryRow)
{
    SelectGroup(SelectorOfRow(Image(), memoryRow));
    ShowAllIfHidden({memoryRow});
    table_->SelectMemoryRow(memoryRow);
}

void MemoryPage::GoToRows(const std::vector<int>& rows)
{
    const auto holdsAll = [&](int selector) {
        const RowRange group = GroupRows(Image(), selector);
        return std::ranges::all_of(rows, [group](int row) { return group.Contains(row); });
    };
    if (rows.empty())
        return;
    if (!holdsAll(Selector())) {
        const int smallest = SelectorOfRow(Image(), rows.front());
        SelectGroup(holdsAll(smallest) ? smallest : kSelectAll);
    }
    ShowAllIfHidden(rows);
    table_->SelectMemoryRow(rows.front());
}

void MemoryPage::FocusSelector()
{
    cbbBank_->setFocus(Qt::OtherFocusReason);
}

void MemoryPage::FocusTable()
{
    table_->setFocus(Qt::OtherFocusReason);
}

bool MemoryPage::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == cbbBank_ && event->type() == QEvent::FocusOut &&
        static_cast<QFocusEvent*>(event)->reason() != Qt::PopupFocusReason)
        cbbBank_LostFocus();
    return QWidget::eventFilter(watched, event);
}

void MemoryPage::cbbBank_Click()
{
    UpDateMemData();
    table_->scrollTo(table_->currentIndex());
}

void MemoryPage::ShowFiltered()
{
    const int row = CurrentMemoryRow();
    UpDateMemData();
    table_->SelectMemoryRow(row);
    // These two go by row numbers, whatever is shown.
    for (const char* name : {"cmbInsert", "cmbDelete"})
        findChild<QPushButton*>(QLatin1String(name))->setEnabled(!IsFiltered());
}

void MemoryPage::cbbBank_LostFocus()
{
    ChangeFont(*table_);
    UpDateMemData();
}

RowRange MemoryPage::SelectedRow() const
{
    const int row = CurrentMemoryRow();
    return row < 0 ? RowRange{} : RowRange{row, 1};
}

bool MemoryPage::IsShiftable() const
{
    return !IsFiltered() && CurrentTableRow() >= 1 && CurrentTableRow() <= kShiftedRows;
}

/// \param what  what will be hit, as a sentence
bool MemoryPage::Confirm(const QString& title, const QString& text, const QString& what)
{
    return dialogs_.Ask(this, {.title = title,
                               .text = text,
                               .details = what + QLatin1Char(' ') + tr("Edit > Undo brings it back."),
                               .icon = QMessageBox::Warning,
                               .buttons = QMessageBox::Ok | QMessageBox::Cancel,
                               .defaultButton = QMessageBox::Cancel}) == QMessageBox::Ok;
}

void MemoryPage::Edit(const QString& name, const Document::ChangeFunction& change)
{
    document_.Edit(name, change);
    FocusTable();
}

void MemoryPage::EditRow(const QString& operation, void (*change)(CloneImage&, RowRange))
{
    const RowRange row = SelectedRow();
    if (row.count > 0)
        Edit(tr("%1 (%2)").arg(operation, NameOfRow(row.first)),
             [=](CloneImage& image) { change(image, row); });
}

void MemoryPage::EditGroup(const QString& operation, void (*change)(CloneImage&, RowRange))
{
    const std::vector<int> rows = table_->MemoryRows();
    if (!rows.empty())
        Edit(tr("%1 (%2)").arg(operation, NameOfGroup()), [&](CloneImage& image) {
            for (const int row : rows)
                change(image, {row, 1});
        });
}

/// "Bank 2, channel 12"; a row in no bank goes by its number.
QString MemoryPage::NameOfRow(int row) const
{
    const std::string place = PlaceOfRow(Image(), row);
    return place.empty() ? tr("row %1").arg(row) : QString::fromStdString(place);
}

/// "Bank 2, 100 channels"; with a filter on "Bank 2, the 12 channels shown of 100"
QString MemoryPage::NameOfGroup() const
{
    const QString group = QString::fromStdString(SelectorText(Selector()));
    if (!IsFiltered())
        return tr("%1, %2 channels").arg(group).arg(Group().count);
    return tr("%1, the %2 channels shown of %3")
        .arg(group)
        .arg(table_->MemoryRows().size())
        .arg(Group().count);
}

/// "145.500000 MHz"
QString MemoryPage::ContentsOf(int row) const
{
    const Channel& channel = Image().MemData(row);
    return channel.HasChannel()
               ? QString::fromStdString(Image().MemText(row, kFrequency)) + QStringLiteral(" MHz")
               : tr("which is empty");
}

void MemoryPage::cmbClear_Click()
{
    const RowRange row = SelectedRow();
    if (row.count > 0 &&
        Confirm(tr("CLEAR OK"), tr("Clear cannot be undone.\nAre you sure that you want to do the clear?"),
                tr("This clears %1, %2.").arg(NameOfRow(row.first), ContentsOf(row.first))))
        EditRow(tr("Clear"), ClearRows);
}

void MemoryPage::cmbClAll_Click()
{
    if (!table_->MemoryRows().empty() &&
        Confirm(tr("CLEAR OK"),
                tr("Clear cannot be undone.\nAre you sure that you want to clear all memory?"),
                tr("This clears %1.").arg(NameOfGroup())))
        EditGroup(tr("Clear All"), ClearRows);
}

void MemoryPage::cmbDelete_Click()
{
    if (!IsShiftable())
        return;
    // The row goes by its number in the table, whatever group is shown, so the question names it.
    const int row = CurrentTableRow() - 1;
    const QString name = QString::fromStdString(RowName(Image(), row));
    if (Confirm(tr("DELETE OK"), tr("Delete cannot be undone.\nAre you sure that you want to do the delete?"),
                tr("This deletes %1, %2.").arg(name, ContentsOf(row)))) {
        const QString note = DeleteNote(Image(), Group(), row + 1);
        Edit(tr("Delete (%1)").arg(name), [row](CloneImage& image) { DeleteTableRow(image, row + 1); });
        emit Noted(note);
    }
}

void MemoryPage::cmbInsert_Click()
{
    if (!IsShiftable())
        return;
    const int tableRow = CurrentTableRow();
    const QString name = QString::fromStdString(RowName(Image(), tableRow - 1));
    const QString note = InsertNote(Image(), Group(), tableRow);
    Edit(tr("Insert (%1)").arg(name), [tableRow](CloneImage& image) { InsertTableRow(image, tableRow); });
    emit Noted(note);
}

void MemoryPage::cmbEnable_Click()
{
    EditRow(tr("Enable"), EnableRows);
}

void MemoryPage::cmbDisable_Click()
{
    EditRow(tr("Disable"), DisableRows);
}

void MemoryPage::cmbEnAll_Click()
{
    EditGroup(tr("Enable All"), EnableRows);
}

void MemoryPage::cmbDisAll_Click()
{
    EditGroup(tr("Disable All"), DisableRows);
}

}  // namespace rqm5
