#include "link/receiver_knowledge.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <utility>

#include "link/change_plan.h"
#include "link/knowledge_file.h"
#include "link/memory_map.h"
#include "settings/settings_codec.h"
#include "vfo/region_presets.h"

namespace rqm5 {
namespace {

int SettingsAddress()
{
    return AreaOf(Area::Settings).address;
}

}  // namespace

std::set<int> ReceiverKnowledge::TellingBlocks()
{
    std::set<int> addresses;
    for (const Area id : {Area::Settings, Area::BankSizes, Area::Flags, Area::Links})
        for (int index = 0; index < AreaOf(id).blocks; ++index)
            addresses.insert(AreaOf(id).AddressOf(index));
    return addresses;
}

void ReceiverKnowledge::KeepIn(const QString& folder)
{
    folder_ = folder;
    Load();
}

void ReceiverKnowledge::GoTo(const QString& device)
{
    if (device == device_)
        return;
    Save();
    device_ = device;
    Load();
}

void ReceiverKnowledge::CatchUp()
{
    if (!folder_.isEmpty() && QFileInfo(Path()).lastModified() != stored_)
        Load();
}

/// Where the knowledge of this device is kept; a device may be called by a path.
QString ReceiverKnowledge::Path() const
{
    const QByteArray name = QCryptographicHash::hash(device_.toUtf8(), QCryptographicHash::Sha1).toHex();
    return QDir(folder_).filePath(QStringLiteral("receiver-") + QString::fromLatin1(name.left(12)));
}

void ReceiverKnowledge::Load()
{
    known_.clear();
    doubtful_.clear();
    earlier_.clear();
    arePresetsDue_ = isNew_ = isRemoved_ = false;
    stored_ = {};
    untold_ = TellingBlocks();
    if (folder_.isEmpty() || device_.isEmpty())
        return;
    stored_ = QFileInfo(Path()).lastModified();
    KnowledgeFile file = ReadKnowledge(Path(), device_);
    earlier_ = std::move(file.blocks);
    arePresetsDue_ = file.arePresetsDue;
}

void ReceiverKnowledge::Save()
{
    if (!isNew_ || folder_.isEmpty() || device_.isEmpty())
        return;
    isNew_ = isRemoved_ = false;
    QDir().mkpath(folder_);
    WriteKnowledge(Path(), {device_, ToKeep(), arePresetsDue_});
    stored_ = QFileInfo(Path()).lastModified();
}

/// What may come from two receivers is not mixed: as long as what an earlier run knew does not count, it
/// stays alone, without what has turned out to be otherwise.
KnownBlocks ReceiverKnowledge::ToKeep() const
{
    if (earlier_.empty())
        return known_;
    KnownBlocks kept = earlier_;
    std::erase_if(kept, [this](const auto& entry) {
        const auto now = known_.find(entry.first);
        return now != known_.end() && now->second.contents != entry.second.contents;
    });
    return kept;
}

void ReceiverKnowledge::Leave()
{
    earlier_ = ToKeep();
    known_.clear();
    doubtful_.clear();
    untold_ = TellingBlocks();
}

void ReceiverKnowledge::PutBack(const std::vector<int>& addresses, const KnownBlocks& before)
{
    for (const int address : addresses) {
        const bool isKnown = known_.erase(address) > 0;
        if (const auto found = before.find(address); isKnown && found != before.end())
            known_[address] = found->second;
    }
}

void ReceiverKnowledge::TakeRead(int address, const MemoryBlock& block)
{
    if (isInDoubt_)
        doubtful_[address] = {block, QDateTime::currentDateTimeUtc()};
    else
        Take(address, {block, QDateTime::currentDateTimeUtc()});
}

void ReceiverKnowledge::Take(int address, const KnownBlock& block)
{
    isNew_ = true;
    if (!block.contents.IsHex()) {
        known_.erase(address);
        return;
    }
    Compare(address, block.contents);
    known_[address] = block;
}

/// Finds out whether what an earlier run knew is about this receiver.
void ReceiverKnowledge::Compare(int address, const MemoryBlock& read)
{
    if (earlier_.empty() || !untold_.contains(address))
        return;
    const auto before = earlier_.find(address);
    if (before == earlier_.end() || before->second.contents != read) {
        earlier_.clear();
        arePresetsDue_ = false;
        return;
    }
    untold_.erase(address);
    if (untold_.empty())
        known_.merge(std::exchange(earlier_, {}));
}

void ReceiverKnowledge::TakeSending(int address, const MemoryBlock& block)
{
    // A program that is killed from here on leaves nothing that is wrong.
    if (!std::exchange(isRemoved_, true) && !folder_.isEmpty())
        QFile::remove(Path());
    isNew_ = true;
    const KnownBlock* before = Find(address);
    if (address == SettingsAddress() && (before == nullptr || ModelOf(before->contents) != ModelOf(block)))
        arePresetsDue_ = true;
    if (untold_.contains(address))
        earlier_.clear();  // it cannot be told any more whose it is
    known_.erase(address);
    earlier_.erase(address);
    doubtful_.erase(address);
}

void ReceiverKnowledge::TakeWritten(int address, const MemoryBlock& block)
{
    const KnownBlock written{block, QDateTime::currentDateTimeUtc()};
    (isInDoubt_ ? doubtful_ : known_)[address] = written;
    WatchPresets(address);
}

/// Presets are due no more once all of a region have their OK.
void ReceiverKnowledge::WatchPresets(int address)
{
    const auto place = PlaceOf(address);
    const KnownBlock* settings = Find(SettingsAddress());
    if (!arePresetsDue_ || !place || place->area->id != Area::Presets || settings == nullptr)
        return;
    const auto& presets = InitPriset(PresetVariant(ModelOf(settings->contents).value_or(0)));
    arePresetsDue_ = !std::ranges::all_of(presets, [&](const PresetBlock& preset) {
        const KnownBlock* held = Find(place->area->AddressOf(preset.place));
        return held != nullptr && held->contents == preset.contents;
    });
}

void ReceiverKnowledge::EndDoubt(bool haveShifted)
{
    isInDoubt_ = false;
    for (const auto& [address, block] : std::exchange(doubtful_, {}))
        if (!haveShifted) {
            Take(address, block);
            WatchPresets(address);
        }
}

const KnownBlock* ReceiverKnowledge::Find(int address) const
{
    const auto known = known_.find(address);
    return known != known_.end() ? &known->second : nullptr;
}

std::optional<HeldImage> ReceiverKnowledge::LastHeld() const
{
    KnownBlocks all = known_;
    all.insert(earlier_.begin(), earlier_.end());
    BlockMap blocks;
    QDateTime since = QDateTime::currentDateTimeUtc();
    for (const int address : ReadableBlocks()) {
        const auto known = all.find(address);
        if (known == all.end() && PlaceOf(address)->area->decode != nullptr)
            return std::nullopt;
        if (known == all.end())
            continue;
        blocks[address] = known->second.contents;
        since = std::min(since, known->second.time);
    }
    return HeldImage{ImageOfBlocks(blocks), since};
}

}  // namespace rqm5
