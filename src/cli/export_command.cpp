#include <QFileInfo>
#include <algorithm>
#include <ostream>

#include "cli/clone_files.h"
#include "cli/command.h"
#include "cli/file_list.h"
#include "cli/streams.h"
#include "files/csv_file.h"
#include "files/file_kind.h"
#include "files/file_store.h"
#include "image/display_text.h"

namespace rqm5 {
namespace {

Status ExportTo(const std::string& path, const CloneImage& image, Console& console)
{
    if (IsStandard(path))
        console.out << FormatCsv(image);
    else if (const auto problem = ExportCsv(PathOf(path), image))
        return Fail(console, *problem);
    const std::vector<Message> formulas = NotesThatLookLikeFormulas(image);
    if (!formulas.empty())
        Warn(console, MESSAGE("a spreadsheet would run these notes as formulas:"), formulas);
    return Status::Done;
}

/// "radio.RQ5" in a folder: "FOLDER/radio.csv".
std::string TargetIn(const std::string& folder, const std::string& file)
{
    const std::string name =
        IsStandard(file) ? "standard-input" : QFileInfo(PathOf(file)).completeBaseName().toStdString();
    return folder + (folder.ends_with('/') ? "" : "/") + name + ".csv";
}

class FolderExport
{
  public:
    FolderExport(const Arguments& arguments, Console& console)
        : arguments_(arguments), console_(console), folder_(arguments.Value("--to"))
    {
    }

    Status Run()
    {
        if (!QFileInfo(PathOf(folder_)).isDir())
            return Fail(console_, {kFileOpenError,
                                   {MESSAGE("%1: there is no such folder. Make it first."), {folder_}}});
        return ForEachFile(arguments_, console_, [this](const InputFile& file, const CloneImage& image) {
            return Export(file.name, image);
        });
    }

  private:
    Status Export(const std::string& file, const CloneImage& image)
    {
        const std::string target = TargetIn(folder_, file);
        if (std::ranges::find(done_, target) != done_.end())
            return Fail(console_, {kFileOpenError,
                                   {MESSAGE("%1: another file of this name went to %2 just now. Export "
                                            "it by itself."),
                                    {file, target}}});
        if (!arguments_.Has("--force"))
            if (const auto problem = OtherKindProblem(PathOf(target), FileKind::Csv))
                return Fail(console_, *problem);
        done_.push_back(target);
        const Status status = ExportTo(target, image, console_);
        if (status == Status::Done && !console_.isQuiet)
            console_.out << VisibleText(file) << " -> " << VisibleText(target) << '\n';
        return status;
    }

    const Arguments& arguments_;
    Console& console_;
    std::string folder_;
    std::vector<std::string> done_;
};

}  // namespace

Status RunExport(const Arguments& arguments, Console& console)
{
    if (arguments.Has("--to"))
        return FolderExport(arguments, console).Run();
    CloneImage image;
    if (const auto problem = Load(arguments[0], image))
        return Fail(console, *problem);
    if (const auto problem = ReplaceProblem(arguments, arguments[1], FileKind::Csv))
        return Fail(console, *problem);
    return ExportTo(arguments[1], image, console);
}

}  // namespace rqm5
