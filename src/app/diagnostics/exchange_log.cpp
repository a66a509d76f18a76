#include "app/diagnostics/exchange_log.h"

#include <QDateTime>

#include "language/language.h"
#include "ui/plain_text.h"

namespace rqm5 {
namespace {

constexpr std::chrono::milliseconds kRefreshPause{100};
/// What the table shows; tool tips and the saved log have the date too.
constexpr QLatin1String kTimeOfDay("HH:mm:ss.zzz");
constexpr std::size_t kReceivedAtMost = 1024;  ///< of one reply; a line gone mad must not fill the memory

QString Visible(const std::string& text)
{
    return QString::fromStdString(VisibleText(text));
}

QString CellText(const Exchange& exchange, int column)
{
    switch (column) {
        case ExchangeLog::kTime:
            return QDateTime::fromMSecsSinceEpoch(exchange.time)
                .toString(QStringLiteral("yyyy-MM-dd HH:mm:ss.zzz"));
        case ExchangeLog::kCommand:
            return Visible(exchange.command);
        case ExchangeLog::kReply:
            return exchange.portFailed ? ExchangeLog::tr("(the port failed)") : Visible(exchange.received);
        default:
            return QString::number(static_cast<double>(exchange.took.count()) / 1000.0, 'f', 3);
    }
}

}  // namespace

ExchangeLog::ExchangeLog(RadioLink& link, QObject* parent) : QAbstractTableModel(parent), link_(link)
{
    refresh_.setSingleShot(true);
    refresh_.setInterval(kRefreshPause);
    connect(&refresh_, &QTimer::timeout, this, &ExchangeLog::ShowPending);
    connect(&link_, &RadioLink::Exchanged, this, &ExchangeLog::Add);
    connect(&Language::OfProgram(), &Language::Changed, this, [this] {
        emit headerDataChanged(Qt::Horizontal, 0, kLogColumns - 1);
        if (rowCount() > 0)
            emit dataChanged(index(0, kReply), index(rowCount() - 1, kReply));
    });
}

void ExchangeLog::Add(const std::string& command, bool portFailed)
{
    pending_.push_back({QDateTime::currentMSecsSinceEpoch(), command,
                        link_.LastReceived().substr(0, kReceivedAtMost), link_.LastDuration(), portFailed});
    if (pending_.size() > kKept)
        pending_.pop_front();
    if (!refresh_.isActive())
        refresh_.start();
}

void ExchangeLog::ShowPending()
{
    if (pending_.empty())
        return;
    const std::size_t total = shown_.size() + pending_.size();
    const std::size_t forgotten = std::min(total - std::min(total, kKept), shown_.size());
    if (forgotten > 0) {
        beginRemoveRows({}, 0, static_cast<int>(forgotten) - 1);
        shown_.erase(shown_.begin(), shown_.begin() + static_cast<std::ptrdiff_t>(forgotten));
        endRemoveRows();
    }
    const int first = rowCount();
    beginInsertRows({}, first, first + static_cast<int>(pending_.size()) - 1);
    std::move(pending_.begin(), pending_.end(), std::back_inserter(shown_));
    pending_.clear();
    endInsertRows();
}

void ExchangeLog::Clear()
{
    beginResetModel();
    shown_.clear();
    pending_.clear();
    endResetModel();
}

QString ExchangeLog::Text()
{
    ShowPending();
    QString text;
    for (const Exchange& exchange : shown_) {
        const QStringList cells = {CellText(exchange, kTime),
                                   CellText(exchange, kTook) + QStringLiteral(" ms"),
                                   CellText(exchange, kCommand), CellText(exchange, kReply)};
        text += cells.join(QLatin1Char('\t')) + QLatin1Char('\n');
    }
    return text;
}

int ExchangeLog::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(shown_.size());
}

int ExchangeLog::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : kLogColumns;
}

QVariant ExchangeLog::data(const QModelIndex& index, int role) const
{
    if (role == Qt::TextAlignmentRole && index.column() == kTook)
        return QVariant(Qt::AlignRight | Qt::AlignVCenter);
    if (role != Qt::DisplayRole && role != Qt::ToolTipRole)
        return {};
    const Exchange& exchange = shown_.at(static_cast<std::size_t>(index.row()));
    if (role == Qt::DisplayRole && index.column() == kTime)
        return QDateTime::fromMSecsSinceEpoch(exchange.time).toString(QString(kTimeOfDay));
    const QString text = CellText(exchange, index.column());
    return role == Qt::ToolTipRole ? PlainToolTip(text) : text;
}

QVariant ExchangeLog::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role != Qt::DisplayRole || orientation != Qt::Horizontal)
        return {};
    const QString titles[kLogColumns] = {tr("Time"), tr("Command"), tr("Reply"), tr("ms")};
    return titles[section];
}

}  // namespace rqm5
