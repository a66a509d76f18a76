#include "cli/streams.h"

#include <QFile>
#include <QFileInfo>
#include <array>
#include <cstdio>
#include <iostream>
#include <memory>
#include <string_view>

#include "cli/clone_files.h"
#include "files/file_store.h"
#include "image/display_text.h"
#include "platform/terminal.h"

namespace rqm5 {
namespace {

constexpr std::size_t kLongestInput = 16 * 1024 * 1024;
constexpr int kUsualColumns = 80;

std::optional<Problem> ReadStream(std::FILE* stream, const Message& name, std::string& bytes)
{
    std::array<char, 1 << 16> buffer;
    bytes.clear();
    while (bytes.size() <= kLongestInput) {
        const std::size_t count = std::fread(buffer.data(), 1, buffer.size(), stream);
        bytes.append(buffer.data(), count);
        if (count == 0)
            break;
    }
    if (bytes.size() > kLongestInput)
        return Problem{
            kFileOpenError,
            {MESSAGE("%1: more than 16 MiB came. No clone file and no CSV file of a receiver is as "
                     "long; check what is sent."),
             {name}}};
    if (std::ferror(stream) != 0)
        return Problem{kFileOpenError, {MESSAGE("%1: it cannot be read. Give the name of a file."), {name}}};
    return std::nullopt;
}

bool TakesColour(StandardStream stream)
{
    const std::string_view terminal = qEnvironmentVariableIsSet("TERM") ? std::getenv("TERM") : "";
    return IsTerminal(stream) && qEnvironmentVariableIsEmpty("NO_COLOR") && !terminal.empty() &&
           terminal != "dumb";
}

/// Columns of the terminal on standard error, 0 when it is none.
int ErrorColumns()
{
    if (!IsTerminal(StandardStream::Error))
        return 0;
    const int columns = TerminalColumns(StandardStream::Error);
    return columns > 0 ? columns : kUsualColumns;
}

}  // namespace

std::optional<Problem> ReadInput(const std::string& path, std::string& bytes)
{
    if (IsStandard(path))
        return ReadStream(stdin, kStandardInput, bytes);
    if (!IsReadAsItComes(path)) {
        auto problem = NameProblem(path);
        return problem ? problem : ReadWholeFile(PathOf(path), bytes);
    }
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> stream(
        std::fopen(path.c_str(), "rb"), [](std::FILE* file) { return std::fclose(file); });
    if (!stream)
        return Problem{kFileOpenError, {MESSAGE("%1: it cannot be opened. Check its permissions."), {path}}};
    return ReadStream(stream.get(), path, bytes);
}

Message SourceName(const std::string& path)
{
    return IsStandard(path) ? Message(kStandardInput) : Message(path);
}

Message Unchanged(const std::string& path)
{
    return IsStandard(path) ? Message(MESSAGE("nothing is written"))
                            : Message(MESSAGE("%1 is as it was"), {path});
}

void Note(const std::string& path, Console& console, const Message& text)
{
    if (IsStandard(path))
        Say(console, text);
    else
        console.out << VisibleText(text.English()) << '\n';
}

Console StandardConsole()
{
    LeaveBytesAsTheyAre();
    // A whole table in one piece: a reader such as head that leaves early does not cut a command short.
    static std::array<char, 1 << 16> buffer;
    std::ios::sync_with_stdio(false);
    std::cout.rdbuf()->pubsetbuf(buffer.data(), buffer.size());
    std::cin.tie(nullptr);
    Console console{std::cout, std::cerr, ErrorColumns()};
    console.paintsOut = TakesColour(StandardStream::Out);
    console.paintsErr = TakesColour(StandardStream::Error);
    return console;
}

int Finish(Status status, Console& console)
{
    console.out.flush();
    if (console.out || status != Status::Done)
        return static_cast<int>(status);
    return static_cast<int>(
        Fail(console, {kFileOpenError, MESSAGE("the output could not be written; is the disk full?")}));
}

}  // namespace rqm5
