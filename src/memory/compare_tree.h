#pragma once

#include <QTreeWidget>
#include <optional>
#include <vector>

#include "memory/comparison.h"

namespace rqm5 {

/// The tree of a comparison: groups, in them what differs, and below each row its fields on both sides. What
/// differs is marked by a sign and by words.
class CompareTree : public QTreeWidget
{
    Q_OBJECT

  public:
    explicit CompareTree(QWidget* parent);

    /// Shows those of the differences that a group (or kAllGroups) and a filter leave. What was open stays
    /// open, and the current place stays current, or what follows it.
    void ShowItems(const Comparison& comparison, int group, int filter);

    static constexpr int kAllGroups = -1;

    /// What is selected, of groups what is shown of them; in the order shown.
    std::vector<ItemId> SelectedItems() const;

    /// All that is shown.
    std::vector<ItemId> ShownItems() const;

    /// What an item of the tree is about; nothing for a group.
    std::optional<ItemId> IdOf(const QTreeWidgetItem* item) const;

    /// Names a selection in a step: "Bank 0, channel 12", "Bank 3, 7 differences", "9 differences".
    Message NameOf(const std::vector<ItemId>& items) const;

  signals:
    /// Double click or Enter on a row or on one of its fields.
    void PlaceChosen(rqm5::ItemId id);

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void AddGroup(const Comparison& shown, std::size_t first, std::size_t last);
    void ShowFields(QTreeWidgetItem* item);
    void Activate(QTreeWidgetItem* item);
    void KeepState();
    void RestoreState();
    const DifferentItem* ItemAt(const QTreeWidgetItem* item) const;

    Comparison shown_;
    std::vector<int> closedGroups_;
    std::vector<ItemId> openRows_;
    std::vector<ItemId> selectedRows_;
    std::optional<ItemId> current_;
    int scrolled_ = 0;
};

}  // namespace rqm5
