#pragma once

#include <optional>
#include <string>

#include "cli/console.h"
#include "image/problem.h"

namespace rqm5 {

/// The name that stands for standard input where a file is read and for standard output where it is written.
inline constexpr char kStandardName[] = "-";
inline constexpr char kStandardInput[] = MESSAGE("standard input");
inline constexpr char kStandardOutput[] = MESSAGE("standard output");

inline bool IsStandard(const std::string& path)
{
    return path == kStandardName;
}

/// Reads a file, a pipe, a device or standard input to its end, as far as files may be long.
std::optional<Problem> ReadInput(const std::string& path, std::string& bytes);

/// The name of a file that is read, for messages.
Message SourceName(const std::string& path);

/// "FILE is as it was", for messages: a command that fails changes nothing.
Message Unchanged(const std::string& path);

/// Says what a command did with a file: in English on standard output, and in the user's language on standard
/// error where the file itself goes to standard output.
void Note(const std::string& path, Console& console, const Message& text);

/// The console of a program: standard output and error, with a progress bar and colours where they are a
/// terminal.
Console StandardConsole();

/// The exit status, once everything has been written.
int Finish(Status status, Console& console);

}  // namespace rqm5
