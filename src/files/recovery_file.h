#pragma once

#include <QDateTime>
#include <QLockFile>
#include <QString>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "files/file_store.h"
#include "image/clone_image.h"
#include "image/problem.h"
#include "platform/user_folders.h"

namespace rqm5 {

/// The file that work began with.
struct RecoveryOrigin
{
    QString path = {};   ///< may be empty
    FileMark mark = {};  ///< what it held when the program last read or wrote it; may be empty

    friend bool operator==(const RecoveryOrigin&, const RecoveryOrigin&) = default;
};

/// A clone file that holds unsaved work in case the program dies, and the lock that says which running
/// program it belongs to. A lock that a dead program left behind counts for nothing.
class RecoveryFile
{
  public:
    /// What a file holds: edits, or what was read from the receiver and could not be saved.
    enum class Work { Edits, Read };

    /// A new name in a folder; nothing is on the disk before the first Keep.
    explicit RecoveryFile(const QString& folder, Work work = Work::Edits);

    /// The files in a folder that belong to no running program, the latest first. They belong to this one
    /// as long as the objects live, and stay on the disk behind them.
    static std::vector<std::unique_ptr<RecoveryFile>> Abandoned(const QString& folder);

    /// Replaces what is kept.
    std::optional<Problem> Keep(const std::string& text, const RecoveryOrigin& origin);

    /// Takes the file off the disk and gives the lock back.
    void Remove();

    const QString& Path() const { return path_; }
    Work Holds() const;
    RecoveryOrigin Origin() const;
    QDateTime Time() const;  ///< when it was last kept

  private:
    struct Existing
    {
        QString path;
    };
    explicit RecoveryFile(const Existing& existing);

    QString OriginPath() const;
    bool Lock();

    QString path_;
    QLockFile lock_;
};

/// The text of a clone file that can always be loaded again: in notes that it could not bring back, commas
/// become semicolons and quotes apostrophes.
std::string RecoveryText(const CloneImage& image);

}  // namespace rqm5
