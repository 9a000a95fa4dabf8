#include "cli/pager.h"

#include <unistd.h>

#include <cstdlib>
#include <cstring>
#include <optional>
#include <string>

#include "cli/DirectOutput.h"
#include "cli/Output.h"
#include "cli/PagerProcess.h"
#include "cli/renderAll.h"
#include "cli/report.h"

namespace {

std::string pagerCommand() {
    char const* const command = std::getenv("PAGER");
    bool const isGiven = command != nullptr && command[std::strspn(command, " \t\n")] != '\0';
    return isGiven ? command : "less -R";
}

/// Texts go to a pager that is started for the first of them, and straight to standard output where
/// it cannot be run.
class PagerOutput final : public Output {
public:
    explicit PagerOutput(Options const& options) : straight(options.files) {}

    ExitStatus write(std::size_t i, std::string_view text) override;
    void report(std::string const& text) override { errors += text; }
    bool isOpen() const override { return !isOver && straight.isOpen(); }

    /// Waits for the pager to end, and prints the errors.
    ExitStatus finish();

private:
    ExitStatus waitForPager();

    std::string const command = pagerCommand();
    std::optional<PagerProcess> pager;
    /// What it was sent, unless it has read some of that.
    std::string unread;
    std::string errors;
    DirectOutput straight;
    bool isStraight = false;
    bool isOver = false;
};

ExitStatus PagerOutput::write(std::size_t i, std::string_view text) {
    if (isStraight) return straight.write(i, text);
    if (!pager) pager.emplace(command);
    if (!pager->hasRead()) unread += text;
    bool const isSent = pager->send(text);
    if (pager->hasRead()) std::string().swap(unread);
    return isSent ? ExitStatus::Rendered : waitForPager();
}

ExitStatus PagerOutput::finish() {
    bool const isRunning = pager && !isOver && !isStraight;
    ExitStatus const status = isRunning ? waitForPager() : ExitStatus::Rendered;
    straight.report(errors);
    return status;
}

ExitStatus PagerOutput::waitForPager() {
    isStraight = !pager->finish();
    isOver = !isStraight;
    if (isOver) return ExitStatus::Rendered;
    straight.report(errorText("galley", "Cannot run the pager '" + command + "'"));
    return straight.write(0, unread);
}

}  // namespace

ExitStatus renderInPager(Options const& options) {
    // Before there are threads, which may not read the environment meanwhile.
    setenv("LESS", "FRX", 0);
    PagerOutput output(options);
    ExitStatus const rendered = renderAll(options, output);
    ExitStatus const shown = output.finish();
    return rendered == ExitStatus::Rendered ? shown : rendered;
}
