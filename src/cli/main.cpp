#include <QtGlobal>
#include <array>
#include <iostream>
#include <string>
#include <vector>

#include "cli/program.h"
#include "files/file_store.h"
#include "files/plain_settings.h"

#ifdef Q_OS_UNIX
#include <sys/ioctl.h>
#include <unistd.h>
#endif

namespace {

constexpr int kUsualColumns = 80;

/// Columns of the terminal on standard error, 0 when it is none.
int ErrorColumns()
{
#ifdef Q_OS_UNIX
    if (isatty(STDERR_FILENO) == 0)
        return 0;
    winsize size = {};
    const bool isKnown = ioctl(STDERR_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0;
    return isKnown ? size.ws_col : kUsualColumns;
#else
    return 0;
#endif
}

}  // namespace

int main(int argc, char* argv[])
{
    rqm5::TurnFileSizeLimitIntoError();
    rqm5::PassOverSettingsThatAreNoFiles();
    // A whole table in one piece: a reader such as head that leaves early does not cut a command short.
    static std::array<char, 1 << 16> buffer;
    std::ios::sync_with_stdio(false);
    std::cout.rdbuf()->pubsetbuf(buffer.data(), buffer.size());
    std::cin.tie(nullptr);

    const std::vector<std::string> words(argv + (argc > 0 ? 1 : 0), argv + argc);
    rqm5::Console console{std::cout, std::cerr, ErrorColumns()};
    const rqm5::Status status = rqm5::RunProgram(words, console);
    std::cout.flush();
    if (!std::cout && status == rqm5::Status::Done) {
        std::cerr << rqm5::kFileOpenError << ": the output could not be written; is the disk full?\n";
        return static_cast<int>(rqm5::Status::Failed);
    }
    return static_cast<int>(status);
}
