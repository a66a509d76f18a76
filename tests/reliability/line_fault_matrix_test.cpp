#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <map>

#include "image/channel_block.h"
#include "link/raw_read.h"
#include "link/receiver_checks.h"
#include "link/simulated_line.h"
#include "reliability/fault_table.h"

namespace rqm5 {
namespace {

using namespace std::chrono_literals;

enum class Kind { Read, Write, Verify };

struct Operation
{
    const char* name;
    Kind kind;
    TransferScope scope;

    /// The shortest ones have the time for a reply to come in, which tells whether it was too short or
    /// garbled; for all others it is enough that they fail.
    bool IsPatient() const { return !scope.settings && !scope.memory; }
};

const Operation kOperations[] = {
    {"WriteOneBank", Kind::Write, MemoryOf(1)}, {"VerifyOneBank", Kind::Verify, MemoryOf(1)},
    {"ReadBanks", Kind::Read, kBanksOnly},      {"WriteBanks", Kind::Write, kBanksOnly},
    {"ReadAll", Kind::Read, kEverything},       {"WriteAll", Kind::Write, kEverything},
};

struct PortFolder
{
    QTemporaryDir folder;
};

/// A line whose receiver and image hold different things, in everything that an operation moves.
struct Line : PortFolder, SimulatedLine
{
    Line()
        : SimulatedLine(DemoImage(1),
                        {.link = folder.filePath(QStringLiteral("port")).toStdString(), .lateDelay = 60ms})
    {
        image = ours;
    }

    TransferResult Run(const Operation& operation)
    {
        if (operation.kind == Kind::Verify)
            return ReadBack(ExpectedAfterWrite(image, operation.scope), link, observer, differences);
        return operation.kind == Kind::Write ? Write(operation.scope) : reader.Read(operation.scope);
    }

    /// \param isFatal  the operation will wait for ten time-outs: they are short then, but not before
    void BreakAfter(int blocks, const FaultCase& fault, bool isFatal, std::chrono::milliseconds timeOut)
    {
        observer.changeAfter = blocks;
        observer.afterBlock = [this, fault, isFatal, timeOut] {
            receiver.SetFaults(fault.Faults(0));
            if (isFatal)
                link.SetTimeOut(timeOut);
        };
    }

    void Mend()
    {
        receiver.SetFaults({});
        link.SetTimeOut(RadioLink::kTimeOut);
        observer = {};
        differences.clear();
    }

    /// The image holds the receiver's contents where a read has brought a block, and its own elsewhere.
    void ExpectImage(Kind kind) const
    {
        const CloneImage theirs = ImageFromMemory(held, ours);
        const auto at = [&](int first, int index = 0) -> const CloneImage& {
            return kind == Kind::Read && observer.read.contains(first + index * 0x10) ? theirs : ours;
        };
        for (int row = 0; row < kRadioRows; ++row) {
            Channel channel = at(0x1000, row).MemData(row);
            channel.enabled = at(0x0250).MemEnable(row);
            EXPECT_TRUE(image.MemData(row) == channel) << row;
        }
        for (int row = 0; row < kVfoRows; ++row)
            EXPECT_TRUE(image.VFOData(row) == at(0x0C00, row).VFOData(row)) << row;
        EXPECT_TRUE(image.Settings() == at(0x0050).Settings());
        for (int bank = 0; bank < kBankSizes; ++bank)
            EXPECT_EQ(image.BankSize(bank), at(0x0120).BankSize(bank)) << bank;
        for (int flag = 0; flag < kLinkFlags; ++flag)
            EXPECT_EQ(image.BankLink(flag), at(0x0260).BankLink(flag)) << flag;
    }

    /// The receiver holds the image's blocks where one was acknowledged, and its own everywhere else.
    /// \param isObeyed  what is true of the block that failed
    void ExpectReceiver(const Operation& operation, bool isObeyed) const
    {
        const ReceiverMemory now = receiver.Memory();
        if (operation.kind != Kind::Write) {
            EXPECT_TRUE(now == held);
            return;
        }
        const std::string last = receiver.CommandLog().back();
        for (const ExpectedBlock& block : ExpectedAfterWrite(image, operation.scope)) {
            const bool isTwiceWritten = block.address == 0x0050 && operation.scope.IsWhole();
            if (isTwiceWritten && !observer.written.contains(0x5B90))
                continue;
            const bool isNew = observer.written.contains(block.address) ||
                               (isObeyed && last.starts_with("QT~F" + HexAddress(block.address) + "W"));
            EXPECT_TRUE(isNew ? Agrees(block, now.At(block.address))
                              : now.At(block.address) == held.At(block.address))
                << block.label.English();
        }
    }

