#include "link/change_writer.h"

#include <algorithm>
#include <cmath>

#include "link/line_notes.h"
#include "link/receiver_checks.h"
#include "link/receiver_writer.h"

namespace rqm5 {
namespace {

using enum TransferResult;

const MemoryBlock& Everything()
{
    static const MemoryBlock mask(std::string(kBlockChars, 'F'));
    return mask;
}

ExpectedBlock Expected(int address, const MemoryBlock& contents, const CloneImage& image)
{
    const BlockPlace place = *PlaceOf(address);
    return {address, contents, Everything(), place.area->label(image, place.index)};
}

/// True when of the second settings block nothing but the count is to be written.
bool IsCountAlone(const ChangePlan& changes)
{
    const int address = AreaOf(Area::Settings).AddressOf(kSettings2);
    const auto wanted = changes.Wanted().find(address);
    if (wanted == changes.Wanted().end())
        return false;
    MemoryBlock held = changes.Held().at(address);
    held.SetByte(kPassCountByte, wanted->second.Byte(kPassCountByte));
    return held == wanted->second;
}

std::set<int> Addresses(const BlockMap& blocks)
{
    std::set<int> addresses;
    for (const auto& [address, block] : blocks)
        addresses.insert(address);
    return addresses;
}

}  // namespace

std::vector<int> BlocksToLearn(const ReceiverKnowledge& knowledge)
{
    if (knowledge.HasEarlier()) {
        const std::set<int> telling = ReceiverKnowledge::TellingBlocks();
        return {telling.begin(), telling.end()};
    }
    std::vector<int> unknown;
    std::ranges::copy_if(ReadableBlocks(), std::back_inserter(unknown),
                         [&](int address) { return knowledge.Find(address) == nullptr; });
    return unknown;
}

BlockMap KnownContents(const ReceiverKnowledge& knowledge)
{
    BlockMap known;
    for (const int address : ReadableBlocks())
        known[address] = knowledge.Find(address)->contents;
    return known;
}

TransferResult ReadBlocks(const std::vector<int>& addresses, const CloneImage& image, RadioLink& link,
                          TransferObserver& observer, BlockMap& read)
{
    std::vector<ExpectedBlock> asked;
    asked.reserve(addresses.size());
    for (const int address : addresses)
        asked.push_back(Expected(address, MemoryBlock(), image));
    std::vector<BlockDifference> differences;
    if (const TransferResult result = ReadBack(asked, link, observer, differences); result != Done)
        return result;
    for (const int address : addresses)
        read[address] = MemoryBlock();
    std::vector<Message> unreadable;
    for (const auto& [block, contents] : differences) {
        read[block.address] = contents;
        if (!contents.IsHex())
            unreadable.push_back(block.label);
    }
    if (!unreadable.empty()) {
        observer.Message(UnreadableBlocks(unreadable));
        return Failed;
    }
    for (const int address : addresses)
        observer.BlockRead(address, read[address]);
    return Done;
}

KnownBeforeCheck::KnownBeforeCheck(ReceiverKnowledge& knowledge, const std::vector<int>& addresses)
    : knowledge_(knowledge), addresses_(addresses)
{
    for (const int address : addresses)
        if (const KnownBlock* known = knowledge.Find(address))
            before_[address] = *known;
}

KnownBeforeCheck::~KnownBeforeCheck()
{
    knowledge_.PutBack(addresses_, before_);
}

std::vector<ExpectedBlock> ExpectedAfterChanges(const CloneImage& image, const ChangePlan& changes)
{
    std::vector<ExpectedBlock> expected;
    for (const auto& [address, contents] : changes.Wanted())
        if (PlaceOf(address)->area->id != Area::Presets)
            expected.push_back(Expected(address, contents, image));
    return expected;
}

Message AboutTime(std::size_t exchanges)
{
    constexpr double kSecondsOfABlock = 0.05;  // 48 characters at 960 a second
    constexpr int kMinute = 60;
    constexpr int kNearlyAMinute = 50;
    const auto seconds = static_cast<int>(std::lround(kSecondsOfABlock * static_cast<double>(exchanges)));
    if (seconds == 0)
        return MESSAGE("less than a second");
    if (seconds < kNearlyAMinute)
        return Counted(seconds, MESSAGE("about one second"), MESSAGE("about %1 seconds"));
    const int minutes = (seconds + kMinute / 2) / kMinute;
    return Counted(minutes, MESSAGE("about one minute"), MESSAGE("about %1 minutes"));
}

Message UnknownNote(std::size_t blocks)
{
    return {blocks == ReadableBlocks().size()
                ? MESSAGE("The receiver was never read in this run: %1 blocks, %2")
                : MESSAGE("Not known of the receiver: %1 blocks, %2"),
            {static_cast<int>(blocks), AboutTime(blocks)}};
}

Message NothingChanged()
{
    return MESSAGE("Nothing was written.");
}

ChangeWriter::ChangeWriter(const CloneImage& image, const ChangePlan& changes, RadioLink& link,
                           TransferObserver& observer)
    : changes_(changes),
      observer_(observer),
      blocks_(link, observer),
      plan_(image, Addresses(changes.Wanted()), IsCountAlone(changes))
{
}

TransferResult ChangeWriter::Write()
{
    TransferResult result = Done;
    int done = 0;
    observer_.ProgressStarted(std::max(0, plan_.BlockCount() - 1));
    for (WriteSection& section : plan_.Sections())
        for (std::size_t step = 0; step < section.blocks.size() && result == Done; ++step) {
            const int address = section.AddressOf(step);
            observer_.ProgressMoved(done++, MemoryRowAt(address));
            result = ConcludeStep(blocks_.Write(address, changes_.Wanted().at(address)), section.states[step],
                                  plan_, observer_);
        }
    if (result == Done) {
        isInDoubt_ = blocks_.HaveRepliesShifted();
        result = observer_.IsCancelled() ? Cancelled : Done;
    }
    observer_.ProgressEnded();
    return result;
}

}  // namespace rqm5
