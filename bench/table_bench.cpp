// What finding a channel and scrolling the memory table cost. A frame of a screen lasts 16 ms.
// Usage: table_bench [BENCHMARK-OPTIONS]

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QLineEdit>
#include <QScrollBar>
#include <QTableView>
#include <QTest>
#include <algorithm>
#include <ctime>

#include "document/document.h"
#include "image/number_text.h"
#include "memory/channel_search.h"
#include "memory/duplicates.h"
#include "memory/find_bar.h"
#include "memory/memory_page.h"
#include "memory/start_image.h"
#include "ui/message_dialogs.h"

namespace {

using namespace rqm5;

CloneImage FullImage()
{
    CloneImage image = StartUpImage(0);
    for (int row = 0; row < kRadioRows; ++row) {
        Channel& channel = image.MemData(row);
        channel.blank = 0;
        channel.frequency = Hertz(118 + row * 0.0125);
        channel.enabled = row % 3 != 0;
        channel.note = "A note of some words, Größe " + std::to_string(row);
    }
    return image;
}

/// A word that no row has, one that every row has, and two words.
void FindRows(benchmark::State& state)
{
    const CloneImage image = FullImage();
    const char* const queries[] = {"nothing", "1", "words größe"};
    for (auto step : state)
        benchmark::DoNotOptimize(FindChannels(image, queries[state.range(0)]));
}
BENCHMARK(FindRows)->DenseRange(0, 2)->Unit(benchmark::kMillisecond);

void ListDuplicates(benchmark::State& state)
{
    const CloneImage image = FullImage();
    for (auto step : state)
        benchmark::DoNotOptimize(RepeatedFrequencies(image));
}
BENCHMARK(ListDuplicates)->Unit(benchmark::kMillisecond);

struct Page
{
    Page()
    {
        page.resize(1000, 680);
        page.SelectGroup(kSelectAll);
        page.show();
        QCoreApplication::processEvents();
    }

    Document document{FullImage()};
    MessageDialogs dialogs;
    MemoryPage page{document, dialogs, nullptr};
};

/// A letter typed that every row matches: search, list of 1210 hits, drawn.
void TypeALetter(benchmark::State& state)
{
    Page shown;
    auto& box = *shown.page.findChild<QLineEdit*>(QStringLiteral("txtFind"));
    shown.page.activateWindow();
    shown.page.Finder().Begin();
    for (auto step : state) {
        QTest::keyClick(&box, Qt::Key_1);
        QCoreApplication::processEvents();
        state.PauseTiming();
        box.clear();
        QCoreApplication::processEvents();
        state.ResumeTiming();
    }
}
BENCHMARK(TypeALetter)->Unit(benchmark::kMillisecond);

double ProcessorMilliseconds()
{
    return static_cast<double>(std::clock()) * 1000 / CLOCKS_PER_SEC;
}

/// All 1210 rows a line at a time; the slowest frame counts.
void ScrollLines(benchmark::State& state)
{
    Page shown;
    auto& table = *shown.page.findChild<QTableView*>(QStringLiteral("MSFlexGrid1"));
    QScrollBar& bar = *table.verticalScrollBar();
    double slowest = 0;
    int line = 0;
    for (auto step : state) {
        const double start = ProcessorMilliseconds();
        bar.setValue(line);
        table.viewport()->repaint();
        slowest = std::max(slowest, ProcessorMilliseconds() - start);
        line = line < bar.maximum() ? line + static_cast<int>(state.range(0)) : 0;
    }
    state.counters["slowest_ms"] = slowest;
}
BENCHMARK(ScrollLines)->Arg(1)->Arg(3)->Arg(23)->Iterations(1200)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
