#include "platform/terminal.h"

#include <fcntl.h>
#include <io.h>
#include <windows.h>

#include <cstdio>

namespace rqm5 {
namespace {

HANDLE HandleOf(StandardStream stream)
{
    return GetStdHandle(stream == StandardStream::Out ? STD_OUTPUT_HANDLE : STD_ERROR_HANDLE);
}

}  // namespace

bool IsTerminal(StandardStream stream)
{
    DWORD mode = 0;
    return GetConsoleMode(HandleOf(stream), &mode) != 0;
}

int TerminalColumns(StandardStream stream)
{
    CONSOLE_SCREEN_BUFFER_INFO info = {};
    return GetConsoleScreenBufferInfo(HandleOf(stream), &info) != 0 ? info.dwSize.X : 0;
}

bool IsReadAsItComes(const std::string& /*path*/)
{
    return false;
}

void LeaveBytesAsTheyAre()
{
    _setmode(_fileno(stdin), _O_BINARY);
    _setmode(_fileno(stdout), _O_BINARY);
    SetConsoleOutputCP(CP_UTF8);
}

}  // namespace rqm5
