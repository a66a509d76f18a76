#pragma once

#include <QHeaderView>
#include <QObject>
#include <vector>

namespace rqm5 {

/// Remembers, from run to run, the widths that a user dragged a table's columns to. The menu of its titles
/// forgets them again.
class ColumnWidths : public QObject
{
    Q_OBJECT

  public:
    /// Belongs to the titles. What the widths are kept as goes by the table's name.
    ColumnWidths(QHeaderView& titles, int columns);

    /// Reads what was kept under the name that the table has by now.
    void Load();

    /// The width that the user gave a column, 0 for none.
    int Dragged(int column) const { return widths_[static_cast<std::size_t>(column)]; }

    /// While the table itself sets widths, nothing is remembered.
    void SetFitting(bool isFitting) { isFitting_ = isFitting; }

  signals:
    void UserResized(int column);
    void Forgotten();

  private:
    QString Key() const;
    void Save() const;
    void Section_Resized(int column, int width);
    void popUsualWidths_Click();

    QHeaderView& titles_;
    std::vector<int> widths_;
    bool isFitting_ = false;
};

}  // namespace rqm5
