#include "memory/compare_tree.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QScrollBar>
#include <algorithm>

namespace rqm5 {
namespace {

enum TreeColumn { kPlace, kHere, kThere, kWhat, kTreeColumns };

constexpr int kIndexRole = Qt::UserRole;      ///< of a difference in what is shown
constexpr int kGroupRole = Qt::UserRole + 1;  ///< of a group
constexpr int kNone = -1;

QString Text(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

/// The sign before a place, for a quick eye; the words are in the last column.
QString SignOf(const DifferentItem& item)
{
    return item.IsMoved()                 ? QStringLiteral("↔ ")
           : item.isHere && !item.isThere ? QStringLiteral("− ")
           : !item.isHere && item.isThere ? QStringLiteral("+ ")
                                          : QStringLiteral("≠ ");
}

QString DifferingFields(const DifferentItem& item)
{
    QStringList names;
    for (int field = 0; field < kRowFields; ++field)
        if (item.fields.at(static_cast<std::size_t>(field)).differs)
            names << Text(RowFieldName(field));
    return names.join(QStringLiteral(", "));
}

QString Remark(const DifferentItem& item)
{
    if (!item.id.IsRow())
        return {};
    QStringList remarks;
    if (!item.movedTo.empty())
        remarks << CompareTree::tr("Moved: there at %1").arg(Text(item.movedTo));
    else if (item.isHere && !item.isThere)
        remarks << CompareTree::tr("Only here");
    if (!item.movedFrom.empty())
        remarks << (item.movedTo.empty() ? CompareTree::tr("Moved: the one there is at %1 here")
                                         : CompareTree::tr("the one there is at %1 here"))
                       .arg(Text(item.movedFrom));
    else if (!item.isHere && item.isThere)
        remarks << CompareTree::tr("Only there");
    if (remarks.isEmpty() || (!item.IsMoved() && item.isHere && item.isThere))
        remarks << DifferingFields(item);
    return remarks.join(QStringLiteral("; "));
}

void SetBold(QTreeWidgetItem& item)
{
    QFont bold;
    bold.setBold(true);
    for (int column = 0; column < kTreeColumns; ++column)
        item.setFont(column, bold);
}

}  // namespace

CompareTree::CompareTree(QWidget* parent) : QTreeWidget(parent)
{
    setColumnCount(kTreeColumns);
    setHeaderLabels({tr("Place"), tr("Open image"), tr("Other side"), tr("What differs")});
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setAlternatingRowColors(true);
    // A double click goes to the row.
    setExpandsOnDoubleClick(false);
    const int letter = fontMetrics().averageCharWidth();
    const int widths[] = {34, 32, 32};
    for (int i = 0; i < kWhat; ++i)
        setColumnWidth(i, letter * widths[i]);
    connect(this, &QTreeWidget::itemExpanded, this, &CompareTree::ShowFields);
    // Not itemActivated: on some desktops that is a single click.
    connect(this, &QTreeWidget::itemDoubleClicked, this, &CompareTree::Activate);
}

void CompareTree::ShowItems(const Comparison& comparison, int group, int filter)
{
    KeepState();
    clear();
    shown_.clear();
    for (const DifferentItem& item : comparison)
        if ((group == kAllGroups || item.group == group) && IsShown(item, filter))
            shown_.push_back(item);
    for (std::size_t first = 0; first < shown_.size();) {
        std::size_t last = first;
        while (last < shown_.size() && shown_[last].group == shown_[first].group)
            ++last;
        AddGroup(shown_, first, last);
        first = last;
    }
    RestoreState();
}

void CompareTree::AddGroup(const Comparison& shown, std::size_t first, std::size_t last)
{
    const int number = shown[first].group;
    auto* group = new QTreeWidgetItem(this);
    group->setText(kPlace, tr("%1 (%2)").arg(Text(ComparedGroupName(number))).arg(last - first));
    group->setData(kPlace, kIndexRole, kNone);
    group->setData(kPlace, kGroupRole, number);
    group->setFirstColumnSpanned(true);
    SetBold(*group);
    for (std::size_t i = first; i < last; ++i) {
        const DifferentItem& difference = shown[i];
        auto* item = new QTreeWidgetItem(group);
        item->setText(kPlace, SignOf(difference) + Text(difference.name));
        item->setText(kHere, Text(difference.here));
        item->setText(kThere, Text(difference.there));
        item->setText(kWhat, Remark(difference));
        item->setToolTip(kWhat, item->text(kWhat));
        item->setData(kPlace, kIndexRole, static_cast<int>(i));
        // A thousand rows have a dozen fields each; they are made when somebody looks.
        if (difference.id.IsRow())
            item->setChildIndicatorPolicy(QTreeWidgetItem::ShowIndicator);
    }
    group->setExpanded(!std::ranges::count(closedGroups_, number));
}

void CompareTree::ShowFields(QTreeWidgetItem* item)
{
    const DifferentItem* difference = ItemAt(item);
    if (difference == nullptr || item->childCount() > 0 || !difference->id.IsRow())
        return;
    for (int field = 0; field < kRowFields; ++field) {
        if (field == kEnabledField && difference->id.kind == ItemKind::VfoRow)
            continue;
        const FieldPair& pair = difference->fields.at(static_cast<std::size_t>(field));
        auto* line = new QTreeWidgetItem(item);
        line->setText(kPlace, (pair.differs ? QStringLiteral("≠ ") : QStringLiteral("   ")) +
                                  Text(RowFieldName(field)));
        line->setText(kHere, Text(pair.first));
        line->setText(kThere, Text(pair.second));
        line->setData(kPlace, kIndexRole, item->data(kPlace, kIndexRole));
        if (!pair.differs)
            continue;
        line->setText(kWhat, tr("differs"));
        SetBold(*line);
    }
}

const DifferentItem* CompareTree::ItemAt(const QTreeWidgetItem* item) const
{
    const int index = item->data(kPlace, kIndexRole).toInt();
    return index == kNone ? nullptr : &shown_.at(static_cast<std::size_t>(index));
}

std::optional<ItemId> CompareTree::IdOf(const QTreeWidgetItem* item) const
{
    const DifferentItem* difference = item != nullptr ? ItemAt(item) : nullptr;
    return difference != nullptr ? std::optional(difference->id) : std::nullopt;
}

void CompareTree::keyPressEvent(QKeyEvent* event)
{
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isEnter && currentItem() != nullptr)
        Activate(currentItem());
    else
        QTreeWidget::keyPressEvent(event);
}

void CompareTree::Activate(QTreeWidgetItem* item)
{
    if (const auto id = IdOf(item))
        emit PlaceChosen(*id);
    else
        item->setExpanded(!item->isExpanded());
}

std::vector<ItemId> CompareTree::SelectedItems() const
{
    std::vector<bool> isSelected(shown_.size(), false);
    for (const QTreeWidgetItem* item : selectedItems()) {
        const int index = item->data(kPlace, kIndexRole).toInt();
        const int group = item->data(kPlace, kGroupRole).toInt();
        for (std::size_t i = 0; i < shown_.size(); ++i)
            if (index == kNone ? shown_[i].group == group : static_cast<int>(i) == index)
                isSelected[i] = true;
    }
    std::vector<ItemId> items;
    for (std::size_t i = 0; i < shown_.size(); ++i)
        if (isSelected[i])
            items.push_back(shown_[i].id);
    return items;
}

std::vector<ItemId> CompareTree::ShownItems() const
{
    std::vector<ItemId> items;
    for (const DifferentItem& item : shown_)
        items.push_back(item.id);
    return items;
}

QString CompareTree::NameOf(const std::vector<ItemId>& items) const
{
    std::vector<const DifferentItem*> named;
    for (const DifferentItem& item : shown_)
        if (std::ranges::count(items, item.id) > 0)
            named.push_back(&item);
    if (named.size() == 1)
        return Text(named.front()->name);
    const bool isOneGroup = std::ranges::all_of(
        named, [&](const DifferentItem* item) { return item->group == named.front()->group; });
    return isOneGroup && !named.empty()
               ? tr("%1, %2 differences").arg(Text(ComparedGroupName(named.front()->group))).arg(named.size())
               : tr("%1 differences").arg(named.size());
}

void CompareTree::KeepState()
{
    closedGroups_.clear();
    openRows_.clear();
    current_ = IdOf(currentItem());
    scrolled_ = verticalScrollBar()->value();
    for (int i = 0; i < topLevelItemCount(); ++i) {
        const QTreeWidgetItem* group = topLevelItem(i);
        if (!group->isExpanded())
            closedGroups_.push_back(group->data(kPlace, kGroupRole).toInt());
        for (int j = 0; j < group->childCount(); ++j)
            if (group->child(j)->isExpanded())
                openRows_.push_back(*IdOf(group->child(j)));
    }
}

void CompareTree::RestoreState()
{
    QTreeWidgetItem* current = nullptr;
    for (int i = 0; i < topLevelItemCount(); ++i)
        for (int j = 0; j < topLevelItem(i)->childCount(); ++j) {
            QTreeWidgetItem* item = topLevelItem(i)->child(j);
            const auto id = IdOf(item);
            if (std::ranges::count(openRows_, *id) > 0)
                item->setExpanded(true);
            // What was taken is gone; what comes behind it is next.
            if (current == nullptr || (current_ && IdOf(current) < current_))
                current = item;
        }
    if (current != nullptr)
        setCurrentItem(current);
    verticalScrollBar()->setValue(scrolled_);
}

}  // namespace rqm5
