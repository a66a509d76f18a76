#pragma once

#include <QFileSystemWatcher>
#include <QHash>
#include <QObject>
#include <QTimer>

#include "document/document.h"
#include "files/file_store.h"

namespace rqm5 {

/// Knows what the files of a document hold as far as this program has read or written them, and notices when
/// another program changes the current one. What a file holds counts, not its time: a copy or a touch that
/// leaves the contents as they are is no change.
class CurrentFile : public QObject
{
    Q_OBJECT

  public:
    enum class State { AsKnown, Changed, Removed };

    CurrentFile(const Document& document, QObject* parent);

    /// What a file holds now is known, because it was read or written. An empty mark stands for contents that
    /// nobody here knows.
    void Know(const QString& path, const FileMark& mark);

    /// The mark of the current file as it is known.
    FileMark KnownMark() const;

    /// Looks at the current file. One that was never known, or none, is as known.
    State Look() const;

  signals:
    /// The current file has changed on the disk, or is again as it was, or is another one.
    void Seen(CurrentFile::State state);

  private:
    void Watch();
    void Renew();

    const Document& document_;
    QHash<QString, FileMark> known_;
    QString watched_;
    QFileSystemWatcher watcher_;
    QTimer timer_;
};

}  // namespace rqm5
