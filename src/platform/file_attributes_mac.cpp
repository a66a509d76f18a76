#include "platform/file_attributes.h"

// Access lists are of another kind here; a new file has the one that its folder gives.
namespace rqm5 {

std::optional<AccessList> ListOf(const char* /*path*/)
{
    return std::nullopt;
}

bool SetList(int /*descriptor*/, const AccessList& list)
{
    return !list.IsExtended();
}

std::vector<std::string> CarryAttributes(const char* /*path*/, int /*descriptor*/)
{
    return {};
}

}  // namespace rqm5
