#include "image/fresh_image.h"

namespace rqm5 {
namespace {

constexpr std::array<int, 10> kDefaultBankSize = {200, 150, 150, 100, 100, 50, 80, 70, 50, 50};

void ClearRowsAndLinks(CloneImage& image)
{
    for (int row = 0; row < kMemoryRows; ++row)
        ClearMemoryRow(image, row);
    for (int bank = 0; bank < kBankSizes; ++bank)
        image.SetBankSize(bank, 0);
    for (int flag = 0; flag < kLinkFlags; ++flag)
        image.SetBankLink(flag, false);
}

}  // namespace

void BuildEmptyImage(CloneImage& image)
{
    ClearRowsAndLinks(image);
    for (int bank = 0; const int size : kDefaultBankSize)
        image.SetBankSize(bank++, size);
}

void ClearForNew(CloneImage& image)
{
    ClearRowsAndLinks(image);
    image.SetBankSize(kUnassigned, kBankRows);
}

}  // namespace rqm5
