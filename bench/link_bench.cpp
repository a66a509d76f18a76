// How long transfers take: `link_bench line` compares a whole read and a whole write at 9600 baud with the
// time that their characters need on the wire; `link_bench blocks` times blocks on a line that takes no
// time, for banks of several sizes; `link_bench changes` times writes of what changed, safety read and
// verification included, and a whole write with verification beside them, at 9600 baud.

#include <sys/resource.h>

#include <QCoreApplication>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <string_view>
#include <vector>

#include "image/fresh_image.h"
#include "link/change_writer.h"
#include "link/qt_serial_port.h"
#include "link/receiver_checks.h"
#include "link/receiver_reader.h"
#include "link/receiver_writer.h"
#include "simulator/demo_image.h"
#include "simulator/sim_session.h"

namespace rqm5 {
namespace {

using Seconds = std::chrono::duration<double>;

constexpr double kCharactersPerSecond = 960;
constexpr double kReadCharacters = 10 + 36;
constexpr double kWriteCharacters = 42 + 6;
constexpr int kRepeats = 20;

/// Counts the blocks of each direction, and how long each took against its characters' time on the wire.
struct Counter : TransferObserver
{
    void BlockDone(int, bool written) override
    {
        ++(written ? writes : reads);
        const auto now = std::chrono::steady_clock::now();
        const double wire = (written ? kWriteCharacters : kReadCharacters) / kCharactersPerSecond;
        ratios.push_back(Seconds(now - last).count() / wire);
        last = now;
    }

    int Blocks() const { return reads + writes; }
    double WireSeconds() const
    {
        return (reads * kReadCharacters + writes * kWriteCharacters) / kCharactersPerSecond;
    }

    double MedianRatio()
    {
        const auto middle = ratios.begin() + static_cast<std::ptrdiff_t>(ratios.size() / 2);
        std::nth_element(ratios.begin(), middle, ratios.end());
        return *middle;
    }

