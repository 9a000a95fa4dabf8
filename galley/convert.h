#pragma once

#include "base/String.h"
#include "base/XCode.h"
#include "galley/cleanSource.h"
#include "galley/diagnose.h"
#include "galley/failure.h"
#include "galley/galley.h"
#include "galley/terminal/controls.h"

namespace galley {

/// Has `markup` converted into `text` by `work`, an operation of the core, and says what it says
/// about the source. Unless the options, which are settled, want them, there are no control
/// characters in one or the other but those of the core's own sequences.
template <class Work>
Result<void> convert(String& text, String& markup, Options const& options, Work const& work) {
    return guarded(options.name, [&]() -> Result<void> {
        cleanSource(markup, options.raw);
        XCode const result = work(markup);
        if (!result) {
            Source const source{options.name, markup.view()};
            return Result<void>({diagnose(result.getString().view(), source)});
        }
        if (!options.raw) repairCharacters(text);
        return {};
    });
}

}  // namespace galley
