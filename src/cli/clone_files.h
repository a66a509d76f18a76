#pragma once

#include <QString>
#include <optional>
#include <string>

#include "cli/console.h"
#include "image/clone_image.h"
#include "image/problem.h"

namespace rqm5 {

/// A file name as it was typed.
QString PathOf(const std::string& typed);

bool Exists(const std::string& path);

std::optional<Problem> Load(const std::string& path, CloneImage& image);

/// Loads the file, or makes the start-up image of region 0 when there is none.
std::optional<Problem> LoadOrStart(const std::string& path, CloneImage& image);

/// True when both names lead to the same file, however they are spelled.
bool AreSameFile(const std::string& a, const std::string& b);

/// That a command would replace the file that it reads.
Problem SameFileProblem(const std::string& path);

/// Keeps the file as it is under its name with a "~" behind it, in the place of what was kept there before.
std::optional<Problem> KeepOldFile(const std::string& path);

/// Saves the image. Notes that the file cannot bring back are named; the file is written and the status
/// is that of a failure.
Status Save(const std::string& path, const CloneImage& image, Console& console);

}  // namespace rqm5
