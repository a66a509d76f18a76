#pragma once

#include <QString>
#include <QTemporaryFile>
#include <optional>
#include <string>
#include <vector>

#include "language/message.h"

namespace rqm5 {

/// Why a file could not be written.
struct DiskFault
{
    Message reason;          ///< what the system says
    int code = 0;            ///< its error number; 0 when unknown
    bool isInPlace = false;  ///< the new file has the place of the old one all the same
};

/// Tells a file from one that another program has put in its place, or written into, since.
struct FileIdentity
{
    quint64 device = 0;
    quint64 number = 0;
    qint64 size = 0;
    qint64 changed = 0;  ///< nanoseconds; 0 where the system does not tell

    static FileIdentity Of(const QString& path);

    friend bool operator==(const FileIdentity&, const FileIdentity&) = default;
};

/// Puts a file in the place of another, as a whole or not at all: writes it beside the old one and renames.
/// A link stays and its target is replaced; what decides who may use the old file is kept.
///
/// The temporary file is named ".rq5-save-" and six letters. One that a kill or a power failure left
/// behind is taken away by the next save into the same folder.
class ReplacingFile
{
  public:
    explicit ReplacingFile(const QString& path);

    std::optional<DiskFault> Open();

    /// Writes everything, waits until it is on the disk and takes the old file's place.
    std::optional<DiskFault> Replace(const std::string& bytes);

    /// What the new file did not get from the old one: see CarryAccess.
    const std::vector<Message>& AccessChanges() const { return accessChanges_; }

    /// The new file once it is in its place.
    const FileIdentity& Identity() const { return identity_; }

  private:
    std::optional<DiskFault> Write(const std::string& bytes);
    std::optional<DiskFault> Flush();
    std::optional<DiskFault> Rename();
    void SetAccess();

    QString target_;
    QTemporaryFile file_;
    std::vector<Message> accessChanges_;
    FileIdentity identity_;
};

/// What a link, or a link to a link, points to; it need not exist.
QString LinkTarget(QString path);

}  // namespace rqm5
