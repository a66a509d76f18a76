#include "memory/plan_table.h"

#include <QBrush>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QHeaderView>
#include <QPalette>
#include <QTableView>
#include <algorithm>
#include <utility>

#include "image/display_text.h"
#include "language/translated.h"
#include "memory/row_names.h"
#include "ui/plain_text.h"

namespace rqm5 {
namespace {

enum PlanColumn { kTarget, kPresent, kComing, kRemark, kPlanColumns };

constexpr const char* kTitles[kPlanColumns] = {QT_TRANSLATE_NOOP("rqm5::PlanTableModel", "Row"),
                                               QT_TRANSLATE_NOOP("rqm5::PlanTableModel", "Holds now"),
                                               QT_TRANSLATE_NOOP("rqm5::PlanTableModel", "What comes"),
                                               QT_TRANSLATE_NOOP("rqm5::PlanTableModel", "Remark")};

constexpr int kRowsMeasured = 100;

/// The columns in front are as wide as what stands in them, within bounds: reasons are long, and get the
/// rest.
void FitColumns(QTableView& table)
{
    const int letter = table.fontMetrics().averageCharWidth();
    const QAbstractItemView& cells = table;
    for (const auto& [column, mostLetters] : {std::pair(kTarget, 24), {kPresent, 34}, {kComing, 34}}) {
        const int title = table.horizontalHeader()->sectionSizeHint(column);
        const int wanted = std::max(title, cells.sizeHintForColumn(column));
        table.setColumnWidth(column, std::min(wanted, mostLetters * letter));
    }
}

}  // namespace

PlanTableModel::PlanTableModel(const CloneImage& image, QObject* parent)
    : QAbstractTableModel(parent), image_(image)
{
}

void PlanTableModel::ShowPlan(const PastePlan& plan)
{
    beginResetModel();
    plan_ = plan;
    endResetModel();
}

int PlanTableModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(plan_.size());
}

int PlanTableModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : kPlanColumns;
}

/// "145.500000 FM 12.5KHz Tone 88.5Hz, the note"
QString PlanTableModel::Contents(const Channel& channel) const
{
    if (!channel.HasChannel())
        return tr("(empty)");
    std::string text = CellText(channel, RowKind::Memory, kNoRegion, kFrequency);
    for (const Column column : {kMode, kStep})
        text += " " + CellText(channel, RowKind::Memory, kNoRegion, column);
    if (!channel.note.empty())
        text += ", " + VisibleText(channel.note);
    return QString::fromStdString(text);
}

QString PlanTableModel::TextOf(const PlannedRow& planned, int column) const
{
    const bool hasRow = planned.row != PlannedRow::kNowhere;
    switch (column) {
        case kTarget: {
            if (!hasRow)
                return {};
            const Message place = PlaceOfRow(image_, planned.row);
            return place.empty() ? tr("row %1").arg(planned.row) : Translated(place);
        }
        case kPresent:
            return hasRow ? Contents(image_.MemData(planned.row)) : QString();
        case kComing:
            return planned.IsTaken() || planned.channel.HasChannel() ? Contents(planned.channel)
                                                                     : Translated(planned.source);
        default:
            break;
    }
    const QString source =
        planned.source.empty() ? QString() : Translated(planned.source) + QStringLiteral(": ");
    if (!planned.IsTaken())
        return tr("Refused: %1").arg(source + VisibleText(Translated(planned.refusal)));
    return planned.remark.empty() ? QString() : source + VisibleText(Translated(planned.remark));
}

QVariant PlanTableModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return {};
    const PlannedRow& planned = plan_.at(static_cast<std::size_t>(index.row()));
    if (role == Qt::DisplayRole || role == Qt::ToolTipRole)
        return TextOf(planned, index.column());
    if (role == Qt::FontRole && !planned.IsTaken()) {
        QFont bold;
        bold.setBold(true);
        return bold;
    }
    return {};
}

QVariant PlanTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role != Qt::DisplayRole || orientation != Qt::Horizontal)
        return {};
    return tr(kTitles[section]);
}

QTableView* MakePlanTable(PlanTableModel& model, QWidget* parent)
{
    auto* table = new QTableView(parent);
    table->setModel(&model);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setSelectionMode(QAbstractItemView::SingleSelection);
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setTabKeyNavigation(false);
    table->setWordWrap(false);
    table->verticalHeader()->hide();
    const int line = table->fontMetrics().height();
    table->verticalHeader()->setDefaultSectionSize(line + 6);
    table->horizontalHeader()->setStretchLastSection(true);
    table->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    table->horizontalHeader()->setResizeContentsPrecision(kRowsMeasured);
    QObject::connect(&model, &QAbstractItemModel::modelReset, table, [table] { FitColumns(*table); });
    FitColumns(*table);
    return table;
}

Message PlanSummary(const CloneImage& image, const PastePlan& plan)
{
    const auto count = [&plan](auto fits) { return static_cast<int>(std::ranges::count_if(plan, fits)); };
    const auto taken = count([](const PlannedRow& row) { return row.IsTaken(); });
    const auto over =
        count([&](const PlannedRow& row) { return row.IsTaken() && image.MemData(row.row).HasChannel(); });
    const auto refused = static_cast<int>(plan.size()) - taken;
    const Message written =
        over == 0 ? Message(MESSAGE("Rows that are written: %1"), {taken})
        : over == 1
            ? Message(MESSAGE("Rows that are written: %1, of which 1 holds a channel now"), {taken})
            : Message(MESSAGE("Rows that are written: %1, of which %2 hold a channel now"), {taken, over});
    return refused == 0 ? written : Message(MESSAGE("%1; refused: %2"), {written, refused});
}

}  // namespace rqm5
