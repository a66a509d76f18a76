#include "link/commands.h"

namespace rqm5 {

std::string ReadCommand(int address)
{
    return "QT~F" + HexAddress(address) + "R\r";
}

std::string WriteCommand(int address, const MemoryBlock& block)
{
    return "QT~F" + HexAddress(address) + "W" + block.String() + "\r";
}

}  // namespace rqm5
