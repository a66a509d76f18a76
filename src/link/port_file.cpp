#include "link/port_file.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include "image/number_text.h"
#include "link/com_ports.h"

namespace rqm5 {
namespace {

const QString kFileName = QStringLiteral("RQ-M5.ini");
constexpr qint64 kLongestNumber = 64;

/// A pipe or a device could keep whoever opens it waiting for ever.
bool IsOdd(const QFileInfo& file)
{
    return file.exists() && !file.isFile();
}

bool CanWrite(const QString& folder)
{
    const QFileInfo file(QDir(folder).filePath(kFileName));
    return file.exists() ? file.isWritable() && !IsOdd(file) : QFileInfo(folder).isWritable();
}

}  // namespace

QString PortFilePath(const QString& programFolder)
{
    if (CanWrite(programFolder))
        return QDir(programFolder).filePath(kFileName);
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    return folder + QStringLiteral("/Tervan/") + kFileName;
}

int ReadPortFile(const QString& path)
{
    constexpr int kFirstPort = 1;
    const QFileInfo info(path);
    // Looked up by its exact name: on a file system that does not tell letter case, another program's
    // rq-m5.ini is not ours.
    if (info.fileName() != kFileName || !info.dir().entryList(QDir::Files).contains(kFileName))
        return kFirstPort;
    QFile file(path);
    if (IsOdd(info) || !file.open(QIODevice::ReadOnly))
        return kFirstPort;
    const int number = ReadInteger(file.read(kLongestNumber).toStdString());
    return number >= 1 && number <= kComPorts ? number : kFirstPort;
}

bool WritePortFile(const QString& path, int number)
{
    QFileInfo(path).dir().mkpath(QStringLiteral("."));
    QFile file(path);
    if (IsOdd(QFileInfo(path)) || !file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return false;
    const QByteArray line = QByteArray::number(number) + "\r\n";
    return file.write(line) == line.size() && file.flush();
}

}  // namespace rqm5
