#pragma once

#include <QWidget>

#include "memory/paste_plan.h"

class QCheckBox;
class QComboBox;
class QRadioButton;

namespace rqm5 {

/// Where the channels of a list go: to the rows that the list names, or to those from a row on.
class ImportTarget : public QWidget
{
    Q_OBJECT

  public:
    /// \param image  stays alive as long as this
    ImportTarget(const CloneImage& image, QWidget* parent);

    /// A list that names rows goes to them unless somebody has said otherwise.
    void Offer(bool namesRows);

    PastePlan PlanOf(const std::vector<ListedChannel>& channels) const;

  signals:
    void Changed();

  private:
    void FillGroups();
    void FillChannels();
    void ShowState();

    const CloneImage& image_;
    bool isChosen_ = false;  ///< somebody has said where
    QRadioButton* opbImportNamed_;
    QRadioButton* opbImportFrom_;
    QComboBox* cbbImportGroup_;
    QComboBox* cbbImportChannel_;
    QCheckBox* chkImportSkip_;
};

}  // namespace rqm5
