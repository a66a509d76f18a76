#include "link/radio_link.h"

#include "link/reply_frames.h"

namespace rqm5 {
namespace {

/// Only the end of the text is looked at; a line that never falls silent must not fill the memory.
constexpr std::size_t kKeptAtLeast = 1024;
constexpr std::size_t kKeptAtMost = 65536;

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
    connect(&port_, &SerialPort::Received, this, [this] {
        if (Timer1_.isActive())
            Collect();
    });
    connect(&port_, &SerialPort::Failed, this, [this] {
        hasFailed_ = true;
        EndWait();
    });
}

std::string RadioLink::SendReadCommand(const std::string& command)
{
    return Exchange(command, kFrameLength) ? ReadReply(accumulator_) : kReadPortFailed;
}

int RadioLink::SendWriteCommand(const std::string& command)
{
    // 46 characters are enough but do not end the wait; only one more does. An echo of 42 characters and the
    // answer make 48, so that fewer may still be a part of what is coming.
    return Exchange(command, kAcknowledgementLength + 1) ? WriteReply(accumulator_) : kWritePortFailed;
}

void RadioLink::Cancel()
{
    EndWait();
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
    endsFrom_ = endsFrom;
    if (!port_.IsOpen() && !port_.Open())
        return false;
    hasFailed_ = false;
    // Late replies to earlier commands must not pass for the reply to this one.
    port_.TakeReceived();
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

void RadioLink::Collect()
{
    accumulator_ += port_.TakeReceived();
    if (accumulator_.size() > kKeptAtMost)
        accumulator_.erase(0, accumulator_.size() - kKeptAtLeast);
    if (EndsReply(accumulator_, endsFrom_))
        EndWait();
}

void RadioLink::EndWait()
{
    Timer1_.stop();
    loop_.quit();
}

}  // namespace rqm5
