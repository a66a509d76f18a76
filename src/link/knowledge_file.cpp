#include "link/knowledge_file.h"

#include <QFile>
#include <QSaveFile>
#include <QStandardPaths>

#include "link/memory_map.h"

namespace rqm5 {
namespace {

constexpr char kHead[] = "RQ-M5 receiver 1\n";
constexpr char kPresetsDue[] = "presets due\n";
constexpr char kEnd[] = "end\n";  // a file that was cut short is not as it should be
constexpr qint64 kMostBytes = 1 << 20;

/// "1000 01455000000000000000001000600000 1763750400000"
bool ReadBlock(const QByteArray& line, KnownBlocks& blocks)
{
    const QList<QByteArray> words = line.trimmed().split(' ');
    if (words.size() != 3 || words[1].size() != static_cast<qsizetype>(kBlockChars))
        return false;
    bool isAddress = false;
    bool isTime = false;
    const int address = words[0].toInt(&isAddress, 16);
    const qint64 time = words[2].toLongLong(&isTime);
    const MemoryBlock block(words[1].toStdString());
    if (!isAddress || !isTime || !block.IsHex() || !PlaceOf(address) || address % kBlockBytes != 0)
        return false;
    blocks[address] = {block, QDateTime::fromMSecsSinceEpoch(time).toUTC()};
    return true;
}

}  // namespace

QString CacheFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation) +
           QStringLiteral("/rq-m5-clone");
}

KnowledgeFile ReadKnowledge(const QString& path, const QString& device)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || file.size() > kMostBytes || file.readLine() != kHead ||
        file.readLine() != device.toUtf8() + '\n')
        return {};
    KnowledgeFile knowledge{device, {}, false};
    for (QByteArray line = file.readLine(); line != kEnd; line = file.readLine())
        if (line == kPresetsDue)
            knowledge.arePresetsDue = true;
        else if (!ReadBlock(line, knowledge.blocks))
            return {};
    return knowledge;
}

void WriteKnowledge(const QString& path, const KnowledgeFile& knowledge)
{
    QByteArray text = kHead + knowledge.device.toUtf8() + '\n';
    if (knowledge.arePresetsDue)
        text += kPresetsDue;
    for (const auto& [address, block] : knowledge.blocks)
        text += HexAddress(address).c_str() + QByteArray(" ") + block.contents.String().c_str() + ' ' +
                QByteArray::number(block.time.toMSecsSinceEpoch()) + '\n';
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly)) {
        file.write(text + kEnd);
        file.commit();
    }
}

}  // namespace rqm5
