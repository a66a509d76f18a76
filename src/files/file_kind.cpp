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

const char* KindName(FileKind kind)
{
    switch (kind) {
        case FileKind::Clone:
            return "a clone file";
        case FileKind::Csv:
            return "a CSV file of this program";
        case FileKind::Pdf:
            return "a PDF";
        default:
            return "a file of another kind";
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
    return Problem{kFileOpenError, VisibleText(path.toStdString()) + ": this is " + KindName(there) +
                                       " and not " + KindName(kind) +
                                       "; give another name, or --force to replace it"};
}

std::optional<Problem> KeepOldFile(const QString& path, QString& kept)
{
    const QString target = LinkTarget(path);
    kept = target + QLatin1Char('~');
    const QFileInfo info(kept);
    QString reason;
    if (info.exists() && !info.isFile())
        reason = QStringLiteral("there is a folder or a device of that name");
    else
        reason = AddName(target, kept);
    if (reason.isEmpty())
        return std::nullopt;
    return Problem{kFileOpenError,
                   VisibleText(kept.toStdString()) + ": the old file cannot be kept under this name (" +
                       VisibleText(reason.toStdString()) +
                       "), so nothing was changed. Make room for it, or save under another name."};
}

}  // namespace rqm5
