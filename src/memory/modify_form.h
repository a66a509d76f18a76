#pragma once

#include <QWidget>

#include "memory/several_rows.h"
#include "ui/option_group.h"

class QBoxLayout;
class QCheckBox;
class QComboBox;
class QFormLayout;
class QLabel;
class QLineEdit;

namespace rqm5 {

class NoteLine;

/// The controls of the channel editor. What they hold goes in and out as ChannelFields.
class ModifyForm : public QWidget
{
    Q_OBJECT

  public:
    explicit ModifyForm(QWidget* parent);

    /// \param isSeveral  of several rows: what is blank says that they differ
    void ShowShared(const SharedFields& shared, bool isSeveral);
    SharedFields Shared() const;

    /// Shows what a kind of row has, and disables what the model region does not have.
    void SetAvailable(bool isMemory, const Region& region);

    /// The kind of row, its name and the frequencies that it takes.
    void ShowRow(const QString& kind, const QString& name, const QString& range);

    /// The next empty channel starts with the values confirmed here.
    bool IsHeld() const;

    QLineEdit* txtFreq() const { return txtFreq_; }
    QLineEdit* txtShift() const { return txtShift_; }
    QCheckBox* chkEnable() const { return chkEnable_; }

    /// Makes room for the texts as they are now.
    void FitTexts();

    /// Puts a button at the right end of the row's name.
    void AddToTitle(QWidget* button);

    /// The row of check boxes, for the dialog to put below the form.
    QBoxLayout* TakeLastRow() const { return lastRow_; }

  private:
    void ShowFields(const ChannelFields& fields);
    ChannelFields Fields() const;
    QLayout* BuildTitle();
    QLayout* BuildFrequency();
    QLayout* BuildChoices();
    QWidget* BuildCodes();
    QLayout* BuildShift();
    QLayout* BuildNote();
    void BuildChecks();

    QLabel* lblMode_;
    QLabel* lblCH_;
    QLabel* lblMHz_;
    QLineEdit* txtFreq_;
    QLineEdit* txtShift_;
    QCheckBox* chkHold_;
    QBoxLayout* titleRow_;
    QBoxLayout* lastRow_;
    OptionGroup* opbWave_;
    OptionGroup* opbStep_;
    OptionGroup* opbTone_;
    OptionGroup* opbSift_;
    QFormLayout* codes_ = nullptr;
    QComboBox* cbbSec_;
    QComboBox* cbbAir_;
    QComboBox* cbbTxTone_;
    QLabel* lblNote_;
    QLineEdit* txtNote_;
    NoteLine* noteLine_;
    QCheckBox* chkSkip_;
    QCheckBox* chkEnable_;
};

}  // namespace rqm5
