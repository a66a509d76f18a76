#pragma once

#include <QLabel>
#include <QStatusBar>
#include <functional>
#include <optional>

#include "document/document.h"
#include "language/message.h"

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

    /// What has just happened, in the place of hints until the next click or key in the window; an empty text
    /// makes room for them at once.
    void ShowNote(const QString& text);

    /// A note with a link behind it that tells more.
    void ShowNoteWithDetails(const QString& text, std::function<void()> details);

    /// What stays true until it is taken back by an empty text; behind notes and what the pointer asks for.
    void ShowWarning(const Message& text);

    /// What the control or menu item under the pointer does; behind a note, and empty once it is left.
    void ShowPointerHint(const QString& text);

    /// What the control with the focus does; behind all else.
    void ShowHintOf(const QWidget* focused);

    void ShowPort(int number, const QString& device, bool isPresent);

    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    /// The port as it was told last.
    struct Port
    {
        int number = 0;
        QString device;
        bool isPresent = false;
    };

    void ShowLanguage();
    void ShowPortText();
    void ShowFirstText();
    bool IsOnLink(const QEvent& event) const;

    QString pointerHint_;
    QString note_;
    Message warning_;
    std::optional<Port> port_;
    QString focusHint_;
    QLabel* lblHint_;
    QLabel* lblNoteDetails_;
    std::function<void()> details_;
    QLabel* lblFileState_;
    QLabel* lblRegion_;
    QLabel* lblEnabled_;
    QLabel* lblPort_;
};

}  // namespace rqm5
