#include "app/recovery.h"

#include <QFileInfo>

#include "language/language.h"
#include "language/translated.h"
#include "ui/plain_text.h"

namespace rqm5 {
namespace {

enum class Choice { Recover, Discard, Later };

Choice Ask(Dialogs& dialogs, QWidget* parent, const RecoveryFile& file)
{
    const QString origin = file.Origin().path;
    const bool isRead = file.Holds() == RecoveryFile::Work::Read;
    const QString name = origin.isEmpty() ? Recovery::tr("changes that were in no file yet")
                                          : VisibleText(QFileInfo(origin).fileName());
    Prompt question;
    question.title = Recovery::tr("Recovery");
    question.text = isRead
                        ? Recovery::tr("What was read from the receiver could not be saved. It was kept.")
                        : Recovery::tr("The program ended before your changes were saved. They were kept.");
    question.details =
        Recovery::tr("File: %1\nKept: %2").arg(name, Language::OfProgram().ShortTime(file.Time()));
    question.icon = QMessageBox::Question;
    question.buttons = QMessageBox::Yes | QMessageBox::Discard | QMessageBox::Cancel;
    question.defaultButton = QMessageBox::Yes;
    question.captions = {{QMessageBox::Yes, Recovery::tr("Recover")},
                         {QMessageBox::Discard, Recovery::tr("Discard")},
                         {QMessageBox::Cancel, Recovery::tr("Later")}};
    switch (dialogs.Ask(parent, question)) {
        case QMessageBox::Yes:
            return Choice::Recover;
        case QMessageBox::Discard:
            return Choice::Discard;
        default:
            return Choice::Later;
    }
}

}  // namespace

Recovery::Recovery(const Document& document, const QString& folder, std::chrono::milliseconds delay,
                   QObject* parent)
    : QObject(parent), document_(document), folder_(folder)
{
    pool_.setMaxThreadCount(1);
    timer_.setSingleShot(true);
    timer_.setInterval(delay);
    connect(&timer_, &QTimer::timeout, this, &Recovery::Keep);
    connect(&document, &Document::StateChanged, this, &Recovery::Look);
    connect(&document, &Document::Changed, this, &Recovery::Look);
}

/// Without unsaved changes there is nothing to recover.
void Recovery::Look()
{
    if (!document_.DataChanged())
        Remove();
    else if (!folder_.isEmpty() && !hasEnded_ && !timer_.isActive())
        timer_.start();
}

void Recovery::Keep()
{
    if (!file_)
        file_ = std::make_unique<RecoveryFile>(folder_);
    pool_.start([this, image = document_.Image(), origin = Origin(), file = file_.get()] {
        const auto problem = file->Keep(RecoveryText(image), origin);
        const Message reason = problem ? problem->details : Message();
        QMetaObject::invokeMethod(this, [this, reason] { Keep_Done(reason); });
    });
}

RecoveryOrigin Recovery::Origin() const
{
    return {document_.FileName(), mark_ ? mark_() : FileMark()};
}

void Recovery::KeepNow()
{
    if (!document_.DataChanged() || folder_.isEmpty() || hasEnded_)
        return;
    timer_.stop();
    if (!file_)
        file_ = std::make_unique<RecoveryFile>(folder_);
    pool_.waitForDone();
    if (const auto problem = file_->Keep(RecoveryText(document_.Image()), Origin()))
        qWarning("%s", Said(problem->details).c_str());
}

void Recovery::Keep_Done(const Message& reason)
{
    if (!file_ || !document_.DataChanged())
        return;  // saved meanwhile
    // The disk may have room again, or the folder be there, a moment later.
    if (!reason.empty() && !timer_.isActive())
        timer_.start();
    emit Kept(reason);
}

void Recovery::Remove()
{
    timer_.stop();
    if (!file_)
        return;
    pool_.waitForDone();
    file_->Remove();
    file_.reset();
}

void Recovery::End()
{
    hasEnded_ = true;
    Remove();
}

bool Recovery::Offer(Dialogs& dialogs, QWidget* parent,
                     const std::function<bool(const RecoveryFile& file)>& load)
{
    if (folder_.isEmpty())
        return false;
    for (auto& file : RecoveryFile::Abandoned(folder_)) {
        emit Asking();
        const Choice choice = Ask(dialogs, parent, *file);
        if (choice == Choice::Discard)
            file->Remove();
        if (choice == Choice::Recover && load(*file)) {
            file_ = std::move(file);  // goes on in the same file: there is no moment without one
            return true;
        }
    }
    return false;
}

}  // namespace rqm5
