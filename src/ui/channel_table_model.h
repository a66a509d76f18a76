#pragma once

#include <QAbstractTableModel>
#include <QByteArrayList>
#include <string>
#include <string_view>
#include <vector>

#include "image/channel.h"

namespace rqm5 {

/// A table of channel rows: ten text columns under their titles, a label before each row. Holds no
/// channel data; every cell is asked for when it is drawn.
class ChannelTableModel : public QAbstractTableModel
{
    Q_OBJECT

  public:
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  protected:
    /// \param titles  separated by "|", the first for the column of labels
    ChannelTableModel(std::string_view titles, QObject* parent);

    /// Takes the rows' labels and has every cell drawn anew. The views' current row survives as long as
    /// the number of rows stays the same.
    void ShowRows(std::vector<std::string> labels);

    /// The text of a cell, row from 0.
    virtual std::string Cell(int row, Column column) const = 0;

  private:
    QByteArrayList titles_;  ///< as designed
    std::vector<std::string> labels_;
};

}  // namespace rqm5
