#include "app/range_news.h"

#include <algorithm>

namespace rqm5 {

void TellOutOfRange(const std::vector<Message>& rows, MessageBar& bar)
{
    const QString key = QStringLiteral("range");
    if (rows.empty()) {
        bar.Withdraw(key);
        return;
    }
    constexpr std::ptrdiff_t kNamed = 3;
    std::vector<Message> named(rows.begin(), rows.begin() + std::min(kNamed, std::ssize(rows)));
    if (std::ssize(rows) > kNamed)
        named.emplace_back(std::string("..."));
    bar.Show(
        {key,
         {MESSAGE("Rows outside the receiver's range (0.1 to 1299.995 MHz), which are written as they are: "
                  "%1 (%2)"),
          {static_cast<int>(rows.size()), Message::List(named, ", ")}}});
}

}  // namespace rqm5
