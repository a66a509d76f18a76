#include "ui/row_list.h"

#include "language/translated.h"

namespace rqm5 {

Message NamedRows(std::vector<Message> rows, std::size_t named, std::string separator)
{
    if (rows.empty())
        return {};
    if (rows.size() > named) {
        const auto others = static_cast<int>(rows.size() - named);
        rows.resize(named);
        rows.push_back(Message(MESSAGE("and %1 more"), {others}));
    }
    return Message::List(std::move(rows), std::move(separator));
}

QString RowList(const std::vector<Message>& rows, std::size_t named)
{
    return Translated(NamedRows(rows, named));
}

QString RowList(const std::vector<std::string>& rows, std::size_t named)
{
    return RowList(std::vector<Message>(rows.begin(), rows.end()), named);
}

}  // namespace rqm5
