#include "platform/steady_process.h"

#include <csignal>
#include <fcntl.h>
#include <initializer_list>
#include <unistd.h>

namespace qinghe {

namespace {

void openStandardStreams() {
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
        if (::fcntl(stream, F_GETFD) < 0) // the lowest number that is free is the one that is opened
            ::open("/dev/null", stream == STDIN_FILENO ? O_RDONLY : O_WRONLY);
}

/// Heard and dropped instead of ignored: what is ignored would stay so in the programs that are started from here.
void drop(int signal) {
    struct sigaction action = {};
    action.sa_handler = [](int) {};
    action.sa_flags = SA_RESTART;
    ::sigaction(signal, &action, nullptr);
}

} // namespace

void steadyProcess() {
    openStandardStreams();
    drop(SIGPIPE);
    drop(SIGXFSZ);
}

} // namespace qinghe
