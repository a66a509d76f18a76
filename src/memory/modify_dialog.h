#pragma once

#include <QDialog>
#include <optional>

#include "document/document.h"
#include "memory/row_filter.h"
#include "memory/several_rows.h"
#include "ui/dialogs.h"

class QLineEdit;
class QPushButton;

namespace rqm5 {

class ModifyForm;

/// The channel editor: one memory row or VFO row, or several memory rows. One instance serves the whole run
/// of the program.
class dlgModify : public QDialog
{
    Q_OBJECT

  public:
    dlgModify(Document& document, Dialogs& dialogs, QWidget* parent);

    /// Lets the user edit a memory row (from 0).
    /// \param selector  the bank selector's index: names the row, and the Search Pass list has a rule of
    ///                  its own
    /// \param filter    the rows of the group that Previous and Next go through
    /// \return true when the row was stored
    bool OpenMemory(int row, int selector, RowFilter filter = RowFilter::All);

    /// Lets the user edit a VFO row 0 to 13. Bands that the model region does not have do not open.
    /// \return true when the row was stored
    bool OpenVfo(int row);

    /// Lets the user edit several memory rows at once: fields in which they differ are blank, and only what
    /// is touched is stored. \return true when it was
    bool OpenSeveral(const RowList& rows, int selector);

    const ChannelFields& Grid1Data() const { return Grid1Data_; }  ///< the memory row as it was opened
    const ChannelFields& Grid2Data() const { return Grid2Data_; }  ///< the VFO row as it was opened

  signals:
    /// Previous or Next has brought another row into the editor.
    void RowShown(rqm5::RowId row);

  protected:
    void changeEvent(QEvent* event) override;
    void showEvent(QShowEvent* event) override;

  private:
    /// A number box and the text it was last found good with, or opened with.
    struct Entry
    {
        QLineEdit* box;
        CheckedEntry (dlgModify::*check)(const std::string& typed) const;
        QString checked;
    };

    QPushButton* AddStepButton(const char* name, const QString& text, const QKeySequence& key, int step);
    void ShowTexts();

    bool Run();
    void ShowRow(RowId row);
    void ShowForm(const Message& name, const SharedFields& shown);
    RowList Neighbours() const;
    std::optional<int> Neighbour(int step) const;
    void GoOn(int step, bool storesAlways);
    bool IsTouched() const;
    bool Store();

    CheckedEntry CheckFrequencyBox(const std::string& typed) const;
    CheckedEntry CheckOffsetBox(const std::string& typed) const;
    bool LeaveBox(Entry& entry);
    bool LeaveIfPending(Entry& entry);
    bool IsSeveral() const { return rows_.size() > 1; }
    Message RowName(const char* inGroup) const;
    QWidget* BuildButtons();
    void FocusFrequency();
    void txtFreq_Change(const QString& typed);
    void txtFreq_LostFocus();
    void txtShift_LostFocus();
    void OKButton_Click();

    Document& document_;
    Dialogs& dialogs_;
    ModifyForm* form_;
    QPushButton* PreviousButton_ = nullptr;
    QPushButton* NextButton_ = nullptr;
    QPushButton* OKNextButton_ = nullptr;
    RowId row_;
    RowList rows_;        ///< several rows that are edited at once; else empty
    SharedFields shown_;  ///< what the form held when it was opened
    bool isHeld_ = false;
    int selector_ = 0;
    RowFilter filter_ = RowFilter::All;
    ChannelFields Grid1Data_;
    ChannelFields Grid2Data_;
    Entry frequency_;
    Entry shift_;
    std::optional<ChannelFields> confirmed_;  ///< what the last OK on a memory row stored
    bool mayTickEnable_ = false;              ///< a frequency that is typed enables the row, which is empty
};

}  // namespace rqm5
