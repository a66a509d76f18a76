#include "memory/search_pass.h"

namespace rqm5 {

std::array<MemoryBlock, 7> PassData(const CloneImage& image)
{
    std::array<MemoryBlock, 7> blocks;
    blocks.fill(MemoryBlock(std::string(kBlockChars, 'F')));
    int next = 0;
    for (int number = 0; number < kSearchPass.rows.count; ++number)
        if (image.MemEnable(kSearchPass.rows.first + number)) {
            blocks.at(static_cast<std::size_t>(next / kBlockBytes)).SetByte(next % kBlockBytes, number);
            ++next;
        }
    return blocks;
}

bool IsSearchPassDuplicate(const CloneImage& image, std::int64_t hertz, int row)
{
    for (int i = kSearchPass.rows.first; i <= kSearchPass.rows.Last(); ++i)
        if (i != row && image.MemEnable(i) && image.MemData(i).frequency == hertz)
            return true;
    return false;
}

}  // namespace rqm5
