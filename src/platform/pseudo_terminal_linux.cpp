#include "platform/pseudo_terminal.h"

#include <fcntl.h>
#include <sys/ioctl.h>
#include <termios.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdlib>
#include <system_error>

namespace rqm5 {

bool PseudoTerminal::Open()
{
    Close();
    std::array<char, 256> name{};
    master_ = posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC | O_NONBLOCK);
    if (master_ < 0 || grantpt(master_) != 0 || unlockpt(master_) != 0 ||
        ptsname_r(master_, name.data(), name.size()) != 0)
        return Fail();
    device_ = name.data();
    slave_ = open(name.data(), O_RDWR | O_NOCTTY | O_CLOEXEC);
    termios line{};
    if (slave_ < 0 || tcgetattr(slave_, &line) != 0)
        return Fail();
    cfmakeraw(&line);
    return tcsetattr(slave_, TCSANOW, &line) == 0 || Fail();
}

bool PseudoTerminal::Fail()
{
    error_ = std::generic_category().message(errno);
    Close();
    return false;
}

void PseudoTerminal::Close()
{
    for (int* descriptor : {&slave_, &master_}) {
        if (*descriptor >= 0)
            close(*descriptor);
        *descriptor = -1;
    }
}

std::string PseudoTerminal::Read()
{
    std::array<char, 4096> buffer{};
    const ssize_t length = read(master_, buffer.data(), buffer.size());
    if (length <= 0)
        return {};
    // A program that is killed leaves its claim on the device behind, and the next one would be refused.
    ioctl(slave_, TIOCNXCL);
    return std::string(buffer.data(), static_cast<std::size_t>(length));
}

void PseudoTerminal::Write(const std::string& text)
{
    std::size_t done = 0;
    while (done < text.size()) {
        const ssize_t length = write(master_, text.data() + done, text.size() - done);
        if (length <= 0)
            return;
        done += static_cast<std::size_t>(length);
    }
}

}  // namespace rqm5