    static CloneImage Ours()
    {
        CloneImage image = DemoImage(2);
        for (int row = 0; row < kRadioRows; ++row) {
            const std::string number = std::to_string(1000000 + row).substr(1);
            DecodeMemoryBlock(image, MemoryBlock("0161" + number), row);
        }
        image.MemData(1100).note = image.MemData(1101).note = "ours";
        image.MemData(1102).enabled = !image.MemEnable(1102);
        image.SetBankSize(3, image.BankSize(3) + 5);
        image.SetBankLink(4, !image.BankLink(4));
        return image;
    }

    const CloneImage ours = Ours();
    const ReceiverMemory held = receiver.Memory();
    std::vector<BlockDifference> differences;
};

/// \param message  a part of the details; nullptr where there is no message
void ExpectMessage(const Line& line, const Operation& operation, const FaultCase& fault, const char* message)
{
    ASSERT_EQ(line.observer.problems.size(), message != nullptr ? 1U : 0U);
    if (message == nullptr)
        return;
    const Problem& problem = line.observer.problems.front();
    EXPECT_EQ(problem.text, fault.TakesTheLine() ? kComPortError : kCommunicationError);
    EXPECT_TRUE(!operation.IsPatient() || problem.details.English().find(message) != std::string::npos)
        << problem.details.English();
    EXPECT_EQ(problem.aftermath.English().starts_with("Sent: "), operation.kind == Kind::Write)
        << problem.aftermath.English();
}

int BlocksIn(const Operation& operation)
{
    static std::map<std::string, int> known;
    int& blocks = known[operation.name];
    if (blocks == 0) {
        Line sound;
        EXPECT_EQ(sound.Run(operation), TransferResult::Done);
        blocks = sound.observer.done;
    }
    return blocks;
}

class LineFaults : public testing::TestWithParam<std::tuple<Operation, FaultCase>>
{
};

TEST_P(LineFaults, InTheMiddleOfAnOperation)
{
    const auto& [operation, fault] = GetParam();
    Line line;
    const char* message = operation.kind == Kind::Write ? fault.writeMessage : fault.readMessage;
    line.BreakAfter(BlocksIn(operation) / 2, fault, message != nullptr, operation.IsPatient() ? 100ms : 10ms);
    EXPECT_EQ(line.Run(operation), message == nullptr ? TransferResult::Done : TransferResult::Failed);
    ExpectMessage(line, operation, fault, message);
    line.ExpectImage(operation.kind);
    line.ExpectReceiver(operation, fault.isObeyed);

    line.Mend();
    EXPECT_EQ(line.Run(operation), TransferResult::Done) << "the fault is gone";
    EXPECT_TRUE(line.observer.problems.empty());
    line.ExpectImage(operation.kind);
    line.ExpectReceiver(operation, true);
    EXPECT_EQ(line.differences.empty(), operation.kind != Kind::Verify);
}

INSTANTIATE_TEST_SUITE_P(, LineFaults,
                         testing::Combine(testing::ValuesIn(kOperations), testing::ValuesIn(kFaults)),
                         [](const auto& test) {
                             return std::get<0>(test.param).name + std::get<1>(test.param).Name();
                         });

TEST(RawRead, TellsWhatCameBack)
{
    Line sound;
    const std::string usual = ReadRaw(sound.link, 0x1000).received;
    for (const FaultCase& fault : kFaults) {
        Line line;
        line.receiver.SetFaults(fault.Faults(0));
        const RawReply raw = ReadRaw(line.link, 0x1000);
        EXPECT_EQ(raw.outcome, fault.raw) << fault.text;
        EXPECT_EQ(raw.received != usual, fault.isHeard) << fault.text;
        line.Mend();
        EXPECT_TRUE(ReadRaw(line.link, 0x1000).IsFrame()) << fault.text;
    }
}

// A reply that comes after the time-out may be the reply to the next attempt or to none: how an operation
// ends depends on moments. What holds is that it says so when it fails, and that repeating it is enough.
TEST(LateReplies, LeaveNothingThatRepeatingDoesNotMend)
{
    for (const Operation& operation : kOperations) {
        SCOPED_TRACE(operation.name);
        Line line;
        line.link.SetTimeOut(10ms);
        line.receiver.SetFaults({ParseFault("late:3:after=5").value()});
        const TransferResult result = line.Run(operation);
        EXPECT_EQ(line.observer.problems.empty(), result == TransferResult::Done);
        line.Mend();
        EXPECT_EQ(line.Run(operation), TransferResult::Done);
        line.ExpectReceiver(operation, true);
    }
}

}  // namespace
}  // namespace rqm5
