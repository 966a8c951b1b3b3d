#include "app/commandline/TerminalWidth.h"

#include <sys/ioctl.h>
#include <unistd.h>

namespace quillon_ed {

std::size_t TerminalWidth()
{
    winsize size{};
    if (!isatty(STDOUT_FILENO) || ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) != 0) return 0;
    return size.ws_col;
}

} // namespace quillon_ed
