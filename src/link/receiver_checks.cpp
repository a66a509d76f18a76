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

    void GroupChosen(int /*selector*/) override {}
    void Stored() override {}
};

bool HasSameBanks(const CloneImage& a, const CloneImage& b)
{
    for (int bank = 0; bank < kBankSizes; ++bank)
        if (a.BankSize(bank) != b.BankSize(bank))
            return false;
    return true;
}

RowRange RowsToBackUp(const CloneImage& image, const CloneImage& backup, int selector)
{
    return TransferRows(image, selector < kBanks && !HasSameBanks(image, backup) ? kSelectAll : selector);
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
        const BlockResult block = blocks.Read(expected[i].address, read);
        if (block.problem)
            observer.Message(*block.problem);
        result = block.result;
        if (result == Done && !Agrees(expected[i], read))
            differences.push_back({expected[i], read});
    }
    observer.ProgressEnded();
    return result;
}

TransferResult ReadBackup(const CloneImage& image, const TransferScope& scope, RadioLink& link,
                          TransferObserver& observer, CloneImage& backup)
{
    backup = StartUpImage(std::clamp(image.Settings().model, 0, kRegions - 1));
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
    int blocks = 0;
    const auto add = [&blocks](Area area) { blocks += AreaOf(area).blocks; };
    if (scope.settings) {
        add(Area::Settings);
        add(Area::Vfo);
    }
    if (scope.memory || scope.banks) {
        add(Area::BankSizes);
        add(Area::Links);
    }
    if (scope.memory) {
        add(Area::Flags);
        blocks += TransferRows(image, scope.selector).count;
    }
    return blocks;
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
