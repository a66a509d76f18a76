#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "image/channel_record.h"
#include "link/receiver_checks.h"
#include "link/simulated_line.h"
#include "link/write_record.h"
#include "memory/bank_layout.h"
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
};

constexpr TransferScope kAll{};
constexpr TransferScope kSettings{.memory = false};
constexpr TransferScope kOneBank{.settings = false, .selector = 1};
constexpr TransferScope kSearchPass{.settings = false, .selector = kSelectSearchPass};
constexpr TransferScope kBanks{.settings = false, .memory = false, .banks = true};

const Operation kOperations[] = {
    {"read settings", Kind::Read, kSettings},
    {"write settings", Kind::Write, kSettings},
    {"read one bank", Kind::Read, kOneBank},
    {"write one bank", Kind::Write, kOneBank},
    {"read Search Pass", Kind::Read, kSearchPass},
    {"write Search Pass", Kind::Write, kSearchPass},
    {"read banks", Kind::Read, kBanks},
    {"write banks", Kind::Write, kBanks},
    {"read all", Kind::Read, kAll},
    {"write all", Kind::Write, kAll},
    {"verify settings", Kind::Verify, kSettings},
    {"verify one bank", Kind::Verify, kOneBank},
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
        observer = {};
        differences.clear();
        if (operation.kind == Kind::Verify)
            return ReadBack(ExpectedAfterWrite(image, operation.scope), link, observer, differences);
        WriteRecord record(image, operation.scope, observer);
        ReceiverWriter recorded(image, link, record);
        return operation.kind == Kind::Write ? WriteScope(recorded, operation.scope)
                                             : ReadScope(reader, operation.scope);
    }

    void Break(const FaultCase& fault, std::size_t after)
    {
        receiver.SetFaults(fault.Faults(static_cast<int>(after)));
    }

    void Hurry() { link.SetTimeOut(10ms); }

    void Mend()
    {
        receiver.SetFaults({});
        link.SetTimeOut(RadioLink::kTimeOut);
    }

    /// The image holds the receiver's contents where a read has brought a block, and its own elsewhere.
    void ExpectImage(Kind kind) const
    {
        const CloneImage theirs = ImageFromMemory(held, ours);
        const auto at = [&](int first, std::size_t index = 0) -> const CloneImage& {
            const int address = first + static_cast<int>(index) * 0x10;
            return kind == Kind::Read && observer.read.contains(address) ? theirs : ours;
        };
        for (std::size_t row = 0; row < kRadioRows; ++row)
            EXPECT_EQ(image.MemData[row], at(0x1000, row).MemData[row]) << row;
        for (std::size_t row = 0; row < kVfoRows; ++row)
            EXPECT_EQ(image.VFOData[row], at(0x0C00, row).VFOData[row]) << row;
        EXPECT_EQ(image.Settings.model, at(0x0050).Settings.model);
        EXPECT_EQ(image.BankSize, at(0x0120).BankSize);
        EXPECT_EQ(image.BankLink, at(0x0260).BankLink);
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
        const int failed = observer.failed.empty() ? -1 : observer.failed.front();
        for (const ExpectedBlock& block : ExpectedAfterWrite(image, operation.scope)) {
            const bool isTwiceWritten = block.address == 0x0050 && operation.scope.GoesOnAfterSettings();
            if (isTwiceWritten && !observer.written.contains(0x5B90))
                continue;
            const bool isNew =
                observer.written.contains(block.address) || (block.address == failed && isObeyed);
            EXPECT_TRUE(isNew ? Agrees(block, now.At(block.address))
                              : now.At(block.address) == held.At(block.address))
                << block.label;
        }
    }

    static CloneImage Ours()
    {
        CloneImage image = DemoImage(2);
        for (int row = 0; row < kRadioRows; ++row) {
            const std::string number = std::to_string(1000000 + row).substr(1);
            DecodeMemoryBlock(image, MemoryBlock("0161" + number), row);
        }
        image.BankSize[3] += 5;
        image.BankLink[4] = !image.BankLink[4];
        return image;
    }

    const CloneImage ours = Ours();
    const ReceiverMemory held = receiver.Memory();
    std::vector<BlockDifference> differences;
};

void ExpectMessage(const Line& line, const Operation& operation, const FaultCase& fault, const char* message)
{
    ASSERT_EQ(line.observer.problems.size(), message != nullptr ? 1U : 0U);
    if (message == nullptr)
        return;
    const Problem& problem = line.observer.problems.front();
    EXPECT_EQ(problem.text, fault.TakesTheLine() ? kComPortError : kCommunicationError);
    EXPECT_NE(problem.details.find(message), std::string::npos) << problem.details;
    EXPECT_EQ(problem.aftermath.find("Sent: ") == 0, operation.kind == Kind::Write) << problem.aftermath;
}

void TryInTheMiddle(const Operation& operation, const FaultCase& fault, std::size_t commands)
{
    SCOPED_TRACE(std::string(operation.name) + ", " + fault.text);
    Line line;
    line.Break(fault, commands / 2);
    const char* message = operation.kind == Kind::Write ? fault.writeMessage : fault.readMessage;
    if (message != nullptr)
        line.Hurry();
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

TEST(LineFaults, EveryFaultInTheMiddleOfEveryOperation)
{
    for (const Operation& operation : kOperations) {
        Line sound;
        EXPECT_EQ(sound.Run(operation), TransferResult::Done) << operation.name;
        for (const FaultCase& fault : kFaults)
            TryInTheMiddle(operation, fault, sound.receiver.CommandLog().size());
    }
}

TEST(LineFaults, ARawReadTellsWhatCameBack)
{
    for (const FaultCase& fault : kFaults) {
        Line line;
        line.Break(fault, 0);
        if (fault.raw == RawReply::Result::TooShort)
            line.Hurry();
        EXPECT_EQ(ReadRaw(line.link, 0x1000).result, fault.raw) << fault.text;
        line.Mend();
        EXPECT_TRUE(ReadRaw(line.link, 0x1000).IsFrame()) << fault.text;
    }
}

// A reply that comes after the time-out may be the reply to the next attempt or to none: how an operation
// ends depends on moments. What holds is that it says so when it fails, and that repeating it is enough.
TEST(LineFaults, LateRepliesLeaveNothingThatRepeatingDoesNotMend)
{
    for (const Operation& operation : kOperations) {
        SCOPED_TRACE(operation.name);
        Line line;
        line.Hurry();
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
