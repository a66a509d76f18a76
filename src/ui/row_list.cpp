#include "ui/row_list.h"

#include <QCoreApplication>
#include <QStringList>

namespace rqm5 {

QString RowList(const std::vector<std::string>& rows, std::size_t named)
{
    QStringList lines;
    for (std::size_t i = 0; i < rows.size() && i < named; ++i)
        lines.append(QString::fromStdString(rows[i]));
    if (rows.size() > named)
        lines.append(QCoreApplication::translate("RowList", "and %n more", nullptr,
                                                 static_cast<int>(rows.size() - named)));
    return lines.join(QLatin1Char('\n'));
}

}  // namespace rqm5
