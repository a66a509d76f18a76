#include "memory/row_names.h"

namespace rqm5 {
namespace {

std::string PlaceInBanks(const CloneImage& image, int row)
{
    int first = 0;
    for (int bank = 0; bank < kBanks; ++bank) {
        const int size = image.BankSize[static_cast<std::size_t>(bank)];
        if (row < first + size)
            return "Bank " + std::to_string(bank) + ", channel " + std::to_string(row - first);
        first += size;
    }
    return "in no bank";
}

std::string Place(const CloneImage& image, int row)
{
    if (row < kProgramScanFirst)
        return PlaceInBanks(image, row);
    if (row < kSearchPassFirst)
        return "Program Scan " + ProgramScanLabel(row - kProgramScanFirst).substr(1);
    if (row < kPriorityFirst)
        return "Search Pass S" + std::to_string(row - kSearchPassFirst);
    if (row < kRadioRows)
        return "Priority Pr" + std::to_string(row - kPriorityFirst);
    return "not in the receiver";
}

}  // namespace

std::string RowName(const CloneImage& image, int row)
{
    return "memory row " + std::to_string(row) + " (" + Place(image, row) + ")";
}

std::string VfoRowName(int row)
{
    return "VFO row " + std::to_string(row);
}

}  // namespace rqm5
