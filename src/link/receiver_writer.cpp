#include "link/receiver_writer.h"

#include <algorithm>

#include "image/image_change.h"
#include "link/line_notes.h"
#include "memory/bank_layout.h"

namespace rqm5 {

using enum TransferResult;

namespace {

constexpr int kRounds = 4;
constexpr int kAsks = 3;

}  // namespace

ReceiverWriter::ReceiverWriter(const CloneImage& image, const TransferScope& scope, RadioLink& link,
                               TransferObserver& observer)
    : image_(image), scope_(scope), observer_(observer), blocks_(link, observer), plan_(image, scope)
{
}

TransferResult ReceiverWriter::Write()
{
    TransferResult result = Done;
    for (WriteSection& section : plan_.Sections()) {
        BeginPart(section);
        result = Run(section);
        if (result != Done)
            break;
    }
    if (result == Done) {
        isInDoubt_ = blocks_.HaveRepliesShifted() || isInDoubt_;
        result = observer_.IsCancelled() ? Cancelled : Done;
    }
    if (isInMemory_ && scope_.memory)
        observer_.ProgressEnded();
    return result;
}

/// Tells of the memory part before its first block.
void ReceiverWriter::BeginPart(const WriteSection& section)
{
    if (!section.ofMemory || isInMemory_)
        return;
    isInMemory_ = true;
    if (scope_.IsWhole())
        observer_.GroupChosen(scope_.selector);
    if (scope_.memory)
        observer_.ProgressStarted(std::max(0, TransferRows(image_, scope_.selector).count - 1));
}

TransferResult ReceiverWriter::Run(WriteSection& section)
{
    if (!section.IsRead())
        return RunSteps(section);
    // What is read here goes back to the receiver: it must be right before the next block is sent.
    const bool wasInDoubt = blocks_.IsInDoubt();
    for (int round = 0; round < kRounds; ++round) {
        read_.clear();
        TransferResult result = RunSteps(section);
        if (result == Done)
            result = AskAgain(section);
        if (result != Done)
            return result;
        if (!blocks_.HaveRepliesShifted()) {
            if (section.area->id == Area::Flags)
                MergeFlags();
            return Done;
        }
        isInDoubt_ = isInDoubt_ || wasInDoubt;
    }
    Problem problem = ShiftedReplies();
    problem.aftermath = plan_.Summary();
    observer_.Message(problem);
    return Failed;
}

TransferResult ReceiverWriter::RunSteps(WriteSection& section)
{
    for (std::size_t step = 0; step < section.blocks.size(); ++step)
        if (const TransferResult result = Step(section, step); result != Done)
            return result;
    return Done;
}

/// Asks up to three times for blocks with characters that are no hex digits.
TransferResult ReceiverWriter::AskAgain(WriteSection& section)
{
    for (std::size_t step = 0; step < section.blocks.size(); ++step)
        for (int ask = 0; ask < kAsks && !read_[step].IsHex(); ++ask) {
            const BlockResult again = blocks_.Read(section.AddressOf(step), read_[step]);
            if (const TransferResult result = Conclude(again, section.states[step]); result != Done)
                return result;
        }
    return Done;
}

TransferResult ReceiverWriter::Step(WriteSection& section, std::size_t step)
{
    if (section.area->id == Area::Channels)
        observer_.ProgressMoved(static_cast<int>(step), section.blocks[step]);
    const int address = section.AddressOf(step);
    if (!section.IsRead())
        return Conclude(blocks_.Write(address, ContentsOf(section, step)), section.states[step]);
    return Conclude(blocks_.Read(address, read_.emplace_back()), section.states[step]);
}

MemoryBlock ReceiverWriter::ContentsOf(const WriteSection& section, std::size_t step) const
{
    if (section.kind != WriteSection::Kind::SendCount)
        return section.area->encode(image_, section.blocks[step]);
    // The count goes into the block as the receiver holds it, not as the image does.
    MemoryBlock block = read_[step];
    block.SetByte(kPassCountByte, SearchPassCount(image_));
    return block;
}

/// Flags outside the group stay the receiver's own.
void ReceiverWriter::MergeFlags()
{
    const RowRange rows = TransferRows(image_, scope_.selector);
    CloneImage held = image_;
    AreaOf(Area::Flags).decode(held, 0, read_);
    for (const auto& flag : Difference(image_, held).MemEnable)
        if (!rows.Contains(flag.index)) {
            // Rows behind those of the receiver have flags, too, which nobody can see.
            otherFlags_ += flag.index < kRadioRows ? 1 : 0;
            image_.MemData(flag.index).enabled = flag.after;
        }
}

TransferResult ReceiverWriter::Conclude(const BlockResult& result, StepState& state)
{
    return ConcludeStep(result, state, plan_, observer_);
}

TransferResult ConcludeStep(BlockResult result, StepState& state, const WritePlan& plan,
                            TransferObserver& observer)
{
    if (result.result == Done)
        state = StepState::Sent;
    else if (result.result == Cancelled)
        state = result.attempts > 0 ? StepState::UnderWay : StepState::NotSent;
    else
        state = result.attempts == 0 || result.outcome == ReplyOutcome::NotOpened ? StepState::NotSent
                                                                                  : StepState::Refused;
    if (result.problem) {
        result.problem->aftermath = plan.Summary();
        observer.Message(*result.problem);
    }
    return result.result;
}

}  // namespace rqm5
