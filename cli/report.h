#pragma once

#include <string>
#include <string_view>

/// How messages name what is read: "-" is "<stdin>".
std::string inputName(std::string const& file);

/// What a message of the library is about.
enum class SourceKind { Document, Sheet };

/// The text of an error, whole lines: "FILE:LINE: error: MESSAGE", below it the line of `source`
/// that the message is about, and a caret under the place. An element that is not closed as it has
/// to be follows as "FILE:LINE: note: ...". Where no place is known it is the first line alone,
/// with LINE only where the message has one.
///
/// Control characters of `file` and `message`, line feeds and tabs included, become question marks.
/// `source` is what the library was given, empty where the message is not about a source.
std::string errorText(std::string const& file, std::string const& message,
                      std::string_view source = {}, SourceKind kind = SourceKind::Document);

/// Prints the text of an error on standard error.
void reportError(std::string const& file, std::string const& message, std::string_view source = {},
                 SourceKind kind = SourceKind::Document);
