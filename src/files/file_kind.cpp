#include "files/file_kind.h"

#include <QFile>
#include <QFileInfo>

#include "files/csv_fields.h"
#include "files/csv_record.h"
#include "files/file_store.h"
#include "files/replacing_file.h"
#include "files/text_encoding.h"
#include "image/display_text.h"
#include "image/value_tables.h"
#include "platform/disk.h"
#include "platform/file_access.h"

namespace rqm5 {
namespace {

constexpr qint64 kBeginning = 256;
constexpr std::string_view kPdfStart = "%PDF-";
constexpr std::string_view kCsvTitle = "MODEL";

/// What stands in the place of a file that a command would write.
const char* ThisIs(FileKind kind)
{
    switch (kind) {
        case FileKind::Clone:
            return MESSAGE("this is a clone file");
        case FileKind::Csv:
            return MESSAGE("this is a CSV file of this program");
        case FileKind::Pdf:
            return MESSAGE("this is a PDF");
        default:
            return MESSAGE("this is a file of another kind");
    }
}

const char* AndNot(FileKind kind)
{
    switch (kind) {
        case FileKind::Clone:
            return MESSAGE("and not a clone file");
        case FileKind::Csv:
            return MESSAGE("and not a CSV file of this program");
        default:
            return MESSAGE("and not a PDF");
    }
}

QString CopyOf(const QString& path, const QString& copy)
{
    constexpr qint64 kPiece = 1 << 16;
    QFile::remove(copy);
    QFile from(path);
    QFile to(copy);
    if (!from.open(QIODevice::ReadOnly))
        return from.errorString();
    if (!to.open(QIODevice::WriteOnly | QIODevice::NewOnly, QFile::ReadOwner | QFile::WriteOwner))
        return to.errorString();
    while (!from.atEnd() && from.error() == QFile::NoError && to.error() == QFile::NoError)
        to.write(from.read(kPiece));
    to.flush();
    CarryAccess(path, to.handle());
    for (const QFile* file : {&from, &to})
        if (file->error() != QFile::NoError)
            return file->errorString();
    return {};
}

/// \return the system's reason, empty when the file has the second name
QString AddName(const QString& path, const QString& second)
{
    QString reason;
    // A second name of the same file keeps all that belongs to it.
    return GiveSecondName(path, second, reason) == SecondName::Unknown ? CopyOf(path, second) : reason;
}

}  // namespace

FileKind KindOf(const QString& path)
{
    const QFileInfo info(path);
    if (!info.exists())
        return FileKind::None;
    QFile file(path);
    if (!info.isFile() || !file.open(QIODevice::ReadOnly))
        return FileKind::Other;
    const std::string text = DecodeFileText(file.read(kBeginning).toStdString());
    if (text.empty())
        return FileKind::Empty;
    if (text.starts_with(FileStart))
        return FileKind::Clone;
    if (text.starts_with(kPdfStart))
        return FileKind::Pdf;
    const std::string first = CsvFieldReader(text).Next().value_or("");
    return first == kCsvTitle || first == kCsvModel ? FileKind::Csv : FileKind::Other;
}

std::optional<Problem> OtherKindProblem(const QString& path, FileKind kind)
{
    const FileKind there = KindOf(path);
    if (there == FileKind::None || there == FileKind::Empty || there == kind)
        return std::nullopt;
    return Problem{kFileOpenError,
                   {MESSAGE("%1: %2 %3; give another name, or --force to replace it"),
                    {VisibleText(path.toStdString()), ThisIs(there), AndNot(kind)}}};
}

std::optional<Problem> KeepOldFile(const QString& path, QString& kept)
{
    const QString target = LinkTarget(path);
    kept = target + QLatin1Char('~');
    const QFileInfo info(kept);
    Message reason = MESSAGE("there is a folder or a device of that name");
    if (!info.exists() || info.isFile())
        reason = SystemReason(AddName(target, kept));
    if (reason.empty())
        return std::nullopt;
    return Problem{
        kFileOpenError,
        {MESSAGE("%1: the old file cannot be kept under this name (%2), so nothing was changed. Make "
                 "room for it, or save under another name."),
         {VisibleText(kept.toStdString()), reason}}};
}

}  // namespace rqm5
