#include "simulator/receiver_memory.h"

#include "link/memory_map.h"

namespace rqm5 {
namespace {

void Take(const ReceiverMemory& memory, const MemoryArea& area, CloneImage& image)
{
    if (area.decode == nullptr)
        return;
    std::vector<MemoryBlock> blocks;
    blocks.reserve(static_cast<std::size_t>(area.blocks));
    for (int index = 0; index < area.blocks; ++index)
        blocks.push_back(memory.At(area.AddressOf(index)));
    if (!area.decodesSingly)
        return area.decode(image, 0, blocks);
    for (int index = 0; const MemoryBlock& block : blocks)
        area.decode(image, index++, {&block, 1});
}

}  // namespace

ReceiverMemory MemoryFromImage(const CloneImage& image)
{
    ReceiverMemory memory;
    for (const MemoryArea& area : MemoryMap())
        for (const int index : BlocksOf(area, image))
            memory.At(area.AddressOf(index)) = area.encode(image, index);
    memory.At(AreaOf(Area::Settings).AddressOf(kSettings2)).SetByte(kPassCountByte, SearchPassCount(image));
    return memory;
}

CloneImage ImageFromMemory(const ReceiverMemory& memory, const CloneImage& notes)
{
    CloneImage image = notes;
    for (const MemoryArea& area : MemoryMap())
        Take(memory, area, image);
    // Once more, because an empty row loses its flag when it is cleared, but the memory may hold it as
    // enabled.
    Take(memory, AreaOf(Area::Flags), image);
    return image;
}

}  // namespace rqm5
