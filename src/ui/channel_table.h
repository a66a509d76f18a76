#pragma once

#include <QTableView>
#include <array>
#include <vector>

namespace rqm5 {

class ColumnWidths;

/// The table of the memory channels or of the VFO bands: one row is current, and rows are
/// selected whole.
/// Table rows are counted from 1; row 0 is the title row.
class ChannelTable : public QTableView
{
    Q_OBJECT

  public:
    static constexpr int kColumns = 10;

    /// \param twips  least widths of the label column and the ten text columns, 1440 to the inch
    ChannelTable(const std::array<int, kColumns + 1>& twips, QWidget* parent);

    /// The current table row, 0 when there is none.
    int CurrentTableRow() const;

    /// Makes a table row current, cut to the rows there are, and selects it from the first to the last
    /// column.
    void SelectTableRow(int tableRow);

    /// All selected table rows, rising.
    std::vector<int> SelectedTableRows() const;

  signals:
    /// The user wants to edit a row: double click, Enter or F2.
    void RowChosen(int tableRow);

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;

  private:
    int Pixels(int twips) const;
    int ColumnWidth(int column) const;
    void FitToFont();
    void StretchNote();
    void SetWidth(int column, int width);

    std::array<int, kColumns + 1> twips_;
    ColumnWidths* widths_;
};

}  // namespace rqm5
