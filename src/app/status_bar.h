#pragma once

#include <QLabel>
#include <QStatusBar>

#include "document/document.h"

namespace rqm5 {

/// `sbStatusBar`: what the control under the pointer or with the focus does; the state of file, receiver
/// model, channels and port.
class StatusBar : public QStatusBar
{
    Q_OBJECT

  public:
    explicit StatusBar(QWidget* parent);

    /// Without a current file an unchanged image is a new one.
    void ShowDocument(const Document& document);

    /// Something to read at leisure in the place of hints; an empty text makes room for them again.
    void ShowNote(const QString& text);

    /// What stays true until it is taken back by an empty text; behind a note.
    void ShowWarning(const QString& text);

    /// What the control or menu item under the pointer does; before all else, and empty once it is left.
    void ShowPointerHint(const QString& text);

    /// What the control with the focus does; behind all else.
    void ShowHintOf(const QWidget* focused);

    void ShowPort(int number, const QString& device);

  private:
    void ShowFirstText();

    QString pointerHint_;
    QString note_;
    QString warning_;
    QString focusHint_;
    QLabel* lblHint_;
    QLabel* lblFileState_;
    QLabel* lblRegion_;
    QLabel* lblEnabled_;
    QLabel* lblPort_;
};

}  // namespace rqm5
