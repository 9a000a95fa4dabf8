#include "cli/Changes.h"

#include <poll.h>
#include <sys/signalfd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <iterator>

#include "cli/Screen.h"

namespace {

using std::chrono::milliseconds;

/// Changes that follow one another more closely are one.
constexpr milliseconds s_quiet{20};
/// A file that is being saved may be gone or empty for so long, and changes may go on.
constexpr milliseconds s_patience{1000};

/// A descriptor from which the signals are read that do not end the program. Threads that are begun
/// later leave them to it.
int openSignals() {
    sigset_t signals = {};
    sigemptyset(&signals);
    sigaddset(&signals, SIGWINCH);
    sigaddset(&signals, SIGTSTP);
    sigaddset(&signals, SIGCONT);
    pthread_sigmask(SIG_BLOCK, &signals, nullptr);
    return signalfd(-1, &signals, SFD_CLOEXEC | SFD_NONBLOCK);
}

/// Stops the program, unless there is nobody who could let it go on.
void stop() {
    sigset_t signals = {};
    sigemptyset(&signals);
    sigaddset(&signals, SIGTSTP);
    pthread_sigmask(SIG_UNBLOCK, &signals, nullptr);
    raise(SIGTSTP);
    pthread_sigmask(SIG_BLOCK, &signals, nullptr);
}

/// Whether there is something in it, or it is no regular file.
bool isWhole(std::string const& file) {
    struct stat status = {};
    return stat(file.c_str(), &status) == 0 && (!S_ISREG(status.st_mode) || status.st_size > 0);
}

}  // namespace

Changes::Changes(Options const& options) : inputs(options.documents), signals(openSignals()) {
    inputs.insert(inputs.end(), options.sheets.begin(), options.sheets.end());
    noteWhole();
}

Changes::~Changes() { close(signals); }

bool Changes::wait(bool hasScreen, int keys) {
    for (;;) {
        pollfd sources[] = {
            {files.descriptor(), POLLIN, 0}, {signals, POLLIN, 0}, {keys, POLLIN, 0}};
        bool const isAwake = poll(sources, std::size(sources), -1) > 0;
        if (handleSignal(hasScreen)) return true;
        if (files.readChanges()) {
            settle();
            return true;
        }
        if (isAwake && sources[2].revents != 0) return false;
    }
}

bool Changes::handleSignal(bool hasScreen) const {
    signalfd_siginfo signal = {};
    if (read(signals, &signal, sizeof signal) != sizeof signal) return false;
    if (signal.ssi_signo == SIGTSTP) {
        Screen::leave();
        stop();
    }
    // Something else may have stopped it, and the terminal is not as it was left.
    if (hasScreen && signal.ssi_signo != SIGWINCH) Screen::enter();
    return true;
}

void Changes::settle() {
    auto const end = std::chrono::steady_clock::now() + s_patience;
    for (bool isQuiet = false; !isQuiet;) {
        auto const left =
            std::chrono::duration_cast<milliseconds>(end - std::chrono::steady_clock::now());
        milliseconds const most = isBeingSaved() ? left : std::min(s_quiet, left);
        pollfd source = {files.descriptor(), POLLIN, 0};
        isQuiet = most.count() <= 0 || poll(&source, 1, static_cast<int>(most.count())) == 0;
        if (!isQuiet) files.readChanges();
    }
    noteWhole();
}

void Changes::noteWhole() {
    wereWhole.resize(inputs.size());
    std::transform(inputs.begin(), inputs.end(), wereWhole.begin(), isWhole);
}

bool Changes::isBeingSaved() const {
    for (std::size_t i = 0; i < inputs.size(); ++i) {
        if (wereWhole[i] && !isWhole(inputs[i])) return true;
    }
    return false;
}
