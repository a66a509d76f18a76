#include "ui/column_widths.h"

#include <QAction>
#include <algorithm>

#include "ui/form_texts.h"
#include "ui/settings_store.h"

namespace rqm5 {

ColumnWidths::ColumnWidths(QHeaderView& titles, int columns)
    : QObject(&titles), titles_(titles), widths_(static_cast<std::size_t>(columns))
{
    connect(&titles, &QHeaderView::sectionResized, this,
            [this](int column, int /*before*/, int width) { Section_Resized(column, width); });
    auto* usual = new QAction(Designed(QT_TR_NOOP("&Usual Column Widths")), &titles);
    usual->setObjectName(QStringLiteral("popUsualWidths"));
    SetTextContext(*usual, "rqm5::ColumnWidths");
    connect(usual, &QAction::triggered, this, &ColumnWidths::popUsualWidths_Click);
    titles.addAction(usual);
    titles.setContextMenuPolicy(Qt::ActionsContextMenu);
}

QString ColumnWidths::Key() const
{
    return QStringLiteral("Columns/") + titles_.parent()->objectName();
}

void ColumnWidths::Load()
{
    const QStringList kept = SettingsStore().value(Key()).toStringList();
    // What stands there may have been written by anyone.
    constexpr int kWidest = 4000;
    for (std::size_t i = 0; i < widths_.size() && i < static_cast<std::size_t>(kept.size()); ++i)
        widths_[i] = std::clamp(kept[static_cast<qsizetype>(i)].toInt(), 0, kWidest);
}

void ColumnWidths::Save() const
{
    QStringList kept;
    for (const int width : widths_)
        kept += QString::number(width);
    SettingsStore().setValue(Key(), kept);
}

void ColumnWidths::Section_Resized(int column, int width)
{
    if (isFitting_)
        return;
    widths_[static_cast<std::size_t>(column)] = width;
    Save();
    emit UserResized(column);
}

void ColumnWidths::popUsualWidths_Click()
{
    std::ranges::fill(widths_, 0);
    SettingsStore().remove(Key());
    emit Forgotten();
}

}  // namespace rqm5
