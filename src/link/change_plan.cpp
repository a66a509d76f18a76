#include "link/change_plan.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "image/flag_bits.h"
#include "link/memory_map.h"
#include "memory/bank_layout.h"
#include "memory/search_pass.h"
#include "memory/start_image.h"
#include "settings/settings_codec.h"
#include "vfo/region_presets.h"

namespace rqm5 {
namespace {

constexpr Area kReadableAreas[] = {Area::Settings, Area::BankSizes, Area::Flags,   Area::Links,
                                   Area::PassList, Area::Vfo,       Area::Channels};

int Settings2Address()
{
    return AreaOf(Area::Settings).AddressOf(kSettings2);
}

std::vector<MemoryBlock> BlocksOfArea(Area id, const BlockMap& blocks)
{
    std::vector<MemoryBlock> found;
    found.reserve(static_cast<std::size_t>(AreaOf(id).blocks));
    for (int index = 0; index < AreaOf(id).blocks; ++index)
        found.push_back(blocks.at(AreaOf(id).AddressOf(index)));
    return found;
}

/// Takes the blocks of an area into an image.
void Take(Area id, const BlockMap& blocks, CloneImage& image)
{
    const MemoryArea& area = AreaOf(id);
    if (area.decode == nullptr)
        return;
    const std::vector<MemoryBlock> found = BlocksOfArea(id, blocks);
    if (!area.decodesSingly)
        return area.decode(image, 0, found);
    for (int index = 0; const MemoryBlock& block : found)
        area.decode(image, index++, {&block, 1});
}

MemoryBlock WithCount(MemoryBlock settings2, int count)
{
    settings2.SetByte(kPassCountByte, count);
    return settings2;
}

/// A block as the program writes what it means; blocks of one meaning are the same then.
MemoryBlock Rewritten(int address, const BlockMap& blocks)
{
    const BlockPlace place = *PlaceOf(address);
    if (place.area->decode == nullptr)
        return blocks.at(address);
    CloneImage image = StartUpImage(0);
    if (place.area->decodesSingly)
        place.area->decode(image, place.index, {&blocks.at(address), 1});
    else
        Take(place.area->id, blocks, image);
    const MemoryBlock rewritten = place.area->encode(image, place.index);
    return address == Settings2Address() ? WithCount(rewritten, 0) : rewritten;
}

/// Takes a flag from the receiver where it was not changed here.
bool MergedFlag(bool here, bool known, bool there)
{
    return here == known ? there : here;
}

}  // namespace

const std::vector<int>& ReadableBlocks()
{
    static const std::vector<int> addresses = [] {
        std::vector<int> all;
        for (const Area id : kReadableAreas)
            for (int index = 0; index < AreaOf(id).blocks; ++index)
                all.push_back(AreaOf(id).AddressOf(index));
        return all;
    }();
    return addresses;
}

BlockMap BlocksOfImage(const CloneImage& image)
{
    BlockMap blocks;
    for (const int address : ReadableBlocks()) {
        const BlockPlace place = *PlaceOf(address);
        blocks[address] = place.area->encode(image, place.index);
    }
    MemoryBlock& settings2 = blocks[Settings2Address()];
    settings2 = WithCount(settings2, SearchPassCount(image));
    return blocks;
}

CloneImage ImageOfBlocks(const BlockMap& blocks)
{
    CloneImage image = StartUpImage(0);
    NewImage(image);
    for (const Area id : kReadableAreas)
        Take(id, blocks, image);
    return image;
}

ChangePlan::ChangePlan(const CloneImage& image, BlockMap known, KnownFrom from, bool arePresetsDue)
    : image_(image), known_(std::move(known)), from_(from), arePresetsDue_(arePresetsDue), held_(known_)
{
    WatchSearchPass();
    Plan();
    for (const auto& [address, block] : wanted_)
        if (PlaceOf(address)->area->id != Area::Presets)
            toCheck_.insert(address);
    const auto add = [this](Area id, int first, int count) {
        for (int index = first; index < first + count; ++index)
            toCheck_.insert(AreaOf(id).AddressOf(index));
    };
    const MemoryArea& banks = AreaOf(Area::BankSizes);
    if (const auto first = toCheck_.lower_bound(banks.address);
        first != toCheck_.end() && *first < banks.AddressOf(banks.blocks))
        add(banks.id, 0, banks.blocks);
    if (changesSearchPass_) {
        constexpr int kFlags = 8 * kBlockBytes;
        const int firstBlock = kSearchPass.rows.first / kFlags;
        add(Area::Flags, firstBlock, kSearchPass.rows.Last() / kFlags - firstBlock + 1);
        add(Area::PassList, 0, AreaOf(Area::PassList).blocks);
        add(Area::Settings, kSettings2, 1);
    }
}

/// Its list and count are left alone where neither they nor the flags that they follow from change here, so
/// that an edit elsewhere need not read all of them.
void ChangePlan::WatchSearchPass()
{
    CloneImage known;
    Take(Area::Flags, known_, known);
    bool isSame = held_.at(Settings2Address()).Byte(kPassCountByte) == SearchPassCount(image_);
    for (int row = kSearchPass.rows.first; row <= kSearchPass.rows.Last(); ++row)
        isSame = isSame && known.MemEnable(row) == image_.MemEnable(row);
    const auto list = PassData(image_);
    isSame = isSame && std::ranges::equal(list, BlocksOfArea(Area::PassList, known_));
    changesSearchPass_ = !isSame;
}

void ChangePlan::Plan()
{
    wanted_.clear();
    const CloneImage merged = Merged();
    for (const int address : ReadableBlocks())
        if (const MemoryBlock target = Target(merged, address); target != held_.at(address))
            wanted_[address] = target;
    if (!SendsPresets())
        return;
    const MemoryArea& presets = AreaOf(Area::Presets);
    for (const int index : BlocksOf(presets, image_))
        wanted_[presets.AddressOf(index)] = presets.encode(image_, index);
}

/// The image with the flags and links of the receiver where they were not changed here. Rows that exist in
/// files only have flags in the receiver, which are its own.
CloneImage ChangePlan::Merged() const
{
    CloneImage merged = image_;
    CloneImage known;
    CloneImage there;
    for (const Area id : {Area::Flags, Area::Links}) {
        Take(id, known_, known);
        Take(id, held_, there);
    }
    for (int row = 0; row < kMemoryRows; ++row)
        merged.MemData(row).enabled =
            row < kRadioRows ? MergedFlag(image_.MemEnable(row), known.MemEnable(row), there.MemEnable(row))
                             : there.MemEnable(row);
    for (int flag = 0; flag < kLinkFlags; ++flag)
        merged.SetBankLink(flag,
                           MergedFlag(image_.BankLink(flag), known.BankLink(flag), there.BankLink(flag)));
    return merged;
}

/// What a block shall hold.
MemoryBlock ChangePlan::Target(const CloneImage& merged, int address) const
{
    const BlockPlace place = *PlaceOf(address);
    const MemoryBlock& held = held_.at(address);
    const bool isSettings2 = address == Settings2Address();
    MemoryBlock target = place.area->encode(merged, place.index);
    if (place.area->id == Area::PassList)
        return changesSearchPass_ ? target : held;
    if (IsTaken(address) ||
        (!IsChangedHere(address) && place.area->id != Area::Flags && place.area->id != Area::Links))
        target = held;
    if (isSettings2)
        target = WithCount(target, changesSearchPass_ ? SearchPassCount(merged) : held.Byte(kPassCountByte));
    return target;
}

/// The count in the second settings block is no setting: it follows from flags.
bool ChangePlan::IsChangedHere(int address) const
{
    const BlockPlace place = *PlaceOf(address);
    const auto isChanged = [this](const MemoryArea& area, int index) {
        const MemoryBlock& known = known_.at(area.AddressOf(index));
        const MemoryBlock here = area.encode(image_, index);
        return area.AddressOf(index) == Settings2Address() ? WithCount(known, 0) != WithCount(here, 0)
                                                           : known != here;
    };
    if (place.area->id != Area::BankSizes)
        return isChanged(*place.area, place.index);
    for (int index = 0; index < place.area->blocks; ++index)
        if (isChanged(*place.area, index))
            return true;
    return false;
}

bool ChangePlan::IsChangedThere(int address) const
{
    if (address == Settings2Address() && WithCount(known_.at(address), 0) == WithCount(held_.at(address), 0))
        return false;
    return known_.at(address) != held_.at(address) &&
           (from_ == KnownFrom::Receiver || Rewritten(address, known_) != Rewritten(address, held_));
}

void ChangePlan::Check(const BlockMap& read)
{
    for (const auto& [address, block] : read)
        held_[address] = block;
    conflicts_.clear();
    FindConflicts();
    Plan();
}

void ChangePlan::FindConflicts()
{
    const CloneImage merged = Merged();
    std::vector<int> banks;
    bool areBanksInConflict = false;
    for (const int address : toCheck_) {
        const Area area = PlaceOf(address)->area->id;
        const bool isMerged = area == Area::Flags || area == Area::Links || area == Area::PassList;
        const bool collides = !isMerged && IsChangedHere(address) && IsChangedThere(address) &&
                              Target(merged, address) != held_.at(address);
        if (area == Area::BankSizes) {
            banks.push_back(address);
            areBanksInConflict = areBanksInConflict || collides;
        } else if (collides) {
            conflicts_.push_back({{address}});
        }
    }
    if (areBanksInConflict)
        conflicts_.push_back({banks});
}

void ChangePlan::Decide(const std::vector<bool>& takesReceivers)
{
    for (std::size_t i = 0; i < conflicts_.size(); ++i)
        conflicts_[i].takesReceivers = takesReceivers.at(i);
    Plan();
}

bool ChangePlan::IsTaken(int address) const
{
    return std::ranges::any_of(conflicts_, [address](const Conflict& conflict) {
        return conflict.takesReceivers &&
               std::ranges::find(conflict.addresses, address) != conflict.addresses.end();
    });
}

bool ChangePlan::SendsPresets() const
{
    const int address = AreaOf(Area::Settings).address;
    const auto wanted = wanted_.find(address);
    const std::optional<int> before = ModelOf(held_.at(address));
    const std::optional<int> after = wanted != wanted_.end() ? ModelOf(wanted->second) : before;
    return after == image_.Settings().model && (before != after || arePresetsDue_);
}

CloneImage ChangePlan::Result() const
{
    CloneImage result = image_;
    BlockMap blocks = BlocksOfImage(image_);
    std::set<Area> together;
    for (const Conflict& conflict : conflicts_)
        for (const int address : conflict.addresses) {
            if (!conflict.takesReceivers)
                continue;
            blocks[address] = held_.at(address);
            const BlockPlace place = *PlaceOf(address);
            if (place.area->decodesSingly)
                place.area->decode(result, place.index, {&held_.at(address), 1});
            else
                together.insert(place.area->id);
        }
    for (const Area id : together)
        Take(id, blocks, result);
    if (!IsTaken(Settings2Address()))
        result.Settings().passCount = image_.Settings().passCount;
    const CloneImage merged = Merged();
    for (int row = 0; row < kRadioRows; ++row)
        result.MemData(row).enabled = merged.MemEnable(row);
    for (int flag = 0; flag < kLinkFlags; ++flag)
        result.SetBankLink(flag, merged.BankLink(flag));
    return result;
}

}  // namespace rqm5
