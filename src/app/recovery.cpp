#include "app/recovery.h"

#include <QDir>
#include <QFileInfo>
#include <QLocale>
#include <QStandardPaths>

#include "ui/plain_text.h"

namespace rqm5 {
namespace {

enum class Choice { Recover, Discard, Later };

Choice Ask(Dialogs& dialogs, QWidget* parent, const RecoveryFile& file)
{
    const QString origin = file.Origin();
    const QString name = origin.isEmpty() ? Recovery::tr("changes that were in no file yet")
                                          : VisibleText(QFileInfo(origin).fileName());
    Prompt question;
    question.title = Recovery::tr("Recovery");
    question.text = Recovery::tr("The program ended before your changes were saved. They were kept.");
    question.details =
        Recovery::tr("File: %1\nKept: %2").arg(name, QLocale().toString(file.Time(), QLocale::ShortFormat));
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

QString StateFolder()
{
#ifdef Q_OS_LINUX
    const QString set = qEnvironmentVariable("XDG_STATE_HOME");
    const QString base =
        QDir::isAbsolutePath(set) ? set : QDir::home().filePath(QStringLiteral(".local/state"));
    return QDir(base).filePath(QStringLiteral("rq-m5-clone"));
#else
    return QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation);
#endif
}

Recovery::Recovery(const CloneImage& image, const QString& folder, std::chrono::milliseconds delay,
                   QObject* parent)
    : QObject(parent), image_(image), folder_(folder)
{
    pool_.setMaxThreadCount(1);
    timer_.setSingleShot(true);
    timer_.setInterval(delay);
    connect(&timer_, &QTimer::timeout, this, &Recovery::Keep);
}

void Recovery::Look(const QString& fileName)
{
    fileName_ = fileName;
    if (!image_.DataChanged)
        Remove();
    else if (!folder_.isEmpty() && !hasEnded_ && !timer_.isActive())
        timer_.start();
}

void Recovery::Keep()
{
    if (!file_)
        file_ = std::make_unique<RecoveryFile>(folder_);
    pool_.start([this, image = image_, origin = fileName_, file = file_.get()] {
        const auto problem = file->Keep(RecoveryText(image), origin);
        const QString reason = problem ? QString::fromStdString(problem->details) : QString();
        QMetaObject::invokeMethod(this, [this, reason] { Keep_Done(reason); });
    });
}

void Recovery::Keep_Done(const QString& reason)
{
    if (!file_ || !image_.DataChanged)
        return;  // saved meanwhile
    // The disk may have room again, or the folder be there, a moment later.
    if (!reason.isEmpty() && !timer_.isActive())
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
                     const std::function<bool(const QString& path, const QString& origin)>& load)
{
    if (folder_.isEmpty())
        return false;
    for (auto& file : RecoveryFile::Abandoned(folder_)) {
        const Choice choice = Ask(dialogs, parent, *file);
        if (choice == Choice::Discard)
            file->Remove();
        if (choice == Choice::Recover && load(file->Path(), file->Origin())) {
            file_ = std::move(file);  // goes on in the same file: there is no moment without one
            return true;
        }
    }
    return false;
}

}  // namespace rqm5
