#pragma once

#include <algorithm>
#include <atomic>
#include <string>
#include <thread>
#include <vector>

#include "image/channel_block.h"
#include "link/receiver_checks.h"
#include "link/simulated_line.h"

namespace rqm5 {

/// A receiver that stops once, keeps what comes in, and then answers all of it in order.
struct StallCase
{
    bool writes;
    int baud;
    std::chrono::milliseconds timeOut;
    std::chrono::microseconds stall;
    int after;               ///< commands that go well before it
    int stalls = 1;          ///< commands in a row that it stops at
    std::string fault = {};  ///< what went wrong in the end; empty when nothing did
    int repeated = 0;        ///< blocks

    std::string Name() const
    {
        return std::string(writes ? "write" : "read") + (baud > 0 ? " paced" : "") + ", " +
               std::to_string(stall.count()) + " us, " + std::to_string(stalls) + " after " +
               std::to_string(after);
    }
};

/// An image no two of whose rows are alike.
inline CloneImage DistinctImage(int model, const std::string& megahertz)
{
    CloneImage image = DemoImage(model);
    for (int row = 0; row < kRadioRows; ++row) {
        DecodeMemoryBlock(image, MemoryBlock(megahertz + std::to_string(1000000 + row).substr(1)), row);
        image.MemData(row).enabled = row % (2 + model) == 0;
    }
    return image;
}

/// A group whose transfer takes every kind of block: sizes, links, flags and channels.
inline constexpr TransferScope kStallScope{.settings = false, .selector = kSelectPriority};

inline std::string ReadThroughStall(SimulatedLine& line, const CloneImage& held)
{
    for (int row = 0; row < kRadioRows; ++row)
        line.image.MemData(row).note = "note";
    CloneImage expected = line.image;
    SimulatedLine sound(held);
    ReceiverReader(expected, sound.link, sound.observer).Read(kStallScope);
    if (line.reader.Read(kStallScope) != TransferResult::Done)
        return "failed";
    return line.image == expected ? "" : "wrong contents";
}

inline std::string WriteThroughStall(SimulatedLine& line, const CloneImage& held)
{
    line.image = DistinctImage(2, "0162");
    SimulatedLine sound(held);
    sound.image = line.image;
    sound.Write(kStallScope);
    if (line.Write(kStallScope) != TransferResult::Done)
        return "failed";
    std::vector<BlockDifference> differences;
    const auto expected = ExpectedAfterWrite(line.image, kStallScope);
    if (ReadBack(expected, line.link, line.observer, differences) != TransferResult::Done)
        return "not verified";
    if (!differences.empty())
        return "verified as different";
    return line.receiver.Memory() == sound.receiver.Memory() ? "" : "wrong contents";
}

inline void RunStall(StallCase& stall)
{
    const CloneImage held = DistinctImage(1, "0161");
    const Fault fault{.kind = FaultKind::Stall, .count = stall.stalls, .after = stall.after};
    SimulatedLine line(held, {.baud = stall.baud, .faults = {fault}, .stallTime = stall.stall});
    line.link.SetTimeOut(stall.timeOut);
    stall.fault = stall.writes ? WriteThroughStall(line, held) : ReadThroughStall(line, held);
    stall.repeated = line.observer.repeated;
}

/// Runs them side by side: they do nothing but wait.
inline void RunStalls(std::vector<StallCase>& stalls, std::size_t atOnce)
{
    std::atomic<std::size_t> next = 0;
    std::vector<std::thread> threads;
    for (std::size_t i = 0; i < atOnce; ++i)
        threads.emplace_back([&] {
            for (std::size_t mine = next++; mine < stalls.size(); mine = next++)
                RunStall(stalls[mine]);
        });
    for (std::thread& thread : threads)
        thread.join();
}

}  // namespace rqm5