    int reads = 0;
    int writes = 0;
    std::vector<double> ratios{};
    std::chrono::steady_clock::time_point last = std::chrono::steady_clock::now();
};

/// Processor time of the calling thread: the transfer's, without the simulated receiver's.
double ThreadSeconds()
{
    rusage usage{};
    getrusage(RUSAGE_THREAD, &usage);
    const auto seconds = [](const timeval& time) {
        return static_cast<double>(time.tv_sec) + 1e-6 * static_cast<double>(time.tv_usec);
    };
    return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

struct Bench
{
    explicit Bench(int baud)
        : receiver({.memory = MemoryFromImage(DemoImage(0)), .baud = baud}), port(receiver.Device())
    {
    }

    SimSession receiver;
    QtSerialPort port;
    RadioLink link{port};
    CloneImage image = DemoImage(0);
};

struct Timing
{
    Counter counter;
    double seconds = 0;
    double processor = 0;
};

using Transfer = std::function<TransferResult(Bench&, TransferObserver&)>;

Timing Time(Bench& bench, const Transfer& transfer)
{
    Timing timing;
    const double processor = ThreadSeconds();
    const auto start = std::chrono::steady_clock::now();
    const TransferResult result = transfer(bench, timing.counter);
    timing.seconds = Seconds(std::chrono::steady_clock::now() - start).count();
    timing.processor = ThreadSeconds() - processor;
    if (result != TransferResult::Done)
        std::printf("the transfer failed\n");
    return timing;
}

TransferResult ReadEverything(Bench& bench, TransferObserver& observer)
{
    return ReceiverReader(bench.image, bench.link, observer).ReadAll();
}

TransferResult WriteEverything(Bench& bench, TransferObserver& observer)
{
    return ReceiverWriter(bench.image, {}, bench.link, observer).Write();
}

void TimeLine()
{
    constexpr int kBaud = 9600;
    std::printf("%-12s %7s %9s %9s %7s %9s %13s\n", "transfer", "blocks", "wire s", "taken s", "ratio",
                "(median)", "CPU ms/block");
    const std::pair<const char*, Transfer> kTransfers[] = {{"whole read", ReadEverything},
                                                           {"whole write", WriteEverything}};
    for (const auto& [name, transfer] : kTransfers) {
        Bench bench(kBaud);
        Timing timing = Time(bench, transfer);
        const double wire = timing.counter.WireSeconds();
        std::printf("%-12s %7d %9.3f %9.3f %7.4f %9.4f %13.3f\n", name, timing.counter.Blocks(), wire,
                    timing.seconds, timing.seconds / wire, timing.counter.MedianRatio(),
                    1e3 * timing.processor / timing.counter.Blocks());
    }
}

/// The best of some repeats, in microseconds per block.
double MicrosecondsPerBlock(Bench& bench, const Transfer& transfer)
{
    double best = 1e9;
    for (int i = 0; i < kRepeats; ++i) {
        const Timing timing = Time(bench, transfer);
        best = std::min(best, 1e6 * timing.seconds / timing.counter.Blocks());
    }
    return best;
}

void TimeBlocks()
{
    std::printf("%-9s %15s %15s\n", "channels", "read us/block", "write us/block");
    for (const int channels : {100, 400, 1210}) {
        Bench bench(0);
        const bool isAll = channels == kRadioRows;
        const int selector = isAll ? kSelectAll : 0;
        ClearForNew(bench.image);
        bench.image.SetBankSize(0, isAll ? kBankRows : channels);
        bench.receiver.SetMemory(MemoryFromImage(bench.image));
        const double read = MicrosecondsPerBlock(bench, [selector](Bench& on, TransferObserver& observer) {
            return ReceiverReader(on.image, on.link, observer).ReadMemory(selector);
        });
        const double write = MicrosecondsPerBlock(bench, [selector](Bench& on, TransferObserver& observer) {
            const TransferScope scope{.settings = false, .selector = selector};
            return ReceiverWriter(on.image, scope, on.link, observer).Write();
        });
        std::printf("%-9d %15.1f %15.1f\n", channels, read, write);
    }
}

/// What a person waits for after Write: the blocks are read, written and read back.
TransferResult WriteChanges(Bench& bench, TransferObserver& observer)
{
    ReceiverKnowledge& knowledge = bench.link.Knowledge();
    ChangePlan plan(bench.image, KnownContents(knowledge), KnownFrom::Receiver, false);
    BlockMap read;
    if (ReadBlocks(plan.BlocksToCheck(), bench.image, bench.link, observer, read) != TransferResult::Done)
        return TransferResult::Failed;
    plan.Check(read);
    if (ChangeWriter(bench.image, plan, bench.link, observer).Write() != TransferResult::Done)
        return TransferResult::Failed;
    std::vector<BlockDifference> differences;
    const TransferResult result =
        ReadBack(ExpectedAfterChanges(bench.image, plan), bench.link, observer, differences);
    return differences.empty() ? result : TransferResult::Failed;
}

TransferResult WriteAndVerify(Bench& bench, TransferObserver& observer)
{
    if (WriteEverything(bench, observer) != TransferResult::Done)
        return TransferResult::Failed;
    std::vector<BlockDifference> differences;
    return ReadBack(ExpectedAfterWrite(bench.image, {}), bench.link, observer, differences);
}

/// Edits so many channels of a receiver that is known.
void Edit(Bench& bench, int channels)
{
    const ReceiverMemory memory = bench.receiver.Memory();
    for (const int address : ReadableBlocks())
        bench.link.Knowledge().TakeRead(address, memory.At(address));
    for (int row = 0; row < channels; ++row)
        bench.image.MemData(row * 10).tone ^= 1;
}

void TimeChanges()
{
    constexpr int kBaud = 9600;
    constexpr int kTimes = 5;
    std::printf("%-28s %7s %10s %10s\n", "write", "blocks", "median s", "most s");
    for (const int channels : {1, 10, 100}) {
        Bench bench(kBaud);
        std::vector<double> seconds;
        int blocks = 0;
        for (int time = 0; time < kTimes; ++time) {
            Edit(bench, channels);
            const Timing timing = Time(bench, WriteChanges);
            seconds.push_back(timing.seconds);
            blocks = timing.counter.Blocks();
        }
        std::ranges::sort(seconds);
        std::printf("%-3d %-24s %7d %10.3f %10.3f\n", channels, "edited channels", blocks,
                    seconds[kTimes / 2], seconds.back());
    }
    Bench bench(kBaud);
    const Timing whole = Time(bench, WriteAndVerify);
    std::printf("%-28s %7d %10.3f\n", "everything, with verification", whole.counter.Blocks(), whole.seconds);
}

}  // namespace
}  // namespace rqm5

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    const std::string_view what = argc > 1 ? argv[1] : "";
    if (what == "line")
        rqm5::TimeLine();
    else if (what == "blocks")
        rqm5::TimeBlocks();
    else if (what == "changes")
        rqm5::TimeChanges();
    else
        std::fprintf(stderr, "usage: link_bench line|blocks|changes\n");
    return what == "line" || what == "blocks" || what == "changes" ? 0 : 2;
}
