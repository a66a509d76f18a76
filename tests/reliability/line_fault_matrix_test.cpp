#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <set>

#include "image/channel_record.h"
#include "link/raw_read.h"
#include "link/receiver_checks.h"
#include "link/simulated_line.h"
#include "link/write_record.h"
#include "memory/bank_layout.h"

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

/// What a fault leads to that strikes ten times in a row in the middle of an operation.
struct FaultCase
{
    const char* text;
    const char* readMessage;  ///< text and a part of the details; nullptr: the operation succeeds
    const char* writeMessage;
    bool isObeyed;         ///< the receiver keeps the block whose write failed
    RawReply::Result raw;  ///< of a single read
};

using enum RawReply::Result;

const FaultCase kFaults[] = {
    {"none", nullptr, nullptr, true, Frame},
    {"no-echo", nullptr, "too short", true, Frame},
    {"drop", "too short", "too short", true, TooShort},
    {"cut", "too short", "too short", true, TooShort},
    {"garble", "garbled", "garbled", true, NoFrame},
    {"ng", "too short", "did not answer OK", false, TooShort},
    {"pieces", nullptr, nullptr, true, Frame},
    {"noise", nullptr, nullptr, true, Frame},
    {"hang-up", "device", "device", false, PortFailed},
    {"silent", "sent nothing", "sent nothing", false, TooShort},
};

/// Tells what was read from what was written.
struct Observer : RecordingObserver
{
    void BlockDone(int address, bool isWritten) override
    {
        RecordingObserver::BlockDone(address, isWritten);
        (isWritten ? written : read).insert(address);
    }

    std::set<int> read, written;
};

/// A line whose receiver and image hold different things, in everything that an operation moves.
class Line
{
  public:
    Line()
        : line_(DemoImage(1),
                {.link = folder_.filePath(QStringLiteral("port")).toStdString(), .lateDelay = 60ms})
    {
        line_.image = ours_;
    }

    TransferResult Run(const Operation& operation)
    {
        observer_ = {};
        differences_.clear();
        if (operation.kind == Kind::Verify)
            return ReadBack(ExpectedAfterWrite(line_.image, operation.scope), line_.link, observer_,
                            differences_);
        WriteRecord record(line_.image, operation.scope, observer_);
        ReceiverWriter writer(line_.image, line_.link, record);
        ReceiverReader reader(line_.image, line_.link, observer_);
        return operation.kind == Kind::Write ? WriteScope(writer, operation.scope)
                                             : ReadScope(reader, operation.scope);
    }

    /// After so many commands the fault strikes ten times in a row, or once when it takes the line away.
    void Spoil(const FaultCase& fault, int after)
    {
        const bool isNone = std::string_view(fault.text) == "none";
        const std::string text = fault.text +
                                 std::string(std::string_view(fault.text) == "hang-up" ? ":1" : ":10") +
                                 ":after=" + std::to_string(after);
        line_.receiver.SetFaults(isNone ? std::vector<Fault>{}
                                        : std::vector<Fault>{ParseFault(text).value()});
    }

    void Hurry() { line_.link.SetTimeOut(10ms); }

    void Mend()
    {
        line_.receiver.SetFaults({});
        line_.link.SetTimeOut(RadioLink::kTimeOut);
    }

    int Commands() const { return static_cast<int>(line_.receiver.CommandLog().size()); }

    /// The image holds the receiver's contents where a block was read, and its own everywhere else.
    void ExpectImage()
    {
        const CloneImage theirs = ImageFromMemory(held_, ours_);
        for (std::size_t row = 0; row < kRadioRows; ++row)
            EXPECT_EQ(line_.image.MemData[row], (WasRead(0x1000, row) ? theirs : ours_).MemData[row]) << row;
        for (std::size_t row = 0; row < kVfoRows; ++row)
            EXPECT_EQ(line_.image.VFOData[row], (WasRead(0x0C00, row) ? theirs : ours_).VFOData[row]) << row;
        EXPECT_EQ(line_.image.Settings.model, (WasRead(0x0040, 1) ? theirs : ours_).Settings.model);
        EXPECT_EQ(line_.image.BankSize, (WasRead(0x00C0, 6) ? theirs : ours_).BankSize);
        EXPECT_EQ(line_.image.BankLink, (WasRead(0x0260, 0) ? theirs : ours_).BankLink);
    }

    void ExpectImageUntouched() const
    {
        EXPECT_EQ(line_.image.MemData, ours_.MemData);
        EXPECT_EQ(line_.image.MemText, ours_.MemText);
        EXPECT_EQ(line_.image.VFOData, ours_.VFOData);
        EXPECT_EQ(line_.image.BankSize, ours_.BankSize);
        EXPECT_EQ(line_.image.Settings.model, ours_.Settings.model);
    }

