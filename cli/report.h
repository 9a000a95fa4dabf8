#pragma once

#include <string>
#include <string_view>

/// How messages name a file: "-" is "<stdin>", and control characters, line feeds and tabs
/// included, are question marks.
std::string displayName(std::string const& file);

/// What a message of the library is about.
enum class SourceKind { Document, Sheet };

/// The text of an error, whole lines: "FILE:LINE: error: MESSAGE", below it the line of `source`
/// that the message is about, and a caret under the place. An element that is not closed as it has
/// to be follows as "FILE:LINE: note: ...". Where no place is known it is the first line alone,
/// with LINE only where the message has one.
///
/// `file` is a name for display, and control characters of `message` become question marks, too;
/// `source` is what the library was given, empty where the message
/// is not about a source.
std::string errorText(std::string const& file, std::string const& message,
                      std::string_view source = {}, SourceKind kind = SourceKind::Document);

/// Prints the text of an error on standard error.
void reportError(std::string const& file, std::string const& message, std::string_view source = {},
                 SourceKind kind = SourceKind::Document);
