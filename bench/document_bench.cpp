// What an edit, its step in the history and its display cost; and how much memory the history keeps.
// Usage: document_bench [BENCHMARK-OPTIONS]

#include <benchmark/benchmark.h>
#include <malloc.h>

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <cstdio>
#include <memory>

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
        document.Edit("Enable", [isOn](CloneImage& image) { image.MemData(605).enabled = isOn; });
        isOn = !isOn;
        QCoreApplication::processEvents();
    }
}
BENCHMARK(EditAndShow)->Unit(benchmark::kMillisecond);

void UndoARead(benchmark::State& state)
{
    Document document(FullImage());
    document.Edit("Read ALL", [](CloneImage& image) { Fill(image, 430, "another"); });
    for (auto step : state) {
        document.History().undo();
        document.History().redo();
    }
}
BENCHMARK(UndoARead)->Unit(benchmark::kMillisecond);

/// Shows a dialog for as long as it takes to draw it, and accepts it.
class QuickDialogs : public MessageDialogs
{
  public:
    int Run(QDialog& dialog) override
    {
        dialog.show();
        QCoreApplication::processEvents();
        return QDialog::Accepted;
    }
};

/// A thousand lines of a spreadsheet pasted over a thousand channels: read, planned, previewed, written and
/// shown; or taken back and shown.
class Paste : public benchmark::Fixture
{
  public:
    void SetUp(const benchmark::State& /*state*/) override
    {
        QString text = QStringLiteral("Name\tMHz\tMode\tTone\n");
        for (int row = 0; row < kBankRows; ++row)
            text += QStringLiteral("Station %1\t%2\tFM\t88.5\n").arg(row).arg(430 + row * 0.0125);
        QGuiApplication::clipboard()->setText(text);
        document = std::make_unique<Document>(FullImage());
        window = std::make_unique<QWidget>();
        auto* pages = new Pages(*document, dialogs, window.get());
        pages->Tabs().Select(Tab::Memory);
        pages->Memory().SelectGroup(kSelectAll);
        window->resize(1000, 680);
        window->show();
        paste = pages->Memory().findChild<QAction*>(QStringLiteral("mnuEditPaste"));
        QCoreApplication::processEvents();
    }

    void TearDown(const benchmark::State& /*state*/) override
    {
        window.reset();
        document.reset();
    }

    void Run() const
    {
        paste->trigger();
        QCoreApplication::processEvents();
    }

    void Undo() const
    {
        document->History().undo();
        QCoreApplication::processEvents();
    }

    QuickDialogs dialogs;
    std::unique_ptr<Document> document;
    std::unique_ptr<QWidget> window;
    QAction* paste = nullptr;
};

BENCHMARK_DEFINE_F(Paste, OfAThousandRows)(benchmark::State& state)
{
    for (auto step : state) {
        Run();
        state.PauseTiming();
        Undo();
        state.ResumeTiming();
    }
}
BENCHMARK_REGISTER_F(Paste, OfAThousandRows)->Unit(benchmark::kMillisecond);

BENCHMARK_DEFINE_F(Paste, TakenBack)(benchmark::State& state)
{
    for (auto step : state) {
        state.PauseTiming();
        Run();
        state.ResumeTiming();
        Undo();
    }
}
BENCHMARK_REGISTER_F(Paste, TakenBack)->Unit(benchmark::kMillisecond);

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
        document.Edit("Modify (Bank 0 CH 5)", [i](CloneImage& image) {
            image.MemData(i).frequency += 12500;
            image.MemData(i).note += " changed";
        });
    std::printf("history of 500 single edits: %zu KB\n", (MemoryInUse() - before) / 1024);
    document.Replace(FullImage(), QString());
    before = MemoryInUse();
    document.Edit("Read ALL", [](CloneImage& image) { Fill(image, 430, "another note"); });
    std::printf("a read that changes all 1210 rows, notes and flags: %zu KB\n",
                (MemoryInUse() - before) / 1024);
    const int steps = document.History().count();
    {
        Transaction read(document, "Read ALL");
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
