#include "app/current_file.h"

#include <QFileInfo>
#include <chrono>

namespace rqm5 {
namespace {

/// Programs write in pieces, or write beside and rename.
constexpr std::chrono::milliseconds kSettling{200};

}  // namespace

CurrentFile::CurrentFile(const Document& document, QObject* parent) : QObject(parent), document_(document)
{
    timer_.setSingleShot(true);
    timer_.setInterval(kSettling);
    connect(&timer_, &QTimer::timeout, this, [this] {
        Renew();
        emit Seen(Look());
    });
    for (const auto signal : {&QFileSystemWatcher::fileChanged, &QFileSystemWatcher::directoryChanged})
        connect(&watcher_, signal, &timer_, [this] { timer_.start(); });
    connect(&document, &Document::StateChanged, this, &CurrentFile::Watch);
}

void CurrentFile::Know(const QString& path, const FileMark& mark)
{
    known_[path] = mark;
    if (path == document_.FileName())
        emit Seen(Look());
}

FileMark CurrentFile::KnownMark() const
{
    return known_.value(document_.FileName());
}

CurrentFile::State CurrentFile::Look() const
{
    const QString& path = document_.FileName();
    const auto known = known_.find(path);
    if (path.isEmpty() || known == known_.end())
        return State::AsKnown;
    if (!QFileInfo::exists(path))
        return State::Removed;
    return !known->isEmpty() && MarkOfFile(path) == *known ? State::AsKnown : State::Changed;
}

void CurrentFile::Watch()
{
    if (document_.FileName() == watched_)
        return;
    watched_ = document_.FileName();
    if (const QStringList old = watcher_.files() + watcher_.directories(); !old.isEmpty())
        watcher_.removePaths(old);
    Renew();
    emit Seen(Look());
}

/// A file that was replaced is another one for the system, and no longer watched. Its folder tells when there
/// is one of its name again.
void CurrentFile::Renew()
{
    if (watched_.isEmpty())
        return;
    const QFileInfo info(watched_);
    const QString target = info.canonicalFilePath();  // empty while there is none
    QStringList wanted = {info.absolutePath()};
    if (!target.isEmpty())
        wanted << watched_ << QFileInfo(target).absolutePath();
    const QStringList watched = watcher_.files() + watcher_.directories();
    for (const QString& path : wanted)
        if (!watched.contains(path) && QFileInfo::exists(path))
            watcher_.addPath(path);
}

}  // namespace rqm5
