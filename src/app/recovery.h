#pragma once

#include <QObject>
#include <QThreadPool>
#include <QTimer>
#include <chrono>
#include <functional>
#include <memory>

#include "document/document.h"
#include "files/recovery_file.h"
#include "language/message.h"
#include "ui/dialogs.h"

namespace rqm5 {

/// Keeps the unsaved changes of a document in a recovery file while there are any, and offers what a crash
/// left behind.
class Recovery : public QObject
{
    Q_OBJECT

  public:
    /// \param folder  may be empty: nothing is kept or offered then
    /// \param delay   changes are kept so long after the first of them; formatting and writing take place
    ///                beside the user's typing
    Recovery(const Document& document, const QString& folder, std::chrono::milliseconds delay,
             QObject* parent);

    /// Tells what is known of the current file, to be kept with the changes. Without it nothing is.
    void SetMark(std::function<FileMark()> mark) { mark_ = std::move(mark); }

    /// Keeps the changes at once, and returns when they are on the disk: the program is going to be ended.
    void KeepNow();

    /// The program ends in the usual way: nothing is kept any more.
    void End();

    /// Asks about files that a crash left behind, the latest first, until one is to be recovered and
    /// `load` can load it. \return true when one was
    bool Offer(Dialogs& dialogs, QWidget* parent, const std::function<bool(const RecoveryFile& file)>& load);

  signals:
    /// The changes are in the recovery file now, or \param reason why they are not; then it is tried
    /// again.
    void Kept(const rqm5::Message& reason);

    void Asking();  ///< a question is about to be shown

  private:
    void Look();
    void Keep();
    RecoveryOrigin Origin() const;
    void Keep_Done(const Message& reason);
    void Remove();

    const Document& document_;
    const QString folder_;
    std::function<FileMark()> mark_;
    QTimer timer_;
    std::unique_ptr<RecoveryFile> file_;  ///< null until there is something to keep
    bool hasEnded_ = false;
    QThreadPool pool_;  ///< of one thread; ends before the file that it writes
};

}  // namespace rqm5
