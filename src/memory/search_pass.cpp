#include "memory/search_pass.h"

namespace rqm5 {

void BuildPassData(CloneImage& image)
{
    image.PassData.fill(MemoryBlock(std::string(kBlockChars, 'F')));
    std::size_t next = 0;
    for (int row = kSearchPassFirst; row < kPriorityFirst; ++row)
        if (image.MemEnable[static_cast<std::size_t>(row)]) {
            image.PassData[next / kBlockBytes].SetByte(next % kBlockBytes, row - kSearchPassFirst);
            ++next;
        }
}

bool IsSearchPassDuplicate(const CloneImage& image, double frequency, int row)
{
    for (int i = kSearchPassFirst; i < kPriorityFirst; ++i) {
        const auto index = static_cast<std::size_t>(i);
        if (i != row && image.MemEnable[index] && image.MemData[index][kFrequency] == frequency)
            return true;
    }
    return false;
}

}  // namespace rqm5
