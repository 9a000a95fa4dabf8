#include "cli/watch.h"

#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "cli/Changes.h"
#include "cli/DirectOutput.h"
#include "cli/Keys.h"
#include "cli/Output.h"
#include "cli/Screen.h"
#include "cli/renderAll.h"
#include "cli/report.h"

namespace {

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

/// Keeps the last texts that were right.
class KeptOutput final : public Output {
public:
    explicit KeptOutput(Options const& asked) : options(asked), texts(asked.documents.size()) {}

    ExitStatus write(std::size_t i, std::string_view text) override;
    void report(std::string const& text) override;
    bool isOpen() const override { return true; }

    std::string page() const;
    /// Of the run that has just been; hands them over.
    std::string takeErrors() { return std::exchange(errors, {}); }

private:
    void noteRead(std::string const& file);

    Options const& options;
    std::vector<std::string> texts;
    std::string errors;
    /// What is said where a file is missing that was read before, by what the run says of it.
    std::map<std::string, std::string> goneTexts;
};

ExitStatus KeptOutput::write(std::size_t i, std::string_view text) {
    texts[i] = text;
    noteRead(options.documents[i]);
    // Without all of them there would be no page.
    for (std::string const& sheet : options.sheets) noteRead(sheet);
    return ExitStatus::Rendered;
}

void KeptOutput::report(std::string const& text) {
    auto const gone = goneTexts.find(text);
    errors += gone != goneTexts.end() ? gone->second : text;
}

std::string KeptOutput::page() const {
    std::string all;
    for (std::string const& text : texts) all += text;
    return all;
}

void KeptOutput::noteRead(std::string const& file) {
    goneTexts.emplace(errorText(file, std::strerror(ENOENT)),
                      errorText(file, "The file is gone; the last page stays until it is back"));
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

/// What a wait has come to.
struct Awaited {
    bool isQuit = false;
    /// The `errno` that tells why the screen cannot be written, or 0.
    int fault = 0;
};

/// Waits for a change, and scrolls meanwhile as the keys ask.
Awaited awaitChange(Changes& changes, std::optional<Screen>& screen) {
    Awaited awaited;
    while (awaited.fault == 0 && !awaited.isQuit) {
        if (changes.wait(screen.has_value(), screen ? screen->keys().descriptor() : -1)) break;
        std::vector<Key> const keys = screen->keys().read();
        awaited.isQuit = std::find(keys.begin(), keys.end(), Key::Quit) != keys.end();
        if (!keys.empty() && !awaited.isQuit) awaited.fault = screen->scroll(keys);
    }
    return awaited;
}

}  // namespace

ExitStatus watch(Options const& options) {
    endOnSignals();
    Changes changes(options);
    KeptOutput kept(options);
    int fault = changes.follow();
    std::optional<Screen> screen;
    if (fault == 0 && options.files.empty()) screen.emplace();
    while (fault == 0) {
        fault = renderOnce(options, screen, kept);
        if (fault != 0) break;
        Awaited const awaited = awaitChange(changes, screen);
        if (awaited.isQuit) return ExitStatus::Rendered;
        fault = awaited.fault != 0 ? awaited.fault : changes.follow();
    }
    screen.reset();
    reportError("galley", std::string("Cannot watch: ") + std::strerror(fault));
    return ExitStatus::FileAtFault;
}
