// What an edit, its step in the history and its display cost; and how much memory the history keeps.
// Usage: document_bench [BENCHMARK-OPTIONS]

#include <benchmark/benchmark.h>
#include <malloc.h>

#include <QApplication>
#include <cstdio>

#include "app/pages.h"
#include "document/document.h"
#include "image/number_text.h"
#include "memory/channel_operations.h"
#include "memory/start_image.h"
#include "ui/message_dialogs.h"

namespace {

using namespace rqm5;

void Fill(CloneImage& image, double from, const char* note)
{
    for (int row = 0; row < kRadioRows; ++row) {
        Channel& channel = image.MemData(row);
        channel.blank = 0;
        channel.frequency = Hertz(from + row * 0.0125);
        channel.enabled = !channel.enabled;
        channel.note = note;
    }
}

CloneImage FullImage()
{
    CloneImage image = StartUpImage(0);
    Fill(image, 118, "note");
    return image;
}

void CompareImages(benchmark::State& state)
{
    const CloneImage before = FullImage();
    CloneImage after = before;
    Fill(after, 430, "another");
    for (auto step : state)
        benchmark::DoNotOptimize(Difference(before, after));
}
BENCHMARK(CompareImages)->Unit(benchmark::kMillisecond);

/// One edit with all 1210 rows on the screen's table, its step and everything that shows it.
void EditAndShow(benchmark::State& state)
{
    Document document(FullImage());
    MessageDialogs dialogs;
    QWidget window;
    Pages pages(document, dialogs, &window);
    pages.Tabs().Select(Tab::Memory);
    pages.Memory().SelectGroup(kSelectAll);
    window.resize(1000, 680);
    window.show();
    bool isOn = false;
    for (auto step : state) {
        document.Edit(QStringLiteral("Enable"),
                      [isOn](CloneImage& image) { image.MemData(605).enabled = isOn; });
        isOn = !isOn;
        QCoreApplication::processEvents();
    }
}
BENCHMARK(EditAndShow)->Unit(benchmark::kMillisecond);

void UndoARead(benchmark::State& state)
{
    Document document(FullImage());
    document.Edit(QStringLiteral("Read ALL"), [](CloneImage& image) { Fill(image, 430, "another"); });
    for (auto step : state) {
        document.History().undo();
        document.History().redo();
    }
}
BENCHMARK(UndoARead)->Unit(benchmark::kMillisecond);

std::size_t MemoryInUse()
{
    const auto info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

void PrintMemory()
{
    Document document(FullImage());
    std::size_t before = MemoryInUse();
    for (int i = 0; i < Document::kMostSteps; ++i)
        document.Edit(QStringLiteral("Modify (Bank 0 CH 5)"), [i](CloneImage& image) {
            image.MemData(i).frequency += 12500;
            image.MemData(i).note += " changed";
        });
    std::printf("history of 500 single edits: %zu KB\n", (MemoryInUse() - before) / 1024);
    document.Replace(FullImage(), QString());
    before = MemoryInUse();
    document.Edit(QStringLiteral("Read ALL"), [](CloneImage& image) { Fill(image, 430, "another note"); });
    std::printf("a read that changes all 1210 rows, notes and flags: %zu KB\n",
                (MemoryInUse() - before) / 1024);
    const int steps = document.History().count();
    {
        Transaction read(document, QStringLiteral("Read ALL"));
        read.MarkChanged();
    }
    std::printf("steps of a read that changes nothing: %d\n", document.History().count() - steps);
}

}  // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    PrintMemory();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
