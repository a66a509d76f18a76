#pragma once

#include <QString>
#include <QTemporaryFile>
#include <string>

namespace rqm5 {

/// Puts a file in the place of another, as a whole or not at all: writes it beside the old one and renames.
/// A link stays and its target is replaced; the old permissions are kept.
///
/// The temporary file is named ".rq5-save-" and six letters. One that a kill or a power failure left
/// behind is taken away by the next save into the same folder.
class ReplacingFile
{
  public:
    explicit ReplacingFile(const QString& path);

    /// \return the system's reason, empty when the file is open
    QString Open();

    /// Writes everything, waits until it is on the disk and takes the old file's place.
    /// \return the system's reason, empty when all is well
    QString Replace(const std::string& bytes);

  private:
    QString Write(const std::string& bytes);
    QString Flush();
    QString Rename();

    QString target_;
    QTemporaryFile file_;
};

}  // namespace rqm5
