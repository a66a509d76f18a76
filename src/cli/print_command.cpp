#include <QCoreApplication>
#include <QFileInfo>
#include <QProcess>
#include <ostream>

#include "cli/clone_files.h"
#include "cli/command.h"
#include "cli/file_list.h"
#include "cli/print_choice.h"
#include "cli/receiver_session.h"
#include "cli/values.h"
#include "image/display_text.h"

namespace rqm5 {
namespace {

/// Where the program for PDFs is: beside this one's folder in an installation and where it was built.
QString PdfProgram()
{
    return QCoreApplication::applicationDirPath() + QStringLiteral("/" RQM5_PDF_PROGRAM);
}

/// The words of the command line as this command understood them.
QStringList WordsOf(const Arguments& arguments)
{
    QStringList words;
    for (const auto& [name, value] : arguments.Options()) {
        words << QString::fromStdString(name);
        if (!value.empty())
            words << PathOf(value);
    }
    return words << QStringLiteral("--") << PathOf(arguments[0]);
}

/// Pages need fonts, and the libraries for those make every start slower. So they have a program of their
/// own.
Status RunPdfProgram(const Arguments& arguments, Console& console)
{
    const EventLoopHost host;
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedChannels);
    process.setInputChannelMode(QProcess::ForwardedInputChannel);
    console.out.flush();
    process.start(PdfProgram(), WordsOf(arguments));
    if (!process.waitForStarted(-1))
        return Fail(console, {kFileOpenError,
                              {MESSAGE("%1: the program that makes PDFs cannot be started. Install "
                                       "rq-m5 again, or print from the window."),
                               {PathText(PdfProgram())}}});
    process.waitForFinished(-1);
    const bool hasEnded = process.exitStatus() == QProcess::NormalExit;
    return hasEnded ? static_cast<Status>(process.exitCode()) : Status::Failed;
}

}  // namespace

ListingChoice ChoiceOf(const Arguments& arguments)
{
    const bool isAll = !arguments.Has("--settings") && !arguments.Has("--vfo") && !arguments.Has("--memory");
    return {isAll || arguments.Has("--settings"), isAll || arguments.Has("--vfo"),
            isAll || arguments.Has("--memory"), SelectorOf(arguments), !arguments.Has("--empty")};
}

Status RunPrint(const Arguments& arguments, Console& console)
{
    if (arguments.Has("--pdf"))
        return RunPdfProgram(arguments, console);
    bool isFirst = true;
    return ForEachFile(arguments, console, [&](const InputFile& file, const CloneImage& image) {
        if (file.isOneOfSeveral)
            console.out << (isFirst ? "" : "\n")
                        << Painted(VisibleText(file.name), Paint::Bold, console.paintsOut) << "\n\n";
        isFirst = false;
        console.out << FormatListing(BuildListing(image, ChoiceOf(arguments)));
        return Status::Done;
    });
}

}  // namespace rqm5
