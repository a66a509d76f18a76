#include "link/transfer_scope.h"

#include "link/receiver_reader.h"
#include "link/receiver_writer.h"

namespace rqm5 {

using enum TransferResult;

bool TransferScope::GoesOnAfterSettings() const
{
    return settings && memory && selector == kSelectAll;
}

TransferResult ReadScope(ReceiverReader& reader, const TransferScope& scope)
{
    auto result = Done;
    if (scope.settings)
        result = reader.ReadSettings();
    // What is kept of a whole read only gains nothing by going on after a failure.
    if (scope.memory && result == Done)
        result = reader.ReadMemory(scope.selector);
    if (!scope.memory && scope.banks && result == Done)
        result = reader.ReadBankPage();
    return result;
}

TransferResult WriteScope(ReceiverWriter& writer, const TransferScope& scope)
{
    if (scope.GoesOnAfterSettings())
        return writer.WriteAll();
    auto result = Done;
    if (scope.settings)
        result = writer.WriteSettings();
    if (scope.memory && result == Done)
        result = writer.WriteMemory(scope.selector);
    if (!scope.memory && scope.banks && result == Done)
        result = writer.WriteBankPage();
    return result;
}

}  // namespace rqm5
