#include <QDate>
#include <QFileInfo>
#include <QGuiApplication>
#include <QLoggingCategory>

#include "cli/clone_files.h"
#include "cli/command.h"
#include "cli/print_choice.h"
#include "cli/streams.h"
#include "cli/values.h"
#include "files/file_store.h"
#include "language/language.h"
#include "platform/plain_settings.h"
#include "printing/pdf_file.h"

// The pages of "rq-m5 print --pdf", which starts this program with its own options.

namespace rqm5 {
namespace {

QPageLayout PaperOf(const Arguments& arguments)
{
    QPageLayout layout = DefaultPageLayout();
    if (arguments.Has("--paper")) {
        const bool isLetter = arguments.Value("--paper") == "letter";
        layout.setPageSize(QPageSize(isLetter ? QPageSize::Letter : QPageSize::A4), layout.margins());
    }
    layout.setOrientation(arguments.Has("--landscape") ? QPageLayout::Landscape : QPageLayout::Portrait);
    return layout;
}

PdfOutcome Write(const Arguments& arguments, const Listing& listing, Console& console)
{
    const std::string path = arguments.Value("--pdf");
    const QString fileName = QFileInfo(PathOf(arguments[0])).fileName();
    const std::string date = QDate::currentDate().toString(Qt::ISODate).toStdString();
    const PageTitle title = {IsStandard(arguments[0]) ? std::string(kStandardInput) : fileName.toStdString(),
                             date};
    const PageProgress goesOn = [](int, int) { return true; };
    if (!IsStandard(path))
        return SavePdf(PathOf(path), PaperOf(arguments), listing, title, goesOn);
    QByteArray pdf;
    PdfOutcome outcome = MakePdf(pdf, PaperOf(arguments), listing, title, goesOn);
    console.out.write(pdf.constData(), pdf.size());
    return outcome;
}

Status Run(const Arguments& arguments, Console& console)
{
    CloneImage image;
    if (const auto problem = Load(arguments[0], image))
        return Fail(console, *problem);
    if (const auto problem = ReplaceProblem(arguments, arguments.Value("--pdf"), FileKind::Pdf))
        return Fail(console, *problem);
    const PdfOutcome outcome = Write(arguments, BuildListing(image, ChoiceOf(arguments)), console);
    return outcome.problem ? Fail(console, *outcome.problem) : Status::Done;
}

}  // namespace
}  // namespace rqm5

int main(int argc, char* argv[])
{
    using namespace rqm5;
    TurnFileSizeLimitIntoError();
    PassOverSettingsThatAreNoFiles();
    // Fonts need the application of a graphical program, but pages need no display. What it has to say
    // about the desktop it does not find means nothing to whoever waits for a PDF.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QLoggingCategory::setFilterRules(QStringLiteral("*.warning=false"));
    const std::vector<std::string> words(argv + (argc > 0 ? 1 : 0), argv + argc);
    const QGuiApplication application(argc, argv);
    Language::OfProgram().Use({});

    Console console = StandardConsole();
    const Command& print = *FindCommand("print");
    const auto parsed = ParseArguments(words, print.operands, print.options);
    const auto* arguments = std::get_if<Arguments>(&parsed);
    if (arguments == nullptr || !arguments->Has("--pdf")) {
        Say(console, {MESSAGE("Use \"%1\"."), {std::string("rq-m5 print --pdf OUT.pdf FILE")}});
        return static_cast<int>(Status::WrongUsage);
    }
    return Finish(Run(*arguments, console), console);
}
