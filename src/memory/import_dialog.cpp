#include "memory/import_dialog.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QSplitter>
#include <QTableView>
#include <QVBoxLayout>

#include "files/list_map.h"
#include "language/translated.h"
#include "memory/import_form.h"
#include "memory/import_target.h"
#include "memory/named_rows.h"
#include "ui/plain_text.h"

namespace rqm5 {
namespace {

constexpr QSize kUsualSize(1000, 640);
constexpr QSize kWindowFrame(8, 36);

struct FieldText
{
    const char* field;
    const char* text;
};

constexpr FieldText kFieldTexts[] = {
    {"none", QT_TRANSLATE_NOOP("rqm5::dlgImport", "(not used)")},
    {"frequency", QT_TRANSLATE_NOOP("rqm5::dlgImport", "Frequency")},
    {"frequency:MHz", QT_TRANSLATE_NOOP("rqm5::dlgImport", "Frequency in MHz")},
    {"frequency:kHz", QT_TRANSLATE_NOOP("rqm5::dlgImport", "Frequency in kHz")},
    {"frequency:Hz", QT_TRANSLATE_NOOP("rqm5::dlgImport", "Frequency in Hz")},
    {"mode", QT_TRANSLATE_NOOP("rqm5::dlgImport", "Mode")},
    {"step", QT_TRANSLATE_NOOP("rqm5::dlgImport", "Step")},
    {"option", QT_TRANSLATE_NOOP("rqm5::dlgImport", "Option")},
    {"secret", QT_TRANSLATE_NOOP("rqm5::dlgImport", "Secret code")},
    {"train", QT_TRANSLATE_NOOP("rqm5::dlgImport", "Train tone")},
    {"tone", QT_TRANSLATE_NOOP("rqm5::dlgImport", "CTCSS tone")},
    {"shift", QT_TRANSLATE_NOOP("rqm5::dlgImport", "Shift")},
    {"offset", QT_TRANSLATE_NOOP("rqm5::dlgImport", "Shift frequency")},
    {"offset:MHz", QT_TRANSLATE_NOOP("rqm5::dlgImport", "Shift frequency in MHz")},
    {"offset:kHz", QT_TRANSLATE_NOOP("rqm5::dlgImport", "Shift frequency in kHz")},
    {"offset:Hz", QT_TRANSLATE_NOOP("rqm5::dlgImport", "Shift frequency in Hz")},
    {"note", QT_TRANSLATE_NOOP("rqm5::dlgImport", "Note")},
    {"skip", QT_TRANSLATE_NOOP("rqm5::dlgImport", "Skip")},
    {"enable", QT_TRANSLATE_NOOP("rqm5::dlgImport", "Enabled")},
    {"bank", QT_TRANSLATE_NOOP("rqm5::dlgImport", "Bank")},
    {"channel", QT_TRANSLATE_NOOP("rqm5::dlgImport", "Channel in the bank")},
    {"row", QT_TRANSLATE_NOOP("rqm5::dlgImport", "Memory row")},
};

}  // namespace

dlgImport::dlgImport(const CloneImage& image, const QString& fileName, std::string bytes, QWidget* parent)
    : QDialog(parent),
      image_(image),
      bytes_(std::move(bytes)),
      planned_(image, nullptr),
      form_(new ImportForm(this)),
      target_(new ImportTarget(image, this)),
      tblImportSource_(MakeSourceTable()),
      lblImportSummary_(new QLabel)
{
    setObjectName(QStringLiteral("dlgImport"));
    setWindowTitle(tr("Import (%1)").arg(VisibleText(fileName)));
    lblImportSummary_->setObjectName(QStringLiteral("lblImportSummary"));
    lblImportSummary_->setTextFormat(Qt::PlainText);
    QTableView* plan = MakePlanTable(planned_, this);
    plan->setObjectName(QStringLiteral("tblImport"));
    plan->setAccessibleName(tr("What goes where"));
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    ok_ = buttons->button(QDialogButtonBox::Ok);
    ok_->setObjectName(QStringLiteral("OKButton"));
    ok_->setText(tr("&Import"));
    buttons->button(QDialogButtonBox::Cancel)->setObjectName(QStringLiteral("CancelButton"));
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* lower = new QWidget;
    auto* lowerLayout = new QVBoxLayout(lower);
    lowerLayout->setContentsMargins({});
    lowerLayout->addWidget(target_);
    lowerLayout->addWidget(lblImportSummary_);
    lowerLayout->addWidget(plan, 1);
    auto* tables = new QSplitter(Qt::Vertical);
    tables->setChildrenCollapsible(false);
    tables->addWidget(tblImportSource_);
    tables->addWidget(lower);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(form_);
    layout->addWidget(tables, 1);
    layout->addWidget(buttons);

    connect(form_, &ImportForm::Changed, this, &dlgImport::ReadList);
    connect(target_, &ImportTarget::Changed, this, &dlgImport::ShowPlan);
    ReadList();
    resize(kUsualSize.boundedTo(screen()->availableSize() - kWindowFrame));
    ok_->setFocus();
}

/// Enter behind the name of a mapping keeps it; it does not import at once.
void dlgImport::keyPressEvent(QKeyEvent* event)
{
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!isEnter || !form_->isAncestorOf(focusWidget()))
        QDialog::keyPressEvent(event);
}

