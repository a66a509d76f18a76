#include "link/receiver_checks.h"

#include <QCoreApplication>
#include <algorithm>

#include "link/block_link.h"
#include "link/forwarding_observer.h"
#include "link/memory_map.h"
#include "link/receiver_reader.h"
#include "memory/bank_layout.h"
#include "memory/start_image.h"

namespace rqm5 {
namespace {

using enum TransferResult;

/// The window goes on showing its own image while the backup is read into another one.
class BackupObserver : public AftermathObserver
{
  public:
    using AftermathObserver::AftermathObserver;

    void Refresh(Changed /*what*/) override {}
};

RowRange RowsToBackUp(const CloneImage& image, const CloneImage& backup, int selector)
{
    const bool isSameDivision = image.BankSize == backup.BankSize;
    return TransferRows(image, selector < kBanks && !isSameDivision ? kSelectAll : selector);
}

TransferResult ReadGroup(ReceiverReader& reader, const CloneImage& image, const CloneImage& backup,
                         int selector)
{
    TransferResult result = reader.ReadFlags();
    if (result == Done)
        result = reader.ReadBankPage();
    return result == Done ? reader.ReadChannels(RowsToBackUp(image, backup, selector)) : result;
}

}  // namespace

TransferResult ReadBack(const std::vector<ExpectedBlock>& expected, RadioLink& link,
                        TransferObserver& observer, std::vector<BlockDifference>& differences)
{
    BlockLink blocks(link, observer);
    TransferResult result = Done;
    observer.ProgressStarted(std::max(0, static_cast<int>(expected.size()) - 1));
    for (std::size_t i = 0; i < expected.size() && result == Done; ++i) {
        observer.ProgressMoved(static_cast<int>(i), MemoryRowAt(expected[i].address));
        MemoryBlock read;
        result = blocks.Read(expected[i].address, read);
        if (result == Done && !Agrees(expected[i], read))
            differences.push_back({expected[i], read});
    }
    observer.ProgressEnded();
    return result;
}

TransferResult ReadBackup(const CloneImage& image, const TransferScope& scope, RadioLink& link,
                          TransferObserver& observer, CloneImage& backup)
{
    backup = StartUpImage(std::clamp(image.Settings.model, 0, kRegions - 1));
    NewImage(backup);
    BackupObserver quiet(observer, NothingWritten());
    ReceiverReader reader(backup, link, quiet);
    TransferResult result = Done;
    if (scope.settings)
        result = reader.ReadSettings();
    if (scope.memory && result == Done)
        result = ReadGroup(reader, image, backup, scope.selector);
    if (!scope.memory && scope.banks && result == Done)
        result = reader.ReadBankPage();
    return result;
}

int BlocksToBackUp(const CloneImage& image, const TransferScope& scope)
{
    constexpr int kSettingsBlocks = 2 + kVfoRows;
    constexpr int kBankBlocks = 7 + 1;
    constexpr int kFlagBlocks = 10;
    const int rows = scope.memory ? TransferRows(image, scope.selector).count + kFlagBlocks : 0;
    return (scope.settings ? kSettingsBlocks : 0) + (scope.memory || scope.banks ? kBankBlocks : 0) + rows;
}

std::string NothingWritten()
{
    return QCoreApplication::translate("WriteRecord", "The backup could not be made, so nothing was written.")
        .toStdString();
}

std::string NotVerified()
{
    return QCoreApplication::translate("WriteRecord", "All was written, but not all of it could be verified.")
        .toStdString();
}

}  // namespace rqm5
