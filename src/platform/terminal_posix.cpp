#include "platform/terminal.h"

#include <sys/ioctl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace rqm5 {
namespace {

int DescriptorOf(StandardStream stream)
{
    return stream == StandardStream::Out ? STDOUT_FILENO : STDERR_FILENO;
}

}  // namespace

bool IsTerminal(StandardStream stream)
{
    return isatty(DescriptorOf(stream)) != 0;
}

int TerminalColumns(StandardStream stream)
{
    winsize size = {};
    return IsTerminal(stream) && ioctl(DescriptorOf(stream), TIOCGWINSZ, &size) == 0 ? size.ws_col : 0;
}

bool IsReadAsItComes(const std::string& path)
{
    struct stat found = {};
    return ::stat(path.c_str(), &found) == 0 &&
           (S_ISFIFO(found.st_mode) || S_ISCHR(found.st_mode) || S_ISSOCK(found.st_mode));
}

void LeaveBytesAsTheyAre() {}

}  // namespace rqm5
