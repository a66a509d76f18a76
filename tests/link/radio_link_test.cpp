#include "link/radio_link.h"

#include <gtest/gtest.h>

#include <QTimer>
#include <functional>

#include "link/block_link.h"
#include "link/receiver_reader.h"
#include "link/receiver_writer.h"
#include "link/recording_observer.h"
#include "link/reply_frames.h"
#include "link/reply_outcome.h"

namespace rqm5 {
namespace {

using namespace std::chrono_literals;
using Pieces = std::vector<std::string>;

const std::string kBlock = "0145000000000100081C080000600000";
const std::string kFrame = "\r\n" + kBlock + "\r\n";
const std::string kRead = "QT~F1000R\r";
const std::string kWrite = "QT~F1000W" + kBlock + "\r";
const std::string kOk = "\r\nOK\r\n";

/// A link to a port that answers each command with pieces that arrive one by one.
struct Link : SerialPort
{
    explicit Link(const Pieces& pieces, std::chrono::milliseconds timeOut = 60ms)
        : answers([pieces](std::size_t) { return pieces; })
    {
        link.SetTimeOut(timeOut);
    }
    bool Open() override { return isOpen = opens; }
    void Close() override { isOpen = false; }
    bool IsOpen() const override { return isOpen; }
    bool Send(const std::string& text) override
    {
        sent.push_back(text);
        if (!answers)
            return false;
        script = answers(sent.size());
        Next();
        return true;
    }
    std::string TakeReceived() override { return std::exchange(pending, {}); }
    QString Device() const override { return {}; }
    PortFault Fault() const override { return PortFault::Other; }
    QString Reason() const override { return {}; }

    void Next()
    {
        if (script.empty())
            return;
        QTimer::singleShot(0, this, [this] {
            pending += script.front();
            script.erase(script.begin());
            emit Received();
            Next();
        });
    }

