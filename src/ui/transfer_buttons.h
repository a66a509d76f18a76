#pragma once

#include <QHBoxLayout>
#include <QPushButton>

namespace rqm5 {

/// A row with a Read and a Write button at its right end, as every page has one at its foot.
struct TransferButtons
{
    TransferButtons(const char* readName, const QString& readText, const char* writeName,
                    const QString& writeText)
        : read(new QPushButton(readText)), write(new QPushButton(writeText)), row(new QHBoxLayout)
    {
        read->setObjectName(QLatin1String(readName));
        write->setObjectName(QLatin1String(writeName));
        row->addStretch();
        row->addWidget(read);
        row->addWidget(write);
    }

    QPushButton* read;
    QPushButton* write;
    QHBoxLayout* row;
};

}  // namespace rqm5
