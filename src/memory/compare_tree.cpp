#include "memory/compare_tree.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QScrollBar>
#include <algorithm>

#include "language/translated.h"
#include "ui/form_texts.h"

namespace rqm5 {
namespace {

enum TreeColumn { kPlace, kHere, kThere, kWhat, kTreeColumns };

constexpr int kIndexRole = Qt::UserRole;      ///< of a difference in what is shown
constexpr int kGroupRole = Qt::UserRole + 1;  ///< of a group
constexpr int kNone = -1;

/// The sign before a place, for a quick eye; the words are in the last column.
QString SignOf(const DifferentItem& item)
{
    return item.IsMoved()                 ? QStringLiteral("↔ ")
           : item.isHere && !item.isThere ? QStringLiteral("− ")
           : !item.isHere && item.isThere ? QStringLiteral("+ ")
                                          : QStringLiteral("≠ ");
}

Message DifferingFields(const DifferentItem& item)
{
    std::vector<Message> names;
    for (int field = 0; field < kRowFields; ++field)
        if (item.fields.at(static_cast<std::size_t>(field)).differs)
            names.emplace_back(RowFieldName(field));
    return Message::List(std::move(names), ", ");
}

QString Remark(const DifferentItem& item)
{
    if (!item.id.IsRow())
        return {};
    std::vector<Message> remarks;
    if (!item.movedTo.empty())
        remarks.push_back({MESSAGE("Moved: there at %1"), {item.movedTo}});
    else if (item.isHere && !item.isThere)
        remarks.emplace_back(MESSAGE("Only here"));
    if (!item.movedFrom.empty())
        remarks.push_back({item.movedTo.empty() ? MESSAGE("Moved: the one there is at %1 here")
                                                : MESSAGE("the one there is at %1 here"),
                           {item.movedFrom}});
    else if (!item.isHere && item.isThere)
        remarks.emplace_back(MESSAGE("Only there"));
    if (remarks.empty() || (!item.IsMoved() && item.isHere && item.isThere))
        remarks.push_back(DifferingFields(item));
    return Translated(Message::List(std::move(remarks), "; "));
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
    setHeaderLabels({Designed(QT_TR_NOOP("Place")), Designed(QT_TR_NOOP("Open image")),
                     Designed(QT_TR_NOOP("Other side")), Designed(QT_TR_NOOP("What differs"))});
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
    group->setText(kPlace,
                   QStringLiteral("%1 (%2)").arg(Translated(ComparedGroupName(number))).arg(last - first));
    group->setData(kPlace, kIndexRole, kNone);
    group->setData(kPlace, kGroupRole, number);
    group->setFirstColumnSpanned(true);
    SetBold(*group);
    for (std::size_t i = first; i < last; ++i) {
        const DifferentItem& difference = shown[i];
        auto* item = new QTreeWidgetItem(group);
        item->setText(kPlace, SignOf(difference) + Translated(difference.name));
        item->setText(kHere, Translated(difference.here));
        item->setText(kThere, Translated(difference.there));
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
                                  Translated(RowFieldName(field)));
        line->setText(kHere, Translated(pair.first));
        line->setText(kThere, Translated(pair.second));
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

Message CompareTree::NameOf(const std::vector<ItemId>& items) const
{
    std::vector<const DifferentItem*> named;
    for (const DifferentItem& item : shown_)
        if (std::ranges::count(items, item.id) > 0)
            named.push_back(&item);
    if (named.size() == 1)
        return named.front()->name;
    const bool isOneGroup = std::ranges::all_of(
        named, [&](const DifferentItem* item) { return item->group == named.front()->group; });
    const auto count = static_cast<int>(named.size());
    if (isOneGroup && !named.empty())
        return {MESSAGE("%1, %2 differences"), {ComparedGroupName(named.front()->group), count}};
    return {MESSAGE("%1 differences"), {count}};
}

void CompareTree::KeepState()
{
    closedGroups_.clear();
    openRows_.clear();
    selectedRows_.clear();
    for (const QTreeWidgetItem* item : selectedItems())
        if (const auto id = IdOf(item))
            selectedRows_.push_back(*id);
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
    for (int i = 0; i < topLevelItemCount(); ++i)
        for (int j = 0; j < topLevelItem(i)->childCount(); ++j)
            if (QTreeWidgetItem* item = topLevelItem(i)->child(j);
                std::ranges::count(selectedRows_, *IdOf(item)) > 0)
                item->setSelected(true);
    verticalScrollBar()->setValue(scrolled_);
}

}  // namespace rqm5
