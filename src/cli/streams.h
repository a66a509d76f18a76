#pragma once

#include <optional>
#include <string>

#include "cli/console.h"
#include "image/problem.h"

namespace rqm5 {

/// The name that stands for standard input where a file is read and for standard output where it is written.
inline constexpr char kStandardName[] = "-";
inline constexpr char kStandardInput[] = "standard input";
inline constexpr char kStandardOutput[] = "standard output";

inline bool IsStandard(const std::string& path)
{
    return path == kStandardName;
}

/// Reads a file, a pipe, a device or standard input to its end, as far as files may be long.
std::optional<Problem> ReadInput(const std::string& path, std::string& bytes);

/// The name of a file that is read, for messages.
std::string SourceName(const std::string& path);

/// "FILE is as it was", for messages: a command that fails changes nothing.
std::string Unchanged(const std::string& path);

/// Where a command says what it did: beside the file when that goes to standard output.
std::ostream& NotesOf(const std::string& path, Console& console);

/// The console of a program: standard output and error, with a progress bar and colours where they are a
/// terminal.
Console StandardConsole();

/// The exit status, once everything has been written.
int Finish(Status status, Console& console);

}  // namespace rqm5
