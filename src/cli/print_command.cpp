#include <QDate>
#include <QFileInfo>
#include <QGuiApplication>
#include <QLoggingCategory>
#include <ostream>

#include "cli/clone_files.h"
#include "cli/command.h"
#include "cli/values.h"
#include "printing/pdf_file.h"

namespace rqm5 {
namespace {

ListingChoice ChoiceOf(const Arguments& arguments)
{
    const bool isAll = !arguments.Has("--settings") && !arguments.Has("--vfo") && !arguments.Has("--memory");
    return {isAll || arguments.Has("--settings"), isAll || arguments.Has("--vfo"),
            isAll || arguments.Has("--memory"), SelectorOf(arguments), !arguments.Has("--empty")};
}

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

Status WritePdf(const Arguments& arguments, const Listing& listing, Console& console)
{
    // Fonts need the application of a graphical program, but pages need no display. What it has to say
    // about the desktop it does not find means nothing to whoever waits for a PDF.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QLoggingCategory::setFilterRules(QStringLiteral("*.warning=false"));
    char name[] = "rq-m5";
    char* words[] = {name, nullptr};
    int count = 1;
    const QGuiApplication application(count, words);

    const QString fileName = QFileInfo(PathOf(arguments[0])).fileName();
    const std::string date = QDate::currentDate().toString(Qt::ISODate).toStdString();
    const PdfOutcome outcome = SavePdf(PathOf(arguments.Value("--pdf")), PaperOf(arguments), listing,
                                       {fileName.toStdString(), date}, [](int, int) { return true; });
    return outcome.problem ? Fail(console, *outcome.problem) : Status::Done;
}

}  // namespace

Status RunPrint(const Arguments& arguments, Console& console)
{
    CloneImage image;
    if (const auto problem = Load(arguments[0], image))
        return Fail(console, *problem);
    if (arguments.Has("--pdf"))
        if (const auto problem = ReplaceProblem(arguments, arguments.Value("--pdf"), FileKind::Pdf))
            return Fail(console, *problem);
    const Listing listing = BuildListing(image, ChoiceOf(arguments));
    if (arguments.Has("--pdf"))
        return WritePdf(arguments, listing, console);
    console.out << FormatListing(listing);
    return Status::Done;
}

}  // namespace rqm5
