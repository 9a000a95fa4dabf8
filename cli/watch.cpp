#include "cli/watch.h"

#include <poll.h>
#include <sys/signalfd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstring>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "cli/DirectOutput.h"
#include "cli/FileWatch.h"
#include "cli/Output.h"
#include "cli/Screen.h"
#include "cli/renderAll.h"
#include "cli/report.h"

namespace {

using std::chrono::milliseconds;

/// Changes that follow one another more closely are one.
constexpr milliseconds s_quiet{20};
/// A file that is being saved may be gone or empty for so long, and changes may go on.
constexpr milliseconds s_patience{1000};

extern "C" void endProgram(int) {
    Screen::leave();
    _exit(static_cast<int>(ExitStatus::Rendered));
}

/// The program may end in the middle of reading or rendering, which can take long.
void endOnSignals() {
    struct sigaction ending = {};
    ending.sa_handler = endProgram;
    sigfillset(&ending.sa_mask);
    for (int const signal : {SIGINT, SIGTERM, SIGHUP, SIGQUIT}) {
        struct sigaction before = {};
        sigaction(signal, nullptr, &before);
        if (before.sa_handler != SIG_IGN) sigaction(signal, &ending, nullptr);
    }
}

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

/// Keeps the last texts that were right.
class KeptOutput final : public Output {
public:
    explicit KeptOutput(std::size_t count) : texts(count) {}

    ExitStatus write(std::size_t i, std::string_view text) override {
        texts[i] = text;
        return ExitStatus::Rendered;
    }
    void report(std::string const& text) override { errors += text; }
    bool isOpen() const override { return true; }

    std::string page() const {
        std::string all;
        for (std::string const& text : texts) all += text;
        return all;
    }
    /// Of the run that has just been; hands them over.
    std::string takeErrors() { return std::exchange(errors, {}); }

private:
    std::vector<std::string> texts;
    std::string errors;
};

/// What makes it necessary to render again.
class Changes {
public:
    explicit Changes(Options const& options) : inputs(options.documents), signals(openSignals()) {
        inputs.insert(inputs.end(), options.sheets.begin(), options.sheets.end());
        noteWhole();
    }
    Changes(Changes const&) = delete;
    Changes& operator=(Changes const&) = delete;
    ~Changes() { close(signals); }

    /// From now on none is missed. Returns 0 or why there is no such thing.
    int follow() { return files.follow(inputs); }
    /// Returns when there was one, and what belongs to it is over. While the program is suspended,
    /// the screen, if it has one, is left.
    void wait(bool hasScreen);

private:
    bool handleSignal(bool hasScreen) const;
    void settle();
    void noteWhole();
    bool isBeingSaved() const;

    std::vector<std::string> inputs;
    /// Of each, whether it was when changes settled last. What was missing then need not be now.
    std::vector<bool> wereWhole;
    FileWatch files;
    int signals;
};

void Changes::wait(bool hasScreen) {
    for (;;) {
        pollfd sources[] = {{files.descriptor(), POLLIN, 0}, {signals, POLLIN, 0}};
        poll(sources, std::size(sources), -1);
        if (handleSignal(hasScreen)) return;
        if (!files.readChanges()) continue;
        settle();
        return;
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

/// Renders into files, or to the screen.
int renderOnce(Options const& options, std::optional<Screen>& screen, KeptOutput& kept) {
    if (!screen) {
        DirectOutput output(options.files);
        renderAll(options, output);
        return 0;
    }
    renderAll(options, kept);
    return screen->show(kept.page(), kept.takeErrors());
}

}  // namespace

ExitStatus watch(Options const& options) {
    endOnSignals();
    Changes changes(options);
    KeptOutput kept(options.documents.size());
    int fault = changes.follow();
    std::optional<Screen> screen;
    if (fault == 0 && options.files.empty()) screen.emplace();
    while (fault == 0) {
        fault = renderOnce(options, screen, kept);
        if (fault == 0) changes.wait(screen.has_value());
        if (fault == 0) fault = changes.follow();
    }
    screen.reset();
    reportError("galley", std::string("Cannot watch: ") + std::strerror(fault));
    return ExitStatus::FileAtFault;
}
