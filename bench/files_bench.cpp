// What files cost in the process: each entry is to stay below 3 ms.

#include <benchmark/benchmark.h>

#include <QDir>
#include <QTemporaryDir>

#include "files/clone_file.h"
#include "files/csv_file.h"
#include "files/file_store.h"
#include "image/number_text.h"
#include "memory/start_image.h"

namespace rqm5 {
namespace {

/// Every row holds a channel and a note, which is the most that an image can hold.
CloneImage FullImage()
{
    CloneImage image = StartUpImage(0);
    for (int row = 0; row < kMemoryRows; ++row) {
        const auto modulo = [row](int count) { return static_cast<std::uint8_t>(row % count); };
        Channel& channel = image.MemData(row);
        channel.blank = 0;
        channel.frequency = Hertz(30 + row * 0.98765);
        channel.mode = modulo(3);
        channel.step = modulo(14);
        channel.option = static_cast<std::uint8_t>(row % 5 * 16 + row % 2 * 8);
        channel.secret = modulo(17);
        channel.carrier = modulo(29);
        channel.tone = modulo(39);
        channel.shift = static_cast<std::uint8_t>(row % 3 * 16);
        channel.shiftFrequency = row % 90 * 1'000'000 + 600'000;
        channel.note = "Repeater of channel " + std::to_string(row);
        channel.enabled = row % 4 != 0;
    }
    return image;
}

void FormatClone(benchmark::State& state)
{
    const CloneImage image = FullImage();
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(FormatCloneFile(image));
}
BENCHMARK(FormatClone)->Unit(benchmark::kMillisecond);

/// What the user's typing waits for while unsaved changes are kept: the rest is done beside it.
void CopyForRecovery(benchmark::State& state)
{
    const CloneImage image = FullImage();
    for ([[maybe_unused]] auto _ : state) {
        CloneImage copy = image;
        benchmark::DoNotOptimize(copy);
    }
}
BENCHMARK(CopyForRecovery)->Unit(benchmark::kMillisecond);

void ParseClone(benchmark::State& state)
{
    CloneImage image = FullImage();
    const std::string text = FormatCloneFile(image);
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(ParseCloneFile(text, image));
}
BENCHMARK(ParseClone)->Unit(benchmark::kMillisecond);

void FormatCsvText(benchmark::State& state)
{
    const CloneImage image = FullImage();
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(FormatCsv(image));
}
BENCHMARK(FormatCsvText)->Unit(benchmark::kMillisecond);

void ParseCsvText(benchmark::State& state)
{
    CloneImage image = FullImage();
    const std::string csv = FormatCsv(image);
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(ParseCsv(csv, image));
}
BENCHMARK(ParseCsvText)->Unit(benchmark::kMillisecond);

/// As `rq-m5 check` does: load, look at the notes.
void CheckFile(benchmark::State& state)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("bench.RQ5"));
    CloneImage image = FullImage();
    SaveCloneFile(path, image);
    for ([[maybe_unused]] auto _ : state) {
        benchmark::DoNotOptimize(LoadCloneFile(path, image));
        benchmark::DoNotOptimize(NotesThatDoNotSurvive(image));
        benchmark::DoNotOptimize(NotesThatLookLikeFormulas(image));
    }
}
BENCHMARK(CheckFile)->Unit(benchmark::kMillisecond);

/// Wall-clock time holds the wait for the disk as well; processor time is the program's.
void SaveFile(benchmark::State& state)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("bench.RQ5"));
    CloneImage image = FullImage();
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(SaveCloneFile(path, image));
}
BENCHMARK(SaveFile)->Unit(benchmark::kMillisecond);

void ExportFile(benchmark::State& state)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("bench.csv"));
    CloneImage image = FullImage();
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(ExportCsv(path, image));
}
BENCHMARK(ExportFile)->Unit(benchmark::kMillisecond);

void ImportFile(benchmark::State& state)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("bench.csv"));
    CloneImage image = FullImage();
    ExportCsv(path, image);
    CsvTaken taken;
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(ImportCsv(path, image, taken));
}
BENCHMARK(ImportFile)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace rqm5

BENCHMARK_MAIN();