    std::function<Pieces(std::size_t attempt)> answers;
    bool opens = true, isOpen = false;
    Pieces script, sent;
    std::string pending;
    RadioLink link{*this};
};

TEST(RadioLink, TakesTheLastThirtySixCharactersAsTheReply)
{
    const std::string odd = "\r\nnot hex, taken as it comes------\r\n";
    const std::tuple<const char*, Pieces, std::string> kCases[] = {
        {"no echo", {kFrame}, kFrame},
        {"fragments", {kRead.substr(0, 3), kRead.substr(3) + "\r", "\n0145", kFrame.substr(6)}, kFrame},
        {"noise first", {"\xFF\x01~" + kRead + "##", kFrame}, kFrame},
        {"no hex digits", {kRead + odd}, odd},
        {"silence", {}, "ERROR01"},
        {"one character short", {kFrame.substr(1)}, "ERROR01"},
        {"no line end in front", {kRead + kFrame.substr(0, 1) + "?" + kFrame.substr(2)}, "ERROR02"},
        {"no line end behind", {kRead + kFrame.substr(0, 35) + "?"}, "ERROR02"},
    };
    for (const auto& [what, pieces, reply] : kCases)
        EXPECT_EQ(Link(pieces).link.SendReadCommand(kRead), reply) << what;

    Link babbling({std::string(100000, 'x') + kFrame});
    EXPECT_EQ(babbling.link.SendReadCommand(kRead), kFrame);
    EXPECT_LT(babbling.link.LastReceived().size(), 100000U);
    Link prompt({});
    bool hasWaited = false;
    prompt.answers = [&](std::size_t) {
        QTimer::singleShot(0, &prompt, [&] { hasWaited = true; });
        prompt.pending = kFrame;
        return Pieces{};
    };
    EXPECT_EQ(prompt.link.SendReadCommand(kRead), kFrame);
    EXPECT_FALSE(hasWaited);
}

TEST(RadioLink, JudgesAnAcknowledgementByLengthAndEnd)
{
    const std::tuple<const char*, Pieces, int> kCases[] = {
        {"fragments", {kWrite.substr(0, 40), kWrite.substr(40) + "\r\nO", "K\r\n"}, 0},
        {"NG", {kWrite + "\r\nNG\r\n"}, 1},
        {"no line end behind", {kWrite + "\r\nOK\r?"}, 1},
        {"no echo", {kOk}, 2},
        {"45 characters", {std::string(39, '-') + kOk}, 2},
        {"46 characters", {std::string(40, '-') + kOk}, 0},
        {"after 46 it waits on", {std::string(40, '-') + kOk, "late"}, 1},
    };
    for (const auto& [what, pieces, code] : kCases)
        EXPECT_EQ(Link(pieces).link.SendWriteCommand(kWrite), code) << what;
    // After 47 it does not.
    EXPECT_EQ(Link({std::string(41, '-') + kOk, "late"}, 60s).link.SendWriteCommand(kWrite), 0);
}

TEST(RadioLink, PortFailuresEndTheWaitAtOnce)
{
    Link closed({kFrame});
    closed.opens = false;
    EXPECT_EQ(closed.link.SendReadCommand(kRead), "ERROR00");
    EXPECT_EQ(closed.link.SendWriteCommand(kWrite), 3);
    EXPECT_TRUE(closed.sent.empty());
    Link unplugged({}, 60s);
    QTimer::singleShot(0, &unplugged, &SerialPort::Failed);
    EXPECT_EQ(unplugged.link.SendWriteCommand(kWrite), 3);
    Link dead({});
    dead.answers = nullptr;
    EXPECT_EQ(dead.link.SendReadCommand(kRead), "ERROR00");
}

TEST(RetryRule, TriesABlockTenTimesUnlessItIsCancelled)
{
    CloneImage image;
    for (const std::size_t goodAttempt : {1U, 10U, 11U}) {
        Link port({}, 2ms);
        port.answers = [&](std::size_t attempt) {
            return Pieces{attempt % goodAttempt == 0 ? kFrame : "bad"};
        };
        RecordingObserver observer;
        const bool isGood = ReceiverReader(image, port.link, observer).ReadBankPage() == TransferResult::Done;
        EXPECT_EQ(isGood, goodAttempt <= 10);
        EXPECT_EQ(port.sent.size(), isGood ? 8 * goodAttempt : 10);
        EXPECT_EQ(observer.problems.size(), isGood ? 0U : 1U);
    }
    Link port({}, 60s);
    RecordingObserver observer;
    QTimer::singleShot(0, &port, [&] {
        observer.cancelled = true;
        port.link.Cancel();
    });
    EXPECT_EQ(ReceiverReader(image, port.link, observer).ReadBankPage(), TransferResult::Cancelled);
    EXPECT_TRUE(port.sent.size() == 1 && observer.problems.empty());

    // A pause after the cancel would last six seconds here.
    EXPECT_TRUE(port.link.MayStillReply());

    Link silent({}, 2ms);
    RecordingObserver impatient;
    silent.answers = [&](std::size_t attempt) {
        impatient.cancelled = attempt == 10;
        return Pieces{};
    };
    EXPECT_EQ(ReceiverReader(image, silent.link, impatient).ReadBankPage(), TransferResult::Cancelled);
    EXPECT_TRUE(silent.sent.size() == 10 && impatient.problems.empty());
}

/// A frame whose block tells by its first byte to which command it belongs.
std::string FrameOf(std::size_t number)
{
    MemoryBlock block;
    block.SetByte(0, static_cast<int>(number));
    return "\r\n" + block.String() + "\r\n";
}

// Of the first block a bad reply comes, and then replies that are late: they belong to it, whenever they
// come.
TEST(QuietLine, LateRepliesAreHeardOutBeforeTheNextCommand)
{
    const std::string garbled = std::string(40, '~') + "\r\n";
    const std::pair<const char*, std::vector<Pieces>> kCases[] = {
        {"after a failed attempt", {{garbled, FrameOf(0)}, {FrameOf(0)}}},
        {"after a missing reply", {{"short"}, {FrameOf(0), FrameOf(0)}}},
    };
    for (const auto& [what, script] : kCases) {
        Link port({}, 200ms);
        port.answers = [&script = script](std::size_t number) {
            return number <= script.size() ? script[number - 1] : Pieces{FrameOf(number - 2)};
        };
        RecordingObserver observer;
        BlockLink blocks(port.link, observer);
        for (int number = 0; number < 3; ++number) {
            MemoryBlock block;
            EXPECT_EQ(blocks.Read(0x1000 + number * 0x10, block).result, TransferResult::Done) << what;
            EXPECT_EQ(block.Byte(0), number) << what;
        }
        EXPECT_EQ(port.sent.size(), 4U) << what;
        EXPECT_EQ(observer.repeated, 1) << what;
        EXPECT_FALSE(blocks.HaveRepliesShifted()) << what;
    }
}

TEST(QuietLine, HearsAPauseWithinAFrameOutAfterAnAttemptAndALongerOneAfterAMissingReply)
{
    // In parts of the time-out. Timers of one thread end in the order of their times, however busy it is.
    for (const auto& [wait, percent] : {std::pair(&RadioLink::Rest, 7), std::pair(&RadioLink::Settle, 16)}) {
        Link port({}, 300ms);
        ASSERT_TRUE(port.Open());
        QTimer::singleShot(300ms * percent / 100, Qt::PreciseTimer, &port, [&port] {
            port.pending = "late";
            emit port.Received();
        });
        EXPECT_EQ((port.link.*wait)(), Silence::Kept);
        EXPECT_EQ(port.link.LastHeard(), "late") << percent;
    }
}

TEST(QuietLine, EndsAnOperationWhenThePortFailsOrTheUserCancelsOrItNeverFallsSilent)
{
    for (const char* what : {"port", "cancel", "noise"}) {
        Link port({}, 40ms);
        RecordingObserver observer;
        BlockLink blocks(port.link, observer);
        MemoryBlock block;
        port.link.SendReadCommand(kRead);  // its reply may still come
        QTimer trouble;
        QObject::connect(&trouble, &QTimer::timeout, &port, [&] {
            if (what == std::string("port"))
                emit port.Failed();
            observer.cancelled = what == std::string("cancel");
            if (observer.cancelled)
                port.link.Cancel();
            port.pending = "noise";
            emit port.Received();
        });
        trouble.start(0ms);
        const BlockResult result = blocks.Read(0x1000, block);
        EXPECT_EQ(result.result,
                  what == std::string("cancel") ? TransferResult::Cancelled : TransferResult::Failed);
        EXPECT_EQ(result.attempts, 0) << what;
        EXPECT_EQ(port.sent.size(), 1U) << what;
        EXPECT_TRUE(port.link.MayStillReply()) << what;
    }
}

TEST(QuietLine, AWriteWhoseRepliesShiftIsInDoubt)
{
    for (const bool isMissing : {true, false}) {
        Link port({}, 20ms);
        port.answers = [isMissing](std::size_t number) {
            const std::string good = kWrite + kOk;
            const std::string twice = good + good;
            if (number == 2 && isMissing)
                return Pieces{};
            return Pieces{number == 4 ? twice : good};
        };
        RecordingObserver observer;
        ReceiverWriter writer({}, {.settings = false, .memory = false, .banks = true}, port.link, observer);
        EXPECT_EQ(writer.Write(), TransferResult::Done);
        EXPECT_EQ(writer.IsInDoubt(), isMissing) << "without a missing reply it is noise";
        EXPECT_EQ(port.sent.size(), isMissing ? 9U : 8U);
    }
}

TEST(ReplyFrames, AreCountedAmongEchoesAndNoise)
{
    const std::pair<std::string, int> kCases[] = {
        {"", 0},
        {kRead + kFrame, 1},
        {kRead + kFrame + kRead + kFrame, 2},
        {kFrame + kFrame + kOk + "\r\nNG\r\n", 4},
        {kFrame.substr(20) + kFrame, 1},
        {kFrame.substr(0, 35), 0},
        {std::string("\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n"), 0},
        {"\r\nO\r\n\r\nOKK\r\n", 0},
    };
    for (const auto& [text, replies] : kCases)
        EXPECT_EQ(CountReplies(text), replies) << text;
}

TEST(ReplyFrames, ARefusalIsAWordBetweenLineEnds)
{
    const std::pair<const char*, ReplyOutcome> kCases[] = {{"\r\nNG\r\n", ReplyOutcome::NotOk},
                                                           {"\rxNG\r\n", ReplyOutcome::Garbled},
                                                           {"\r\nNG\rx", ReplyOutcome::Garbled}};
    for (const auto& [end, outcome] : kCases)
        EXPECT_EQ(OutcomeOfWrite(WriteReply(kWrite + end), kWrite + end, false), outcome) << end;
}

}  // namespace
}  // namespace rqm5
