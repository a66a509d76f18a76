#pragma once

#include <QString>
#include <optional>

#include "image/problem.h"

namespace rqm5 {

/// What a file holds, by its first line. An empty file holds nothing that could get lost.
enum class FileKind { None, Empty, Clone, Csv, Pdf, Other };

FileKind KindOf(const QString& path);

/// That a file of another kind stands where one of this kind would replace it.
std::optional<Problem> OtherKindProblem(const QString& path, FileKind kind);

/// Gives the file at a path a second name, with "~" behind it, before another one takes its place. What had
/// that name is replaced.
/// \param kept  the second name
std::optional<Problem> KeepOldFile(const QString& path, QString& kept);

}  // namespace rqm5
