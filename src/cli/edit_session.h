#pragma once

#include <functional>
#include <optional>
#include <string>
#include <variant>

#include "cli/arguments.h"
#include "cli/console.h"
#include "image/clone_image.h"
#include "image/problem.h"
#include "memory/row_choice.h"

namespace rqm5 {

/// Changes an image; a problem keeps the file as it was.
using ImageEdit = std::function<std::optional<Problem>(CloneImage& image)>;

/// Loads FILE, changes it and saves it, once and only when something has changed. With --dry-run it prints
/// the differences and writes nothing.
Status EditFile(const std::string& path, const Arguments& arguments, Console& console, const ImageEdit& edit);

/// The rows that a word of a command line names, checked before.
RowChoice ChoiceOfRows(const std::string& text);

/// The memory rows that are named, those without a channel left out when it is asked for.
/// \return a problem when there are none
std::variant<RowList, Problem> NamedRows(const CloneImage& image, const RowChoice& choice,
                                         bool needsChannels);

}  // namespace rqm5
