#pragma once

#include <QWidget>

class QLabel;
class QLineEdit;
class QPushButton;

namespace rqm5 {

/// True once somebody has pressed the button of the line below a note, and until it is released.
bool WantsSafeNotes();

/// The line below a note: says at once that the note will not survive a save, with a button that puts it into
/// the form that does. Whoever has pressed the button gets that form from then on while typing, until it is
/// released; the choice is remembered.
class NoteLine : public QWidget
{
    Q_OBJECT

  public:
    /// \param note  the box that it watches
    explicit NoteLine(QLineEdit& note);

    /// Its place stays free while there is nothing to say, or it takes none.
    void KeepPlace(bool isKept);

    /// Shows another note, in the form that was chosen.
    void ShowNote(const QString& note);

  private:
    void txtNote_Change();
    void cmbSafeNote_Click();
    void MakeSafe();
    void ShowHint();

    QLineEdit& txtNote_;
    QLabel* lblNoteHint_;
    QPushButton* cmbSafeNote_;
    bool wasMended_ = false;  ///< something in this note was replaced
};

}  // namespace rqm5
