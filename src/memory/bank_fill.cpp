#include "memory/bank_fill.h"

#include <algorithm>
#include <vector>

#include "memory/bank_layout.h"

namespace rqm5 {
namespace {

constexpr int kNoBank = kBanks;

struct BankPlace
{
    int bank;
    int number;
};

/// Where each row is that the banks share.
std::vector<BankPlace> PlacesOfRows(const BankSizes& sizes)
{
    std::vector<BankPlace> places;
    for (int bank = 0; bank < kBanks; ++bank)
        for (int number = 0; number < sizes.at(static_cast<std::size_t>(bank)); ++number)
            places.push_back({bank, number});
    places.resize(kBankRows, {kNoBank, 0});
    return places;
}

bool IsEmpty(const Channel& channel)
{
    return !channel.HasChannel() && channel.note.empty();
}

/// Takes the last empty row out of those that have no place yet, or the first if none is empty.
int TakeRow(std::vector<int>& left, const CloneImage& image)
{
    const auto empty =
        std::find_if(left.rbegin(), left.rend(), [&](int row) { return IsEmpty(image.MemData(row)); });
    const auto place = empty != left.rend() ? std::prev(empty.base()) : left.begin();
    const int row = *place;
    left.erase(place);
    return row;
}

/// For each row of now the row whose contents belong there.
std::vector<int> Sources(const CloneImage& image, const BankSizes& before)
{
    constexpr int kOpen = -1;
    std::vector<int> sources;
    std::vector<int> left;
    int first = 0;
    for (int bank = 0; bank < kBanks; ++bank) {
        const int old = before.at(static_cast<std::size_t>(bank));
        const int kept = std::min(old, image.BankSize(bank));
        for (int channel = 0; channel < old; ++channel)
            (channel < kept ? sources : left).push_back(first + channel);
        sources.insert(sources.end(), static_cast<std::size_t>(image.BankSize(bank) - kept), kOpen);
        first += old;
    }
    for (int row = first; row < kBankRows; ++row)
        left.push_back(row);
    for (int& source : sources)
        if (source == kOpen)
            source = TakeRow(left, image);
    sources.insert(sources.end(), left.begin(), left.end());
    return sources;
}

}  // namespace

Fill FillOf(const CloneImage& image, RowRange rows)
{
    Fill fill{0, rows.count};
    for (int row = rows.first; row <= rows.Last(); ++row)
        fill.used += image.MemData(row).HasChannel() ? 1 : 0;
    return fill;
}

RowRange RowsInNoBank(const CloneImage& image)
{
    const int first = TotalBankSize(image);
    return {first, kBankRows - first};
}

BankSizes SizesOfBanks(const CloneImage& image)
{
    BankSizes sizes{};
    for (int bank = 0; bank < kBanks; ++bank)
        sizes.at(static_cast<std::size_t>(bank)) = image.BankSize(bank);
    return sizes;
}

Displaced DisplacedChannels(const CloneImage& image, const BankSizes& before)
{
    const std::vector<BankPlace> was = PlacesOfRows(before);
    const std::vector<BankPlace> is = PlacesOfRows(SizesOfBanks(image));
    Displaced displaced;
    for (std::size_t row = 0; row < kBankRows; ++row) {
        if (!image.MemData(static_cast<int>(row)).HasChannel())
            continue;
        if (was[row].bank != is[row].bank)
            ++displaced.bank;
        else if (was[row].number != is[row].number)
            ++displaced.number;
    }
    return displaced;
}

void KeepBanks(CloneImage& image, const BankSizes& before)
{
    const CloneImage old = image;
    for (int row = 0; const int source : Sources(image, before))
        image.MemData(row++) = old.MemData(source);
}

bool CanKeepBanks(const CloneImage& image, const BankSizes& before)
{
    for (int row = 0; const int source : Sources(image, before))
        if (row++ != source && !IsEmpty(image.MemData(source)))
            return true;
    return false;
}

}  // namespace rqm5
