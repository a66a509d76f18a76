#pragma once

#include <QDialog>
#include <optional>

#include "document/document.h"
#include "memory/channel_editor.h"
#include "ui/dialogs.h"

class QLineEdit;

namespace rqm5 {

class ModifyForm;

/// The channel editor: one memory row or one VFO row. One instance serves the whole run of the program.
class dlgModify : public QDialog
{
    Q_OBJECT

  public:
    dlgModify(Document& document, Dialogs& dialogs, QWidget* parent);

    /// Lets the user edit a memory row (from 0).
    /// \param selector  the bank selector's index: names the row, and the Search Pass list has a rule of
    ///                  its own
    /// \return true when the row was stored
    bool OpenMemory(int row, int selector);

    /// Lets the user edit a VFO row 0 to 13. Bands that the model region does not have do not open.
    /// \return true when the row was stored
    bool OpenVfo(int row);

    const ChannelFields& Grid1Data() const { return Grid1Data_; }  ///< the memory row as it was opened
    const ChannelFields& Grid2Data() const { return Grid2Data_; }  ///< the VFO row as it was opened

  protected:
    void showEvent(QShowEvent* event) override;

  private:
    /// A number box and the text it was last found good with, or opened with.
    struct Entry
    {
        QLineEdit* box;
        CheckedEntry (*check)(const CloneImage&, RowId, int selector, const std::string&);
        QString checked;
    };

    bool Open(RowId row, int selector, ChannelFields& stored);
    bool LeaveBox(Entry& entry);
    bool LeaveIfPending(Entry& entry);
    void ShowRefusal(Verdict verdict);
    QString RowName() const;
    QWidget* BuildButtons();
    void txtFreq_Change(const QString& typed);
    void txtFreq_LostFocus();
    void txtShift_LostFocus();
    void OKButton_Click();

    Document& document_;
    Dialogs& dialogs_;
    ModifyForm* form_;
    RowId row_;
    int selector_ = 0;
    ChannelFields Grid1Data_;
    ChannelFields Grid2Data_;
    Entry frequency_;
    Entry shift_;
    std::optional<ChannelFields> confirmed_;  ///< what the last OK on a memory row stored
    bool mayTickEnable_ = false;              ///< a frequency that is typed enables the row, which is empty
};

}  // namespace rqm5