    /// The receiver holds the image's blocks where one was acknowledged, and its own everywhere else.
    /// \param isObeyed  what is true of the block that failed
    void ExpectReceiver(const Operation& operation, bool isObeyed)
    {
        const ReceiverMemory now = line_.receiver.Memory();
        if (operation.kind != Kind::Write) {
            EXPECT_TRUE(now == held_);
            return;
        }
        const int failed = observer_.failed.empty() ? -1 : observer_.failed.front();
        for (const ExpectedBlock& block : ExpectedAfterWrite(line_.image, operation.scope)) {
            const bool isTwiceWritten = block.address == 0x0050 && operation.scope.GoesOnAfterSettings();
            if (isTwiceWritten && !observer_.written.contains(0x5B90))
                continue;
            const bool isNew =
                observer_.written.contains(block.address) || (block.address == failed && isObeyed);
            EXPECT_TRUE(isNew ? Agrees(block, now.At(block.address))
                              : now.At(block.address) == held_.At(block.address))
                << block.label;
        }
    }

    SimulatedLine& Wire() { return line_; }
    const Observer& Told() const { return observer_; }
    bool Differs() const { return !differences_.empty(); }

  private:
    bool WasRead(int first, std::size_t index) const
    {
        return observer_.read.contains(first + static_cast<int>(index) * 0x10);
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

    const CloneImage ours_ = Ours();
    const QTemporaryDir folder_;
    SimulatedLine line_;
    const ReceiverMemory held_ = line_.receiver.Memory();
    Observer observer_;
    std::vector<BlockDifference> differences_;
};

int CommandsOf(const Operation& operation)
{
    Line line;
    EXPECT_EQ(line.Run(operation), TransferResult::Done) << operation.name;
    return line.Commands();
}

void ExpectMessage(const Line& line, const Operation& operation, const FaultCase& fault, const char* message)
{
    const bool isPortLost = fault.raw == PortFailed;
    ASSERT_EQ(line.Told().problems.size(), message != nullptr ? 1U : 0U);
    if (message == nullptr)
        return;
    const Problem& problem = line.Told().problems.front();
    EXPECT_EQ(problem.text, isPortLost ? kComPortError : kCommunicationError);
    EXPECT_NE(problem.details.find(message), std::string::npos) << problem.details;
    EXPECT_EQ(problem.aftermath.find("Sent: ") == 0, operation.kind == Kind::Write) << problem.aftermath;
}

void TryInTheMiddle(const Operation& operation, const FaultCase& fault, int commands)
{
    SCOPED_TRACE(std::string(operation.name) + ", " + fault.text);
    const bool writes = operation.kind == Kind::Write;
    Line line;
    line.Spoil(fault, commands / 2);
    const char* message = writes ? fault.writeMessage : fault.readMessage;
    if (message != nullptr)
        line.Hurry();
    const TransferResult result = line.Run(operation);
    EXPECT_EQ(result, message == nullptr ? TransferResult::Done : TransferResult::Failed);
    ExpectMessage(line, operation, fault, message);
    if (operation.kind == Kind::Read)
        line.ExpectImage();
    else
        line.ExpectImageUntouched();
    line.ExpectReceiver(operation, fault.isObeyed);

    line.Mend();
    EXPECT_EQ(line.Run(operation), TransferResult::Done) << "the fault is gone";
    EXPECT_TRUE(line.Told().problems.empty());
    if (operation.kind == Kind::Read)
        line.ExpectImage();
    line.ExpectReceiver(operation, true);
    EXPECT_EQ(line.Differs(), operation.kind == Kind::Verify);
}

TEST(LineFaults, EveryFaultInTheMiddleOfEveryOperation)
{
    for (const Operation& operation : kOperations) {
        const int commands = CommandsOf(operation);
        for (const FaultCase& fault : kFaults)
            TryInTheMiddle(operation, fault, commands);
    }
}

TEST(LineFaults, ARawReadTellsWhatCameBack)
{
    for (const FaultCase& fault : kFaults) {
        Line line;
        line.Spoil(fault, 0);
        if (fault.raw == TooShort)
            line.Hurry();
        EXPECT_EQ(ReadRaw(line.Wire().link, 0x1000).result, fault.raw) << fault.text;
        line.Mend();
        EXPECT_TRUE(ReadRaw(line.Wire().link, 0x1000).IsFrame()) << fault.text;
        line.ExpectImageUntouched();
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
        line.Wire().receiver.SetFaults({ParseFault("late:3:after=5").value()});
        const TransferResult result = line.Run(operation);
        EXPECT_EQ(line.Told().problems.empty(), result == TransferResult::Done);
        line.Mend();
        EXPECT_EQ(line.Run(operation), TransferResult::Done);
        line.ExpectReceiver(operation, true);
    }
}

}  // namespace
}  // namespace rqm5
