#include "link/radio_link.h"

#include <QDeadlineTimer>
#include <algorithm>

#include "link/reply_frames.h"

namespace rqm5 {
namespace {

/// Only the end of the text is looked at; a line that never falls silent must not fill the memory.
constexpr std::size_t kKeptAtLeast = 1024;
constexpr std::size_t kKeptAtMost = 65536;

/// Parts of the time-out: a pause within a frame is shorter than the first, two exchanges than the second.
constexpr int kRestPart = 10;
constexpr int kSettlePart = 5;
constexpr int kMostReplies = 10;

void Append(std::string& text, const std::string& more)
{
    text += more;
    if (text.size() > kKeptAtMost)
        text.erase(0, text.size() - kKeptAtLeast);
}

}  // namespace

RadioLink::RadioLink(SerialPort& port, QObject* parent) : QObject(parent), port_(port)
{
    Timer1_.setSingleShot(true);
    Timer1_.setTimerType(Qt::PreciseTimer);
    Timer1_.setInterval(kTimeOut);
    connect(&Timer1_, &QTimer::timeout, this, [this] {
        Collect();
        EndWait();
    });
    quiet_.setSingleShot(true);
    quiet_.setTimerType(Qt::PreciseTimer);
    connect(&quiet_, &QTimer::timeout, &loop_, &QEventLoop::quit);
    connect(&port_, &SerialPort::Received, this, [this] {
        if (Timer1_.isActive())
            Collect();
        else if (quiet_.isActive())
            loop_.quit();
    });
    connect(&port_, &SerialPort::Failed, this, [this] {
        hasFailed_ = true;
        EndWait();
    });
}

std::string RadioLink::SendReadCommand(const std::string& command)
{
    if (!Exchange(command, kFrameLength))
        return kReadPortFailed;
    std::string reply = ReadReply(accumulator_);
    JudgeEnd(reply.size() == kFrameLength);
    return reply;
}

int RadioLink::SendWriteCommand(const std::string& command)
{
    // 46 characters are enough but do not end the wait; only one more does. An echo of 42 characters and the
    // answer make 48, so that fewer may still be a part of what is coming.
    if (!Exchange(command, kAcknowledgementLength + 1))
        return kWritePortFailed;
    const int code = WriteReply(accumulator_);
    JudgeEnd(code == kWriteOk);
    return code;
}

ReceiverKnowledge& RadioLink::Knowledge()
{
    knowledge_.GoTo(port_.Device());
    return knowledge_;
}

void RadioLink::Cancel()
{
    isStopped_ = true;
    EndWait();
}

/// A reply that ended, good or bad, does not come again.
void RadioLink::JudgeEnd(bool isGood)
{
    if (!isGood && !EndsReply(accumulator_, endsFrom_))
        mayStillReply_ = true;
}

/// Steps common to both commands. \return false when the port failed
bool RadioLink::Exchange(const std::string& command, std::size_t endsFrom)
{
    clock_.start();
    const bool isDone = SendAndWait(command, endsFrom);
    lastDuration_ = std::chrono::duration_cast<std::chrono::microseconds>(
        std::chrono::nanoseconds(clock_.nsecsElapsed()));
    emit Exchanged(command, !isDone);
    return isDone;
}

bool RadioLink::SendAndWait(const std::string& command, std::size_t endsFrom)
{
    accumulator_.clear();
    discarded_.clear();
    endsFrom_ = endsFrom;
    if (!port_.IsOpen() && !port_.Open())
        return false;
    hasFailed_ = false;
    // Late replies to earlier commands must not pass for the reply to this one.
    discarded_ = port_.TakeReceived();
    clock_.start();  // opening the port does not count
    if (hasFailed_ || !port_.Send(command))
        return false;
    Timer1_.start();
    Collect();
    if (Timer1_.isActive())
        loop_.exec();
    Timer1_.stop();
    return !hasFailed_;
}

std::chrono::milliseconds RadioLink::PartOfTimeOut(int divisor) const
{
    return std::max(Timer1_.intervalAsDuration() / divisor, std::chrono::milliseconds(1));
}

Silence RadioLink::Rest()
{
    return WaitForSilence(PartOfTimeOut(kRestPart), PartOfTimeOut(1));
}

Silence RadioLink::Settle()
{
    const Silence silence = WaitForSilence(PartOfTimeOut(kSettlePart), kMostReplies * PartOfTimeOut(1));
    if (silence == Silence::Kept)
        mayStillReply_ = false;
    return silence;
}

Silence RadioLink::Listen()
{
    const Silence silence = WaitForSilence(PartOfTimeOut(1), kMostReplies * PartOfTimeOut(1));
    if (silence == Silence::Kept)
        mayStillReply_ = false;
    return silence;
}

Silence RadioLink::WaitForSilence(std::chrono::milliseconds silence, std::chrono::milliseconds most)
{
    heard_.clear();
    if (!port_.IsOpen() && !port_.Open())
        return Silence::PortFailed;
    hasFailed_ = isStopped_ = false;
    const QDeadlineTimer latest(most, Qt::PreciseTimer);
    Append(heard_, port_.TakeReceived());
    while (!hasFailed_ && !latest.hasExpired()) {
        quiet_.start(silence);
        loop_.exec();
        const bool hasElapsed = !quiet_.isActive();
        quiet_.stop();
        if (isStopped_)
            return Silence::Stopped;
        const std::string piece = port_.TakeReceived();
        if (hasElapsed && piece.empty() && !hasFailed_)
            return Silence::Kept;
        Append(heard_, piece);
    }
    return hasFailed_ ? Silence::PortFailed : Silence::Broken;
}

void RadioLink::Collect()
{
    Append(accumulator_, port_.TakeReceived());
    if (EndsReply(accumulator_, endsFrom_))
        EndWait();
}

void RadioLink::EndWait()
{
    Timer1_.stop();
    loop_.quit();
}

}  // namespace rqm5
