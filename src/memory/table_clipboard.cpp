#include "memory/table_clipboard.h"

#include <QFile>
#include <QFileInfo>
#include <QUrl>

#include "image/value_tables.h"
#include "memory/channel_clip.h"
#include "memory/paste_plan.h"

namespace rqm5 {
namespace {

constexpr char kOwnFormat[] = "application/x-rqm5-channels";
constexpr qint64 kLargestList = 8 * 1024 * 1024;

QString Text(const std::string& text)
{
    return QString::fromStdString(text);
}

/// The one file of this computer that was dropped; several at once are no list.
QString FileOf(const QMimeData& data)
{
    const QList<QUrl> urls = data.urls();
    const QString path = urls.size() == 1 ? urls.front().toLocalFile() : QString();
    return QFileInfo(path).isFile() ? path : QString();
}

QByteArray Contents(const QString& path, qint64 most)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.read(most) : QByteArray();
}

}  // namespace

QMimeData* ClipOf(const CloneImage& image, const RowList& rows)
{
    auto* data = new QMimeData;
    data->setData(QLatin1String(kOwnFormat), QByteArray::fromStdString(FormatClip(image, rows)));
    data->setText(Text(FormatTabbed(image, rows)));
    data->setHtml(Text(FormatHtml(image, rows)));
    return data;
}

std::vector<ListedChannel> ChannelsOf(const QMimeData& data)
{
    if (const auto own = ParseClip(data.data(QLatin1String(kOwnFormat)).toStdString()))
        return Listed(*own);
    const QString file = FileOf(data);
    return ReadChannelList(
        (file.isEmpty() ? data.text().toUtf8() : Contents(file, kLargestList)).toStdString());
}

bool MayHoldChannels(const QMimeData& data)
{
    if (data.hasUrls())
        return !FileOf(data).isEmpty() && CloneFileOf(data).isEmpty();
    return data.hasFormat(QLatin1String(kOwnFormat)) || data.hasText();
}

QString CloneFileOf(const QMimeData& data)
{
    const QString path = FileOf(data);
    const bool isNamedSo = QFileInfo(path).suffix().compare(QLatin1String("rq5"), Qt::CaseInsensitive) == 0;
    const auto start = QByteArray::fromRawData(FileStart.data(), static_cast<qsizetype>(FileStart.size()));
    const bool isClone = !path.isEmpty() && (isNamedSo || Contents(path, 64).contains(start));
    return isClone ? path : QString();
}

}  // namespace rqm5
