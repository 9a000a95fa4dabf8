#pragma once

#include <string>

#include "cli/Options.h"

/// The format that the extension of a name asks for, in upper or lower case: html, svg, else ansi.
galley::Format formatOf(std::string const& file);

/// Completes `files` of `options` with the names in its directory. Returns what is wrong with where
/// the pages are to go, or an empty text.
///
/// A page has the name of its document with another extension. Where several would have the same
/// name, each of these goes below the folders that lead to its document from the deepest folder
/// that holds them all, by what the documents are called: "." and ".." are resolved, links are not.
std::string nameOutputs(Options& options);
