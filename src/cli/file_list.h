#pragma once

#include <functional>
#include <string>
#include <variant>
#include <vector>

#include "cli/arguments.h"
#include "cli/console.h"
#include "image/clone_image.h"
#include "image/problem.h"

namespace rqm5 {

/// One of the files that a command goes through.
struct InputFile
{
    std::string name;
    bool isOneOfSeveral = false;
    std::string bytes = {};
};

/// The files that the operands from this one on and --from-file name: a list with a name on each line, or
/// with a NUL behind each name.
std::variant<std::vector<std::string>, Problem> FilesOf(const Arguments& arguments,
                                                        std::size_t firstOperand = 0);

/// Fault of a command that goes through files: none is named.
Message NoFileFault(const Arguments& arguments, std::size_t firstOperand = 0);

/// The worse of two ends.
Status Worse(Status one, Status other);

/// What a command does with a file that could be loaded, and with one that could not.
using UseFile = std::function<Status(const InputFile& file, const CloneImage& image)>;
using UseProblem = std::function<void(const InputFile& file, const Problem& problem)>;

/// Goes through the files; one that is not whole is reported and passed over.
/// \param onProblem  called besides; may be null
Status ForEachFile(const Arguments& arguments, Console& console, const UseFile& use,
                   const UseProblem& onProblem = nullptr, std::size_t firstOperand = 0);

}  // namespace rqm5
