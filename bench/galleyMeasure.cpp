// Runs a command a number of times, one after the other, and appends for each a line to a file:
// microseconds of processor time, user and system together, and peak memory in KiB. Ends as soon
// as one fails: with 128 and the number of the signal that killed it, or with its exit status.
// Linked statically, since what this program holds in memory counts for the command, too, up to
// the moment when it replaces this program.

#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>

#include <cstdio>
#include <cstdlib>

namespace {

long long microseconds(timeval const& time) { return time.tv_sec * 1'000'000LL + time.tv_usec; }

/// Returns the exit status, as a shell has it.
int run(char** command, rusage& usage) {
    pid_t child = 0;
    if (posix_spawnp(&child, command[0], nullptr, nullptr, command, environ) != 0) return 127;
    int status = 0;
    if (wait4(child, &status, 0, &usage) != child) return 126;
    return WIFSIGNALED(status) ? 128 + WTERMSIG(status) : WEXITSTATUS(status);
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 4) {
        std::fputs("usage: galley-measure FILE TIMES COMMAND...\n", stderr);
        return 2;
    }
    std::FILE* const results = std::fopen(argv[1], "a");
    if (results == nullptr) return 3;
    for (long left = std::strtol(argv[2], nullptr, 10); left > 0; --left) {
        rusage usage{};
        int const status = run(argv + 3, usage);
        if (status != 0) return status;
        std::fprintf(results, "%lld %ld\n",
                     microseconds(usage.ru_utime) + microseconds(usage.ru_stime), usage.ru_maxrss);
    }
    return std::fclose(results) == 0 ? 0 : 3;
}
