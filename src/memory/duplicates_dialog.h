#pragma once

#include <QDialog>
#include <QLabel>
#include <QTreeWidget>

#include "document/document.h"

namespace rqm5 {

/// Tools > Duplicates: every frequency that is stored more than once, with its places. It stays open beside
/// the main window and follows what changes there.
class dlgDuplicates : public QDialog
{
    Q_OBJECT

  public:
    dlgDuplicates(const Document& document, QWidget* parent);

    /// Shows the window, or brings it to the front.
    void Present();

  signals:
    /// A place was clicked, or Enter pressed on it; of a frequency it is the first place.
    void PlaceChosen(int memoryRow);

  protected:
    void changeEvent(QEvent* event) override;

  private:
    void Build();
    std::vector<int> ClosedFrequencies() const;
    void ShowDuplicates();
    void FitColumns();

    const Document& document_;
    QLabel* lblDuplicates_;
    QTreeWidget* lstDuplicates_;
};

}  // namespace rqm5
