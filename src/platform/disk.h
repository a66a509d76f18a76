#pragma once

#include <QString>
#include <QTemporaryFile>
#include <memory>
#include <optional>
#include <string>

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

/// Writes everything to an open file, past the buffers of this program.
std::optional<DiskFault> WriteAll(QFile& file, const std::string& bytes);

/// Waits until what was written is on the disk.
std::optional<DiskFault> FlushFile(QFile& file);

/// Gives a new file, its owner's alone so far, the permissions that the user's new files get.
void GiveUsualAccess(QFile& file);

/// Gives a new file the place of another one, which need not be there; it is the other's or this one's at
/// every moment. The new file is closed or gone afterwards.
/// \param name  the name of the new file
std::optional<DiskFault> PutInPlace(std::unique_ptr<QTemporaryFile> file, const QString& name,
                                    const QString& target);

/// Waits until a file's new name is on the disk.
std::optional<DiskFault> FlushFolder(const QString& file);

enum class SecondName { Given, Unknown, Refused };

/// Gives a file a second name in the same folder, which another one may have; that one is replaced.
/// \param reason  the system's, when it refuses
/// \return Unknown when the system or the disk gives no file two names
SecondName GiveSecondName(const QString& path, const QString& second, QString& reason);

/// \return the system's reason why no file can have this name, empty when one can
QString NameFault(const QString& path);

/// What the system or Qt says of a fault, in the program's language of the moment; as a message when it is
/// one of the usual reasons, so that it can be said in another language, too.
Message SystemReason(const QString& text);

/// True for the error numbers of a disk, or a user's share of it, that has no room left.
bool IsDiskFull(int code);

/// Makes a write beyond the limit on file sizes fail like one on a full disk; it would end the program.
/// Programs call it when they start.
void TurnFileSizeLimitIntoError();

}  // namespace rqm5
