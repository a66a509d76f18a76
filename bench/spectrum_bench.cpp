// What a frame of the spectrum costs. A frame of a screen lasts 16 ms.
// Usage: spectrum_bench [BENCHMARK-OPTIONS]

#include <benchmark/benchmark.h>

#include <QApplication>
#include <algorithm>
#include <ctime>

#include "image/number_text.h"
#include "memory/bank_layout.h"
#include "memory/start_image.h"
#include "spectrum/spectrum_view.h"

namespace {

using namespace rqm5;

/// Every row a channel, from one end of the range to the other, in fifty banks; every third one is off, every
/// tenth stored twice.
CloneImage FullImage()
{
    CloneImage image = StartUpImage(2);
    for (int bank = 0; bank < kBanks; ++bank)
        image.SetBankSize(bank, kBankRows / kBanks);
    for (int row = 0; row < kMemoryRows; ++row) {
        Channel& channel = image.MemData(row);
        channel.blank = 0;
        channel.frequency = Hertz(0.1 + (row % 10 == 0 ? 10 : row) * 1.04);
        channel.mode = static_cast<std::uint8_t>(row % 3);
        channel.enabled = row % 3 != 0;
    }
    return image;
}

double Seconds()
{
    return static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
}

/// \param what  0 nothing moves, 1 zoom, 2 drag
void DrawFrame(benchmark::State& state)
{
    const CloneImage image = FullImage();
    SpectrumView view(image, nullptr);
    view.resize(1600, 1000);
    view.show();
    QCoreApplication::processEvents();
    double slowest = 0;
    int frame = 0;
    for (auto step : state) {
        const double begin = Seconds();
        if (state.range(0) == 1)
            view.Zoom(frame % 40 < 20 ? 1.2 : 1 / 1.2);
        if (state.range(0) == 2)
            view.ScrollTo(frame * 7 % std::max(view.HighestScroll(), 1));
        view.repaint();
        slowest = std::max(slowest, Seconds() - begin);
        ++frame;
    }
    state.counters["slowest_ms"] = slowest * 1000;
}
BENCHMARK(DrawFrame)->DenseRange(0, 2)->Unit(benchmark::kMillisecond);

void BuildPicture(benchmark::State& state)
{
    const CloneImage image = FullImage();
    for (auto step : state)
        benchmark::DoNotOptimize(BuildSpectrum(image));
}
BENCHMARK(BuildPicture)->Unit(benchmark::kMillisecond);

void FindMarks(benchmark::State& state)
{
    const SpectrumPicture picture = BuildSpectrum(FullImage());
    const SpectrumAxis axis;
    for (auto step : state)
        for (int lane = 0; lane < static_cast<int>(picture.lanes.size()); ++lane)
            benchmark::DoNotOptimize(MarkAt(picture, axis, lane, 0.7, 0.01));
}
BENCHMARK(FindMarks)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
