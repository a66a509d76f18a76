#include "image/clone_image.h"

#include <algorithm>

namespace rqm5 {

void SetBankSize(CloneImage& image, int bank, int size)
{
    const auto index = static_cast<std::size_t>(bank);
    image.BankSize.at(index) = size;
    image.BankSizeText.at(index) = std::to_string(size);
}

void ClearMemoryRow(CloneImage& image, int row)
{
    const auto index = static_cast<std::size_t>(row);
    image.MemData.at(index).fill(0);
    image.MemText.at(index).fill({});
    image.MemEnable.at(index) = false;
}

bool HasChannel(const CloneImage& image, int row)
{
    const auto index = static_cast<std::size_t>(row);
    return image.MemData.at(index)[kFrequency] != 0 && !image.MemText.at(index)[kFrequency].empty();
}

bool IsSkipped(const CloneImage& image, int row)
{
    return static_cast<int>(image.MemData.at(static_cast<std::size_t>(row))[kOption]) % 16 != 0;
}

int SearchPassCount(const CloneImage& image)
{
    const auto* first = image.MemEnable.begin() + kSearchPassFirst;
    return static_cast<int>(std::count(first, first + (kPriorityFirst - kSearchPassFirst), true));
}

bool SameContents(const CloneImage& a, const CloneImage& b)
{
    return a.Settings == b.Settings && a.BankSize == b.BankSize && a.BankLink == b.BankLink &&
           a.MemEnable == b.MemEnable && a.VFOData == b.VFOData && a.VFOText == b.VFOText &&
           a.MemData == b.MemData && a.MemText == b.MemText;
}

}  // namespace rqm5
