#include "ui/channel_table_model.h"

#include <QCoreApplication>

#include "image/display_text.h"
#include "language/language.h"

namespace rqm5 {

namespace {

// The titles are a line of words, which files and the command line have, too; here is where a translation
// finds them.
[[maybe_unused]] constexpr const char* kTitleWords[] = {
    QT_TRANSLATE_NOOP("rqm5::ChannelTable", "Frequency"),
    QT_TRANSLATE_NOOP("rqm5::ChannelTable", "Mode"),
    QT_TRANSLATE_NOOP("rqm5::ChannelTable", "Step"),
    QT_TRANSLATE_NOOP("rqm5::ChannelTable", "Option"),
    QT_TRANSLATE_NOOP("rqm5::ChannelTable", "Skip"),
    QT_TRANSLATE_NOOP("rqm5::ChannelTable", "Scrt"),
    QT_TRANSLATE_NOOP("rqm5::ChannelTable", "Carrier"),
    QT_TRANSLATE_NOOP("rqm5::ChannelTable", "Tone"),
    QT_TRANSLATE_NOOP("rqm5::ChannelTable", "Shift"),
    QT_TRANSLATE_NOOP("rqm5::ChannelTable", "ShiftFreq."),
    QT_TRANSLATE_NOOP("rqm5::ChannelTable", "Note"),
};

}  // namespace

ChannelTableModel::ChannelTableModel(std::string_view titles, QObject* parent) : QAbstractTableModel(parent)
{
    const auto text = QString::fromUtf8(titles.data(), static_cast<qsizetype>(titles.size()));
    for (const QString& title : text.split(u'|'))
        titles_ += title.toUtf8();
    connect(&Language::OfProgram(), &Language::Changed, this, [this] {
        emit headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
        if (rowCount() > 0)
            emit headerDataChanged(Qt::Vertical, 0, rowCount() - 1);
    });
}

int ChannelTableModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(labels_.size());
}

int ChannelTableModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(titles_.size()) - 1;
}

QVariant ChannelTableModel::data(const QModelIndex& index, int role) const
{
    // With as many digits behind it everywhere, the point stands in one line.
    if (role == Qt::TextAlignmentRole && (index.column() == kFrequency || index.column() == kShiftFrequency))
        return QVariant(Qt::AlignRight | Qt::AlignVCenter);
    if (!index.isValid() || role != Qt::DisplayRole)
        return {};
    // Notes come from files: what they hold is shown, never obeyed, and no cell is wider than this.
    constexpr int kWidest = 400;
    const std::string text = Cell(index.row(), static_cast<Column>(index.column()));
    return QString::fromStdString(VisibleText(CutToWidth(text, kWidest)));
}

QVariant ChannelTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role == Qt::TextAlignmentRole && orientation == Qt::Horizontal &&
        (section == kFrequency || section == kShiftFrequency))
        return QVariant(Qt::AlignRight | Qt::AlignVCenter);
    if (role != Qt::DisplayRole)
        return {};
    if (orientation == Qt::Horizontal)
        return QCoreApplication::translate("rqm5::ChannelTable", titles_.value(section + 1).constData());
    return QString::fromStdString(labels_.at(static_cast<std::size_t>(section)));
}

void ChannelTableModel::ShowRows(std::vector<std::string> labels)
{
    if (labels.size() != labels_.size()) {
        beginResetModel();
        labels_ = std::move(labels);
        endResetModel();
        return;
    }
    labels_ = std::move(labels);
    if (labels_.empty())
        return;
    emit headerDataChanged(Qt::Vertical, 0, rowCount() - 1);
    emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
}

}  // namespace rqm5
