#include "cli/PagerProcess.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/ioctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>

namespace {

/// Starts a shell that reads from `input` and finds `defaults` not ignored; -1 where the system
/// cannot.
pid_t spawnShell(std::string command, int input, sigset_t const& defaults) {
    posix_spawn_file_actions_t files;
    posix_spawn_file_actions_init(&files);
    posix_spawn_file_actions_adddup2(&files, input, STDIN_FILENO);
    posix_spawnattr_t attributes;
    posix_spawnattr_init(&attributes);
    posix_spawnattr_setsigdefault(&attributes, &defaults);
    posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSIGDEF);
    char shell[] = "sh";
    char option[] = "-c";
    char* const arguments[] = {shell, option, command.data(), nullptr};
    pid_t process = -1;
    bool const isStarted =
        posix_spawn(&process, "/bin/sh", &files, &attributes, arguments, environ) == 0;
    posix_spawnattr_destroy(&attributes);
    posix_spawn_file_actions_destroy(&files);
    return isStarted ? process : -1;
}

/// Of a shell: the command failed, or it could not run it, find it or make sense of it. Ctrl-C is
/// no failure.
bool hasFailed(int status) {
    return WIFEXITED(status) ? WEXITSTATUS(status) != 0 : WTERMSIG(status) != SIGINT;
}

/// A further end of a pipe, to see what is left in it; -1 where there is no way to have one.
int openReadEnd(int sink) {
    std::string const name = "/proc/self/fd/" + std::to_string(sink);
    return open(name.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
}

}  // namespace

KeysForPager::KeysForPager() {
    struct sigaction ignoring = {};
    ignoring.sa_handler = SIG_IGN;
    sigemptyset(&defaults);
    sigaddset(&defaults, SIGPIPE);
    for (std::size_t i = 0; i < std::size(s_signals); ++i) {
        sigaction(s_signals[i], &ignoring, &before[i]);
        if (before[i].sa_handler == SIG_DFL) sigaddset(&defaults, s_signals[i]);
    }
}

KeysForPager::~KeysForPager() {
    for (std::size_t i = 0; i < std::size(s_signals); ++i) {
        sigaction(s_signals[i], &before[i], nullptr);
    }
}

PagerProcess::PagerProcess(std::string command) {
    int ends[2] = {};
    if (pipe2(ends, O_CLOEXEC) != 0) return;
    process = spawnShell(std::move(command), ends[0], keys.forPager());
    close(ends[0]);
    if (process < 0) {
        close(ends[1]);
        return;
    }
    sink = ends[1];
    capacity = static_cast<std::size_t>(fcntl(sink, F_GETPIPE_SZ));
}

bool PagerProcess::send(std::string_view text) {
    while (!text.empty()) {
        ssize_t const written = write(sink, text.data(), text.length());
        if (written < 0 && errno != EINTR) return false;
        if (written < 0) continue;
        sent += static_cast<std::size_t>(written);
        text.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
}

bool PagerProcess::finish() {
    if (process < 0) return hasRun;
    int const source = openReadEnd(sink);
    // Without an end it would wait for more.
    close(sink);
    sink = -1;
    int status = 0;
    while (waitpid(process, &status, 0) < 0 && errno == EINTR) continue;
    process = -1;
    // A pager that was quit may fail, too, but has read something.
    auto left = static_cast<int>(std::min(sent, capacity));
    if (source >= 0) {
        ioctl(source, FIONREAD, &left);
        close(source);
    }
    hasRun = static_cast<std::size_t>(left) < sent || !hasFailed(status);
    return hasRun;
}
