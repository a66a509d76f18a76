#pragma once

#include <chrono>

#include "link/qt_serial_port.h"
#include "link/radio_link.h"
#include "link/receiver_reader.h"
#include "link/receiver_writer.h"
#include "link/recording_observer.h"
#include "simulator/demo_image.h"
#include "simulator/sim_session.h"

namespace rqm5 {

/// Scopes of a transfer.
inline constexpr TransferScope kEverything{};
inline constexpr TransferScope kSettingsOnly{.memory = false};
inline constexpr TransferScope kBanksOnly{.settings = false, .memory = false, .banks = true};

constexpr TransferScope MemoryOf(int selector)
{
    return {.settings = false, .selector = selector};
}

/// A simulated receiver, an image, and everything between them.
struct SimulatedLine
{
    explicit SimulatedLine(const CloneImage& held, SimOptions options = {})
        : receiver(WithMemory(std::move(options), held)), port(receiver.Device())
    {
    }

    static SimOptions WithMemory(SimOptions options, const CloneImage& held)
    {
        options.memory = MemoryFromImage(held);
        return options;
    }

    /// A fault that a text describes, and a time-out short enough to meet it often.
    void Spoil(std::string_view fault, std::chrono::milliseconds timeOut)
    {
        receiver.SetFaults({ParseFault(fault).value()});
        link.SetTimeOut(timeOut);
    }

    /// The same once so many blocks are through. Only then is the time-out short, so that a busy machine does
    /// not fail blocks that are to go well.
    void SpoilAfter(int blocks, std::string_view fault, std::chrono::milliseconds timeOut)
    {
        observer.changeAfter = blocks;
        observer.afterBlock = [this, fault, timeOut] { Spoil(fault, timeOut); };
    }

    /// Silences the receiver for ten attempts.
    void SilenceAfter(int blocks) { SpoilAfter(blocks, "silent:10", std::chrono::milliseconds(5)); }

    TransferResult Write(const TransferScope& scope)
    {
        return ReceiverWriter(image, scope, link, observer).Write();
    }

    SimSession receiver;
    QtSerialPort port;
    RadioLink link{port};
    CloneImage image;
    RecordingObserver observer;
    ReceiverReader reader{image, link, observer};
};

}  // namespace rqm5
