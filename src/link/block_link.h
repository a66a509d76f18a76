#pragma once

#include <string>

#include "image/memory_block.h"
#include "link/radio_link.h"
#include "link/transfer_observer.h"

namespace rqm5 {

/// Moves single blocks under the retry rule that all transfers share: a bad or missing reply is tried
/// again, 10 attempts in all; a port failure ends the operation at once.
///
/// Every failure has been told to the observer when a function returns Failed; a cancel is not told.
class BlockLink
{
  public:
    static constexpr int kAttempts = 10;

    BlockLink(RadioLink& link, TransferObserver& observer) : link_(link), observer_(observer) {}

    /// \param block  takes the 32 characters as they came; unchanged unless Done is returned
    TransferResult Read(int address, MemoryBlock& block);

    TransferResult Write(int address, const MemoryBlock& block);

    /// Writes with a complete command, but for its CR; the block address is in it.
    TransferResult WritePrepared(const std::string& command);

  private:
    enum class Attempt { Good, Bad, PortFailed };

    Attempt TryRead(const std::string& command, MemoryBlock& block);
    Attempt TryWrite(const std::string& command);
    TransferResult WriteTo(int address, const std::string& command);
    TransferResult Fail(int address, bool written, Attempt last);

    template <typename Try>
    TransferResult Repeat(int address, bool written, Try attempt);

    RadioLink& link_;
    TransferObserver& observer_;
};

}  // namespace rqm5
