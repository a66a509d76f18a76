#include "app/range_news.h"

#include <QCoreApplication>

#include "memory/receiver_range.h"

namespace rqm5 {

void TellOutOfRange(const QStringList& rows, MessageBar& bar)
{
    const QString key = QStringLiteral("range");
    if (rows.isEmpty()) {
        bar.Withdraw(key);
        return;
    }
    constexpr int kNamed = 3;
    const QString named = rows.mid(0, kNamed).join(QStringLiteral(", ")) +
                          (rows.size() > kNamed ? QStringLiteral(", ...") : QString());
    bar.Show(
        {key, MessageBar::tr("Rows outside the receiver's range (%1), which are written as they are: %2 (%3)")
                  .arg(QString::fromUtf8(kReceiverRangeText.data(),
                                         static_cast<qsizetype>(kReceiverRangeText.size())))
                  .arg(rows.size())
                  .arg(named)});
}

}  // namespace rqm5
