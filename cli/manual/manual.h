#pragma once

#include <string>

// Each makes one text of what cli/describe.h tells.

/// The manual page, for man(7).
std::string makeManPage();

std::string makeBashCompletion();
std::string makeZshCompletion();
std::string makeFishCompletion();
