#include "memory/memory_page.h"

#include <QFocusEvent>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>

#include "files/safe_notes.h"
#include "language/translated.h"
#include "memory/bank_list.h"
#include "memory/filter_box.h"
#include "memory/find_bar.h"
#include "memory/memory_table.h"
#include "memory/note_line.h"
#include "memory/operation_buttons.h"
#include "memory/refusal_prompt.h"
#include "memory/row_actions.h"
#include "ui/fold_button.h"
#include "ui/form_texts.h"
#include "ui/table_font.h"
#include "ui/tall_area.h"
#include "ui/transfer_buttons.h"

namespace rqm5 {

MemoryPage::MemoryPage(Document& document, Dialogs& dialogs, QWidget* parent)
    : QWidget(parent),
      document_(document),
      dialogs_(dialogs),
      cbbBank_(new BankList(document, this)),
      filter_(new FilterBox(this)),
      finder_(new FindBar(document, this)),
      table_(new MemoryTable(document.Image(), this)),
      selection_(document, *cbbBank_, *table_),
      rows_(new RowCommands(selection_, dialogs, *this)),
      clipboard_(new ClipboardCommands(selection_, dialogs, *this)),
      moves_(new MoveCommands(selection_, dialogs, *this)),
      actions_(new RowActions(selection_, *rows_, *clipboard_, *moves_, *this))
{
    auto* middle = new QHBoxLayout;
    middle->addWidget(table_, 1);
    auto* operations = new TallArea(new OperationButtons(*rows_), this);
    operations->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    auto* fold = new FoldButton(*operations, QStringLiteral("Memory/ButtonsFolded"),
                                MESSAGE("Show the operation buttons"), MESSAGE("Hide the operation buttons"));
    fold->setObjectName(QStringLiteral("cmbFold"));
    middle->addWidget(fold);
    middle->addWidget(operations);
    auto* page = new QVBoxLayout(this);
    page->addLayout(BuildSelectorRow());
    page->addLayout(middle, 1);
    page->addLayout(BuildTransferRow());
    setTabOrder(finder_, table_);

    ConnectTable();
    connect(filter_, &FilterBox::Changed, this, &MemoryPage::ShowFiltered);
    connect(finder_, &FindBar::Found, this, &MemoryPage::GoToRow);
    connect(finder_, &FindBar::Done, this, &MemoryPage::FocusTable);
    connect(&document, &Document::Replaced, this, &MemoryPage::ShowReplaced);
    connect(&document, &Document::Changed, this, &MemoryPage::ShowChange);
    ShowReplaced();
}

void MemoryPage::ConnectTable()
{
    connect(table_, &MemoryTable::RowChosen, this, &MemoryPage::Modify);
    connect(actions_, &RowActions::ModifyRequested, this, &MemoryPage::Modify);
    connect(table_, &MemoryTable::HintChanged, this, &MemoryPage::HintChanged);
    connect(table_->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &MemoryPage::SelectionChanged);
    connect(rows_, &RowCommands::Noted, this, &MemoryPage::Noted);
    connect(clipboard_, &ClipboardCommands::Written, this, &MemoryPage::NotesEntered);
    connect(table_, &MemoryTable::InsertPressed, rows_, &RowCommands::cmbInsert_Click);
    connect(table_, &MemoryTable::DeletePressed, rows_, &RowCommands::cmbDelete_Click);
    connect(table_, &MemoryTable::TogglePressed, rows_, &RowCommands::Toggle);
    connect(table_, &MemoryTable::RowsDragged, moves_, &MoveCommands::Drag);
    connect(table_, &MemoryTable::Dropped, clipboard_, &ClipboardCommands::Drop);
    // Who copies rows and chooses another bank stands in the list then.
    actions_->AddPasteKeyTo(*cbbBank_);
    table_->SetCellWriter(
        [this](int row, Column column, const CellInput& input) { return WriteCell(row, column, input); });
}

void MemoryPage::Modify()
{
    const RowList selected = selection_.Rows();
    const RowList channels = ChannelsAmong(Image(), selected);
    if (selected.size() > 1 && channels.size() > 1)
        emit ModifySeveralRequested(channels);
    else if (selected.size() == 1 || channels.size() == 1)
        emit ModifyRequested(selected.size() == 1 ? selected.front() : channels.front());
    else if (selection_.Current() >= 0)
        emit ModifyRequested(selection_.Current());
}

void MemoryPage::AddRowItems(QMenu& menu)
{
    actions_->AddTo(menu);
}

void MemoryPage::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::EnabledChange)
        actions_->ShowStates();
}

