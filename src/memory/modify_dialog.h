#pragma once

#include <QDialog>
#include <optional>

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
    dlgModify(CloneImage& image, Dialogs& dialogs, QWidget* parent);

    /// Lets the user edit a memory row (from 0).
    /// \param selector  the bank selector's index: names the row, and the Search Pass list has a rule of
    ///                  its own
    /// \return true when the row was stored
    bool OpenMemory(int row, int selector);

    /// Lets the user edit a VFO row 0 to 13. Bands that the model region does not have do not open.
    /// \return true when the row was stored
    bool OpenVfo(int row);

    ChannelFields Grid1Data;  ///< the memory row as it was when it was opened
    ChannelFields Grid2Data;  ///< the VFO row as it was when it was opened

  protected:
    void showEvent(QShowEvent* event) override;

  private:
    /// A number box and the text it was last found good with, or opened with.
    struct Entry
    {
        QLineEdit* box;
        CheckedEntry (*check)(const CloneImage&, const EditTarget&, const std::string&);
        QString checked;
    };

    bool Open(const EditTarget& target, ChannelFields& stored);
    bool LeaveBox(Entry& entry);
    bool LeaveIfPending(Entry& entry);
    void ShowRefusal(Verdict verdict);
    QString RowName() const;
    void txtFreq_LostFocus();
    void txtShift_LostFocus();
    void OKButton_Click();

    CloneImage& image_;
    Dialogs& dialogs_;
    ModifyForm* form_;
    EditTarget target_;
    Entry frequency_;
    Entry shift_;
    std::optional<ChannelFields> confirmed_;  ///< what the last OK on a memory row stored
};

}  // namespace rqm5
