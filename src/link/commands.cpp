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

int AddressOfCommand(const std::string& command)
{
    constexpr std::size_t kAddressAt = 4;  // behind "QT~F"
    return std::stoi(command.substr(kAddressAt, 4), nullptr, 16);
}

}  // namespace rqm5
