#include "cli/clone_files.h"
#include "cli/command.h"
#include "cli/edit_session.h"
#include "memory/bank_layout.h"

namespace rqm5 {
namespace {

/// Why the channels of a bank of one image have no place in the other: their banks lie elsewhere.
Message LayoutFault(const RowChoice& choice, const CloneImage& other, const CloneImage& image)
{
    if (choice.HasBanks())
        return {};
    for (const int bank : choice.Banks())
        if (GroupRows(other, bank) != GroupRows(image, bank))
            return {
                MESSAGE("bank %1 has other rows in OTHER than in FILE. Take \"banks\" as well, or name the "
                        "rows as memory:0-199"),
                {bank}};
    return {};
}

void TakeBanks(const CloneImage& other, CloneImage& image)
{
    for (int bank = 0; bank < kBankSizes; ++bank)
        image.SetBankSize(bank, other.BankSize(bank));
    for (int flag = 0; flag < kLinkFlags; ++flag)
        image.SetBankLink(flag, other.BankLink(flag));
}

std::optional<Problem> Take(const RowChoice& choice, const CloneImage& other, CloneImage& image)
{
    Message fault = choice.Fault(other);
    if (fault.empty())
        fault = LayoutFault(choice, other, image);
    if (!fault.empty())
        return Problem{kDataError, fault};
    const RowList rows = choice.MemoryRows(other);
    if (rows.empty() && choice.VfoRows().empty() && !choice.HasSettings() && !choice.HasBanks())
        return Problem{kDataError, MESSAGE("ROWS names no row of OTHER")};
    for (const int row : rows)
        image.MemData(row) = other.MemData(row);
    for (const int row : choice.VfoRows())
        image.VFOData(row) = other.VFOData(row);
    if (choice.HasSettings())
        image.Settings() = other.Settings();
    if (choice.HasBanks())
        TakeBanks(other, image);
    return std::nullopt;
}

}  // namespace

Status RunMerge(const Arguments& arguments, Console& console)
{
    CloneImage other;
    if (const auto problem = Load(arguments[0], other))
        return Fail(console, *problem);
    return EditFile(arguments[1], arguments, console, [&](CloneImage& image) {
        return Take(ChoiceOfRows(arguments.Value("--take")), other, image);
    });
}

}  // namespace rqm5