QTableView* dlgImport::MakeSourceTable()
{
    auto* table = new QTableView(this);
    table->setObjectName(QStringLiteral("tblImportSource"));
    table->setAccessibleName(tr("The list as it is read"));
    table->setModel(&source_);
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setTabKeyNavigation(false);
    table->setWordWrap(false);
    table->verticalHeader()->setDefaultSectionSize(table->fontMetrics().height() + 6);
    table->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    return table;
}

void dlgImport::ReadList()
{
    table_ = ReadTable(bytes_, form_->Form());
    channels_ = ReadChannels(table_);
    form_->ShowTable(table_);
    source_.ShowTable(table_);
    ShowAssignments();
    target_->Offer(NamesRows(channels_));
    ShowPlan();
}

void dlgImport::ShowAssignments()
{
    for (int column = 0; column < source_.columnCount(); ++column) {
        QComboBox* box = MakeFieldBox(column);
        tblImportSource_->setIndexWidget(source_.index(0, column), box);
        tblImportSource_->setColumnWidth(column, box->sizeHint().width());
    }
    if (source_.columnCount() > 0)
        tblImportSource_->setRowHeight(
            0, tblImportSource_->indexWidget(source_.index(0, 0))->sizeHint().height());
}

QComboBox* dlgImport::MakeFieldBox(int column)
{
    auto* box = new QComboBox;
    box->setObjectName(QStringLiteral("cbbImportColumn_%1").arg(column));
    box->setAccessibleName(tr("What %1 is").arg(ColumnTitle(table_, column)));
    for (const FieldText& entry : kFieldTexts)
        box->addItem(tr(entry.text), QString::fromLatin1(entry.field));
    const QString field =
        QString::fromStdString(FieldName(table_.columns.at(static_cast<std::size_t>(column))));
    if (box->findData(field) < 0)
        box->addItem(field, field);
    box->setCurrentIndex(box->findData(field));
    // A frequency without a unit in its title goes by the size of the numbers, which is shown.
    if (field == QLatin1String("frequency"))
        box->setItemText(box->currentIndex(), tr("Frequency (%1 by its size)")
                                                  .arg(table_.usualUnit == Unit::Hz    ? tr("Hz")
                                                       : table_.usualUnit == Unit::KHz ? tr("kHz")
                                                                                       : tr("MHz")));
    connect(box, &QComboBox::activated, this,
            [this, box, column] { cbbImportColumn_Click(column, box->currentData().toString()); });
    return box;
}

void dlgImport::cbbImportColumn_Click(int column, const QString& field)
{
    std::vector<ColumnWish> columns = FormOf(table_).columns;
    const auto wanted = FieldNamed(field.toStdString()).value_or(ListColumn{});
    for (ColumnWish& wish : columns)
        if (wish.column.part == wanted.part)
            wish.column = {};
    columns.at(static_cast<std::size_t>(column)).column = wanted;
    // The box that was used goes away with the list that is read again, so that has to wait for it.
    QMetaObject::invokeMethod(
        form_, [this, columns] { form_->Assign(columns); }, Qt::QueuedConnection);
}

void dlgImport::ShowPlan()
{
    plan_ = target_->PlanOf(channels_);
    planned_.ShowPlan(plan_);
    lblImportSummary_->setText(Translated(PlanSummary(image_, plan_)));
    ok_->setEnabled(!RowsWritten(plan_).empty());
}

}  // namespace rqm5
