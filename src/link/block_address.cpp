#include "link/block_address.h"

#include <algorithm>
#include <charconv>

#include "image/memory_block.h"

namespace rqm5 {
namespace {

constexpr std::size_t kAddressDigits = 4;

std::string_view WithoutPrefix(std::string_view typed)
{
    return typed.starts_with("0x") || typed.starts_with("0X") ? typed.substr(2) : typed;
}

}  // namespace

Message BlockAddressFault(std::string_view typed)
{
    const std::string_view digits = WithoutPrefix(typed);
    if (digits.empty() || digits.find_first_not_of("0123456789abcdefABCDEF") != std::string_view::npos)
        return MESSAGE("An address is hexadecimal, such as 1000.");
    const std::size_t leadingZeros = std::min(digits.find_first_not_of('0'), digits.size());
    if (digits.size() - leadingZeros > kAddressDigits)
        return {MESSAGE("The highest address is %1."), {HexAddress(kHighestBlockAddress)}};
    if (digits.back() != '0')
        return MESSAGE("An address is that of a block of 16 bytes, so its last digit is 0.");
    return {};
}

std::optional<int> ReadBlockAddress(std::string_view typed)
{
    if (!BlockAddressFault(typed).empty())
        return std::nullopt;
    const std::string_view digits = WithoutPrefix(typed);
    int address = 0;
    std::from_chars(digits.data(), digits.data() + digits.size(), address, 16);
    return address;
}

}  // namespace rqm5
