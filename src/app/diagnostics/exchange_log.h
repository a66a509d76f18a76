#pragma once

#include <QAbstractTableModel>
#include <QTimer>
#include <chrono>
#include <deque>
#include <string>

#include "link/radio_link.h"

namespace rqm5 {

/// One command and what came back.
struct Exchange
{
    qint64 time = 0;  ///< when it ended, milliseconds since 1970 in UTC
    std::string command;
    std::string received;
    std::chrono::microseconds took{0};
    bool portFailed = false;
};

/// The last exchanges of a radio link, whoever made them, for a table and for a text file.
///
/// A transfer makes thousands of them, so the table hears of new ones a few times a second only.
class ExchangeLog : public QAbstractTableModel
{
    Q_OBJECT

  public:
    static constexpr std::size_t kKept = 2000;  ///< more than a whole read of the receiver
    enum Columns { kTime, kCommand, kReply, kTook, kLogColumns };

    ExchangeLog(RadioLink& link, QObject* parent);

    void Clear();

    /// Every exchange kept, one a line: time, milliseconds, command, reply, separated by tabs.
    QString Text();

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  private:
    void Add(const std::string& command, bool portFailed);
    void ShowPending();

    RadioLink& link_;
    std::deque<Exchange> shown_;
    std::deque<Exchange> pending_;
    QTimer refresh_;
};

}  // namespace rqm5
