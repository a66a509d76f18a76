#include <QCoreApplication>
#include <fstream>
#include <iostream>

#include "files/file_store.h"
#include "memory/start_image.h"
#include "platform/end_wait.h"
#include "simulator/demo_image.h"
#include "simulator/program_options.h"
#include "simulator/sim_session.h"

namespace rqm5 {
namespace {

enum ExitStatus { kDone = 0, kFailed = 1, kWrongUsage = 2 };

int Report(const Problem& problem)
{
    std::cerr << problem.text << ": " << problem.details.English() << "\n";
    return kFailed;
}

int Report(const std::string& what)
{
    std::cerr << "rq-m5-sim: " << what << "\n";
    return kFailed;
}

int Save(const QString& path, const ReceiverMemory& memory, const CloneImage& notes)
{
    CloneImage image = ImageFromMemory(memory, notes);
    const SaveOutcome outcome = SaveCloneFile(path, image);
    if (outcome.problem)
        return Report(*outcome.problem);
    if (outcome.lostNotes.empty())
        return kDone;
    Report(path.toStdString() + " is written, but it cannot bring back these notes:");
    for (const Message& row : outcome.lostNotes)
        std::cerr << "  " << row.English() << "\n";
    return kFailed;
}

/// Runs until a signal ends it. The device is the first line of output, and another line after each
/// hang-up, when it is a new one.
int RunReceiver(const ProgramOptions& program, const CloneImage& image)
{
    std::ofstream log;
    if (!program.log.isEmpty())
        log.open(program.log.toStdString(), std::ios::app);
    if (!program.log.isEmpty() && !log)
        return Report("cannot write " + program.log.toStdString());
    SimOptions options = program.session;
    options.memory = MemoryFromImage(image);
    options.keepsLog = false;
    options.onDevice = [](const std::string& device) { std::cout << device << std::endl; };
    options.onCommand = [&log](const std::string& command) {
        if (log.is_open())
            log << command << std::endl;
    };
    const EndWait end;
    SimSession session(options);
    if (!session.Error().empty())
        return Report(session.Error());
    std::cout << session.Terminal().toStdString() << std::endl;
    end.Wait();
    session.Stop();
    return program.save.isEmpty() ? kDone : Save(program.save, session.Memory(), image);
}

int Main(const QStringList& arguments)
{
    const ParsedOptions parsed = ParseProgramOptions(arguments);
    if (!parsed.answer.isEmpty()) {
        std::cout << parsed.answer.toStdString();
        return kDone;
    }
    if (!parsed.error.isEmpty()) {
        std::cerr << "rq-m5-sim: " << parsed.error.toStdString() << "\nTry 'rq-m5-sim --help'.\n";
        return kWrongUsage;
    }
    // Not found out at the end, when what was written to the receiver would be lost.
    const QString& save = parsed.options.save;
    if (const auto problem = save.isEmpty() ? std::nullopt : SaveObstacle(save))
        return Report(*problem);
    CloneImage image = DemoImage(parsed.options.region);
    if (!parsed.options.memory.isEmpty()) {
        image = StartUpImage(0);
        if (const auto problem = LoadCloneFile(parsed.options.memory, image))
            return Report(*problem);
    }
    return RunReceiver(parsed.options, image);
}

}  // namespace
}  // namespace rqm5

int main(int argc, char* argv[])
{
    rqm5::TurnFileSizeLimitIntoError();
    const QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("rq-m5-sim"));
    QCoreApplication::setApplicationVersion(QStringLiteral(RQM5_VERSION));
    return rqm5::Main(QCoreApplication::arguments());
}
