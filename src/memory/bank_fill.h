#pragma once

#include <array>

#include "image/clone_image.h"

namespace rqm5 {

/// How many rows there are and how many of them hold a channel.
struct Fill
{
    int used = 0;
    int rows = 0;

    friend bool operator==(const Fill&, const Fill&) = default;
};

Fill FillOf(const CloneImage& image, RowRange rows);

/// The rows that the banks share and none of them holds.
RowRange RowsInNoBank(const CloneImage& image);

/// Sizes of banks 0 to 49.
using BankSizes = std::array<int, kBanks>;

BankSizes SizesOfBanks(const CloneImage& image);

/// How many channels are elsewhere than other sizes would have them in the same rows.
struct Displaced
{
    int bank = 0;    ///< in another bank, in one for the first time, or in none any more
    int number = 0;  ///< in the same bank under another number

    friend bool operator==(const Displaced&, const Displaced&) = default;
};

Displaced DisplacedChannels(const CloneImage& image, const BankSizes& before);

/// Moves the rows of the banks to where the sizes of now put them, so that every channel has the bank and the
/// number that it had with the sizes from before.
///
/// What a smaller bank has no room for goes behind all banks, in front of what is there already. A bank that
/// grew takes empty rows from there, and rows that hold something only when those are used up. No row is
/// lost.
void KeepBanks(CloneImage& image, const BankSizes& before);

/// True when KeepBanks would move a row that holds something.
bool CanKeepBanks(const CloneImage& image, const BankSizes& before);

}  // namespace rqm5
