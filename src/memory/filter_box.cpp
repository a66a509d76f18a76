#include "memory/filter_box.h"

#include <QHBoxLayout>

namespace rqm5 {

FilterBox::FilterBox(QWidget* parent)
    : QWidget(parent), cbbFilter_(new QComboBox(this)), lblShown_(new QLabel(this))
{
    // In the order of RowFilter.
    for (const QString& text : {tr("All rows"), tr("With a channel"), tr("Enabled"), tr("Disabled"),
                                tr("Skipped"), tr("With a note"), tr("Duplicates")})
        cbbFilter_->addItem(text);
    cbbFilter_->setObjectName(QStringLiteral("cbbFilter"));
    cbbFilter_->setStatusTip(tr("Which rows of the group the table shows"));
    lblShown_->setObjectName(QStringLiteral("lblShown"));
    auto* label = new QLabel(tr("Sh&ow:"), this);
    label->setBuddy(cbbFilter_);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    for (QWidget* part : std::initializer_list<QWidget*>{label, cbbFilter_, lblShown_})
        row->addWidget(part);
    connect(cbbFilter_, &QComboBox::currentIndexChanged, this, &FilterBox::Changed);
}

void FilterBox::ShowCount(int shown, int all)
{
    lblShown_->setVisible(IsOn());
    lblShown_->setText(tr("%1 of %2 rows").arg(shown).arg(all));
}

}  // namespace rqm5