void MemoryPage::ShowReplaced()
{
    filter_->SwitchOff();
    GoToFirstRow();
    UpDateMemData();
}

void MemoryPage::ShowChange(const ImageChange& change)
{
    if (change.HasMemoryRows() || !change.BankSize.empty() || change.HasSetting(&ReceiverSettings::model)) {
        table_->Refresh(Selector(), filter_->Filter());
        ShowCount();
    }
}

QLayout* MemoryPage::BuildSelectorRow()
{
    cbbBank_->installEventFilter(this);
    connect(cbbBank_, &QComboBox::currentIndexChanged, this, &MemoryPage::cbbBank_Click);

    auto* label = new QLabel(Designed(QT_TR_NOOP("Ban&k:")));
    label->setBuddy(cbbBank_);
    auto* row = new QHBoxLayout;
    row->addWidget(label);
    row->addWidget(cbbBank_);
    row->addWidget(filter_);
    row->addWidget(finder_, 1);
    return row;
}

QLayout* MemoryPage::BuildTransferRow()
{
    const TransferButtons buttons("cmbRxData", Designed(QT_TR_NOOP("Read &Memory")), "cmbTxData",
                                  Designed(QT_TR_NOOP("Write Memor&y")));
    buttons.read->setStatusTip(
        Designed(QT_TR_NOOP("Read the channels of the selected group from the receiver")));
    buttons.write->setStatusTip(
        Designed(QT_TR_NOOP("Write the channels of the selected group to the receiver")));
    connect(buttons.read, &QPushButton::clicked, this, &MemoryPage::ReadRequested);
    connect(buttons.write, &QPushButton::clicked, this, &MemoryPage::WriteRequested);
    return buttons.row;
}

void MemoryPage::UpDateMemData()
{
    table_->UpDateMemData(Selector(), filter_->Filter());
    ShowCount();
}

void MemoryPage::ShowCount()
{
    filter_->ShowCount(static_cast<int>(table_->MemoryRows().size()), selection_.Group().count);
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

RowFilter MemoryPage::Filter() const
{
    return filter_->Filter();
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
    if (!selection_.Group().Contains(rows.front())) {
        const int smallest = SelectorOfRow(Image(), rows.front());
        SelectGroup(holdsAll(smallest) ? smallest : kSelectAll);
    }
    RowList here;
    std::ranges::copy_if(rows, std::back_inserter(here),
                         [group = selection_.Group()](int row) { return group.Contains(row); });
    ShowAllIfHidden(here);
    table_->SelectRows(here, 0);
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
    const int row = selection_.Current();
    const RowList rows = selection_.Rows();
    UpDateMemData();
    table_->SelectMemoryRow(row);
    table_->SelectRows(rows, 0);
    actions_->ShowStates();
    // These two go by row numbers, whatever is shown.
    for (const char* name : {"cmbInsert", "cmbDelete"})
        findChild<QPushButton*>(QLatin1String(name))->setEnabled(!IsFiltered());
}

void MemoryPage::cbbBank_LostFocus()
{
    ChangeFont(*table_);
    UpDateMemData();
}

/// Takes what was typed into a cell, with the editor's checks and messages.
bool MemoryPage::WriteCell(int row, Column column, const CellInput& input)
{
    const Message name(MESSAGE("Edit (%1)"), {selection_.NameOf(row)});
    if (EditorOfCell(Image(), row, column).kind == CellKind::Choice) {
        document_.Edit(name, [&](CloneImage& image) { StoreCellChoice(image, row, column, input.choice); });
        return true;
    }
    CheckedEntry checked = CheckCell(Image(), row, column, Selector(), input.text);
    if (column == kNote && WantsSafeNotes())
        checked.text = SafeNote(checked.text);
    if (checked.verdict == Verdict::Accepted && checked.text != EditorOfCell(Image(), row, column).text)
        document_.Edit(name, [&](CloneImage& image) { StoreCellText(image, row, column, checked.text); });
    if (column == kNote)
        emit NotesEntered({row});
    if (checked.verdict == Verdict::OutOfRange)
        table_->ShowHint(column == kFrequency ? Translated(VerdictText(checked.verdict))
                                              : tr("The offset is below 100 MHz."));
    else
        ShowRefusal(checked.verdict, dialogs_, *table_);
    return checked.verdict == Verdict::Accepted;
}

}  // namespace rqm5
