#include "cli/file_list.h"

#include <algorithm>

#include "cli/clone_files.h"
#include "cli/streams.h"

namespace rqm5 {
namespace {

constexpr char kFromFile[] = "--from-file";

/// The names of a list. Names with line ends in them come with a NUL behind each.
std::vector<std::string> NamesIn(const std::string& list)
{
    const char end = list.find('\0') != std::string::npos ? '\0' : '\n';
    std::vector<std::string> names;
    for (std::size_t at = 0; at < list.size();) {
        const std::size_t stop = std::min(list.find(end, at), list.size());
        std::string name = list.substr(at, stop - at);
        if (end == '\n' && name.ends_with('\r'))
            name.pop_back();
        if (!name.empty())
            names.push_back(std::move(name));
        at = stop + 1;
    }
    return names;
}

}  // namespace

std::variant<std::vector<std::string>, Problem> FilesOf(const Arguments& arguments, std::size_t firstOperand)
{
    const auto& operands = arguments.Operands();
    std::vector<std::string> files(operands.begin() + static_cast<std::ptrdiff_t>(firstOperand),
                                   operands.end());
    if (!arguments.Has(kFromFile))
        return files;
    std::string list;
    if (const auto problem = ReadInput(arguments.Value(kFromFile), list))
        return *problem;
    std::ranges::move(NamesIn(list), std::back_inserter(files));
    if (files.empty())
        return Problem{kFileOpenError, {MESSAGE("%1: the list names no file"), {arguments.Value(kFromFile)}}};
    return files;
}

Message NoFileFault(const Arguments& arguments, std::size_t firstOperand)
{
    const bool isNamed = arguments.Operands().size() > firstOperand || arguments.Has(kFromFile);
    return isNamed ? Message() : Message(MESSAGE("%1 is missing"), {std::string("FILE")});
}

Status Worse(Status one, Status other)
{
    return std::max(one, other);
}

Status ForEachFile(const Arguments& arguments, Console& console, const UseFile& use,
                   const UseProblem& onProblem, std::size_t firstOperand)
{
    const auto named = FilesOf(arguments, firstOperand);
    if (const auto* problem = std::get_if<Problem>(&named))
        return Fail(console, *problem);
    const auto& names = std::get<std::vector<std::string>>(named);
    Status worst = Status::Done;
    CloneImage image;
    for (const std::string& name : names) {
        InputFile file = {name, names.size() > 1};
        if (const auto problem = Load(name, image, &file.bytes)) {
            worst = Worse(worst, Fail(console, *problem));
            if (onProblem)
                onProblem(file, *problem);
        } else {
            worst = Worse(worst, use(file, image));
        }
    }
    return worst;
}

}  // namespace rqm5
