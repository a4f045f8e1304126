#include "platform/steady_process.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <functional>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

// Each test looks from inside a process of its own, whose exit code it is: the signals of the test program stay as they
// are.

namespace qinghe {
namespace {

/// How a process ends that does this; -1 when it is killed.
int endOf(const std::function<int()>& work) {
    const pid_t child = ::fork();
    if (child == 0)
        ::_exit(work());
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

int writeToNobody() {
    std::array<int, 2> ends = {};
    if (::pipe(ends.data()) != 0)
        return 1;
    ::close(ends[0]);
    return ::write(ends[1], "x", 1) < 0 && errno == EPIPE ? 0 : 2;
}

int writeBeyondTheLimit() {
    constexpr rlimit Smallest{1, 1};
    const int file = ::open("/tmp", O_TMPFILE | O_RDWR, 0600);
    if (file < 0 || ::setrlimit(RLIMIT_FSIZE, &Smallest) != 0)
        return 1;
    return ::write(file, "x", 1) == 1 && ::write(file, "x", 1) < 0 && errno == EFBIG ? 0 : 2;
}

TEST(SteadyProcess, APipeThatNobodyReadsIsAnErrorAndNoEnd) {
    EXPECT_EQ(endOf(writeToNobody), -1); // else nothing would be shown here
    EXPECT_EQ(endOf([] { return steadyProcess(), writeToNobody(); }), 0);
}

TEST(SteadyProcess, AFileThatMayNotGrowIsAnErrorAndNoEnd) {
    EXPECT_EQ(endOf(writeBeyondTheLimit), -1);
    EXPECT_EQ(endOf([] { return steadyProcess(), writeBeyondTheLimit(); }), 0);
}

TEST(SteadyProcess, ProgramsThatAreStartedFindTheSignalsAsUsual) {
    EXPECT_EQ(endOf([] {
                  steadyProcess();
                  ::execl("/bin/sh", "sh", "-c", "kill -PIPE $$; exit 7", nullptr);
                  return 1;
              }),
              -1);
}

TEST(SteadyProcess, StreamsThatWereClosedLeadToNothing) {
    EXPECT_EQ(endOf([] {
                  for (const int stream : {0, 1, 2})
                      ::close(stream);
                  steadyProcess();
                  char byte = 0;
                  const bool nothing = ::write(1, "x", 1) == 1 && ::write(2, "x", 1) == 1 && ::read(0, &byte, 1) == 0;
                  return nothing && ::open("/dev/null", O_RDONLY) > 2 ? 0 : 1;
              }),
              0);
}

TEST(SteadyProcess, StreamsThatAreOpenStayWhatTheyAre) {
    EXPECT_EQ(endOf([] {
                  std::array<int, 2> ends = {};
                  if (::pipe(ends.data()) != 0 || ::dup2(ends[1], 1) != 1)
                      return 1;
                  ::close(2);
                  steadyProcess();
                  char byte = 0;
                  return ::write(1, "x", 1) == 1 && ::read(ends[0], &byte, 1) == 1 && byte == 'x' ? 0 : 2;
              }),
              0);
}

} // namespace
} // namespace qinghe
