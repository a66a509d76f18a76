#include "image/fresh_image.h"

#include "image/flag_bits.h"

namespace rqm5 {
namespace {

constexpr std::array<int, 10> kDefaultBankSize = {200, 150, 150, 100, 100, 50, 80, 70, 50, 50};

void ClearRowsAndLinks(CloneImage& image)
{
    for (int row = 0; row < kMemoryRows; ++row)
        ClearMemoryRow(image, row);
    for (int bank = 0; bank <= kUnassigned; ++bank)
        SetBankSize(image, bank, 0);
    image.BankLink.fill(false);
    EncodeBankFlagData(image);
    EncodeExtraData(image);
}

}  // namespace

void BuildEmptyImage(CloneImage& image)
{
    ClearRowsAndLinks(image);
    for (int bank = 0; bank < static_cast<int>(kDefaultBankSize.size()); ++bank)
        SetBankSize(image, bank, kDefaultBankSize[static_cast<std::size_t>(bank)]);
}

void ClearForNew(CloneImage& image)
{
    ClearRowsAndLinks(image);
    SetBankSize(image, kUnassigned, kBankRows);
}

}  // namespace rqm5
