#pragma once

#include <QString>
#include <optional>
#include <string>

#include "cli/arguments.h"
#include "cli/console.h"
#include "files/file_kind.h"
#include "image/clone_image.h"
#include "image/problem.h"

namespace rqm5 {

/// A file name as it was typed.
QString PathOf(const std::string& typed);

/// Why no file can be found or made under a name: Qt would turn it into that of another file.
std::optional<Problem> NameProblem(const std::string& typed);

/// A file name for people: what no terminal should obey made visible.
std::string PathText(const QString& path);

/// Never true for standard output.
bool Exists(const std::string& path);

/// Loads a clone file, from a pipe or standard input ("-"), too.
/// \param bytes  takes what was read; may be null
std::optional<Problem> Load(const std::string& path, CloneImage& image, std::string* bytes = nullptr);

/// A clone file that was read already; \param path  where, for messages
std::optional<Problem> Parse(const std::string& path, const std::string& bytes, CloneImage& image);

/// Loads the file, or makes the start-up image of region 0 when there is none.
std::optional<Problem> LoadOrStart(const std::string& path, CloneImage& image);

/// True when both names lead to the same file, however they are spelled; hard links are the same file.
bool AreSameFile(const std::string& a, const std::string& b);

/// That a command would replace the file that it reads.
Problem SameFileProblem(const std::string& path);

/// Why a command may not replace a file: it is the one that it reads (FILE), or holds something else than the
/// command writes and --force is not given.
std::optional<Problem> ReplaceProblem(const Arguments& arguments, const std::string& path, FileKind kind);

/// That a file was saved without all that the old one had.
Message NotAllKept(const Message& path);

/// What becomes of a clone file that could not be opened again because of its notes.
enum class Unopenable { IsRefused, IsWritten };

struct SaveEnd
{
    Status status;
    bool isWritten;
};

/// Saves the image, to standard output when the name is "-". Notes that the file cannot bring back are named
/// and the status is that of a failure. Warns of all else that the save changes: values that read back
/// otherwise, who may use the file, other names of it.
SaveEnd Save(const std::string& path, const CloneImage& image, Console& console,
             Unopenable unopenable = Unopenable::IsWritten);

/// Saves what was read from the receiver. Where that fails it is kept elsewhere, and the message says where.
/// \param aftermath  what else the failure means
Status SaveRead(const std::string& path, const CloneImage& image, Console& console,
                const Message& aftermath = {});

}  // namespace rqm5
