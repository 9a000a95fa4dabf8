#pragma once

/// Galley turns a document, styled by sheets, into a page of text for a terminal: blocks, wrapped
/// words, tables, borders, colours.
///
///     auto const sheet = galley::Sheet::parse("h1 { color: green }");
///     if (sheet) galley::print("<h1>Hello, terminal</h1>", *sheet);
///
/// Nothing but `value()` throws: what fails is said by a `Result`, lack of memory too, unless there
/// is none even to say so. What gives no `Result` throws std::bad_alloc then. There is no global
/// state, and any number of threads may do all of this at once.

#include <cstdio>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#pragma GCC visibility push(default)

namespace galley {

/// The language of documents and sheets.
enum class Dialect {
    core,  ///< A small subset of XHTML and CSS with rules of its own, exact to the byte.
    web,   ///< Elements and style sheets as a browser shows them, in cells: the default.
};

/// When the format `ansi` has its escape sequences, and for how many colours: where that is not
/// said, as many as COLORTERM and TERM promise, 16 at least. Without them it is `plain`.
enum class Color {
    automatic,    ///< where the file or, for `render`, standard output is a terminal, and NO_COLOR
                  ///< is not set in the environment
    always,       ///< wherever they go
    never,        ///< nowhere
    colors16,     ///< as `always`, for the 16 that every terminal has
    colors256,    ///< as `always`, for the 256 of xterm
    colors24bit,  ///< as `always`, for all of 24 bits
};

/// How the links of a page lead on, in the dialect `web`. There are those to addresses of http,
/// https, mailto and file.
enum class Links {
    automatic,  ///< as `always` in html and svg, and where escape sequences go to a terminal
    always,     ///< their text leads there: by sequences OSC 8, or elements `a` of html and svg
    never,      ///< not at all
    list,       ///< a number stands behind each, and the addresses at the end of the page
};

/// How a page is written.
enum class Format {
    ansi,   ///< text with escape sequences for colours and other attributes
    plain,  ///< bare text, without blanks at the ends of rows
    html,   ///< an element that may stand in any document, or a whole document
    svg,    ///< a picture of a terminal
};

/// The colours of `html` and `svg`.
enum class Theme {
    automatic,  ///< in html what the reader prefers, in svg dark
    light,      ///< dark text on a light ground
    dark,       ///< light text on a dark ground
};

/// How a document becomes a page.
struct Options {
    /// In columns; 0 for the width of the terminal that the page goes to, which is standard output
    /// unless a file is given; where that is none, of COLUMNS in the environment, else 80.
    unsigned width = 0;
    Color color = Color::automatic;  ///< Of the format `ansi`.
    Links links = Links::automatic;  ///< Of the dialect `web`.
    Format format = Format::ansi;    ///< How the page is written.
    Theme theme = Theme::automatic;  ///< Of `html` and `svg`.
    /// Cells of East Asian ambiguous characters, 1 or 2, in the dialect `web`. Those that frames
    /// are drawn with are such: with 2, frames are in ASCII.
    unsigned ambiguousWidth = 1;
    /// Whether frames of the dialect `web` are drawn with "+", "-", "|" and "=".
    bool asciiFrames = false;
    /// Whether `html` is a whole document. Its title is that of the document, or without one
    /// `name`, without folders.
    bool standalone = false;
    /// Whether control characters of the document and the sheets reach the terminal, in the format
    /// `ansi` and the dialect `core`. Otherwise all but white space become question marks.
    bool raw = false;
    /// Of the document; a sheet of the other one is an error. Where this says nothing the document
    /// may, by `<?galley dialect="core"?>` at its beginning, else it is `web`.
    std::optional<Dialect> dialect = std::nullopt;
    /// What errors and warnings call the document.
    std::string name = "<document>";
};

/// How bad it is: a page cannot be made, something has no effect, or belongs to another message.
enum class Severity { error, warning, note };

/// What is said about a source: a document, a sheet, or a file.
class Diagnostic {
public:
    /// What the functions below return; `notes` are added later.
    Diagnostic(Severity severity, std::string message, std::string source, unsigned line = 0,
               unsigned column = 0, std::string excerpt = {})
        : ownSeverity(severity),
          ownLine(line),
          ownColumn(column),
          ownMessage(std::move(message)),
          ownSource(std::move(source)),
          ownExcerpt(std::move(excerpt)) {}

    /// How bad it is.
    Severity severity() const { return ownSeverity; }
    /// In words, without the place.
    std::string const& message() const { return ownMessage; }
    /// The name of the source, as it was given.
    std::string const& source() const { return ownSource; }
    /// From 1; 0 where the message is about no place in the source.
    unsigned line() const { return ownLine; }
    /// In characters, from 1; 0 where the message is about no place in the source.
    unsigned column() const { return ownColumn; }
    /// The line of the source behind its number, and below it a caret under the place, each ended
    /// by "\n"; empty where there is no place. A long line is cut.
    std::string const& excerpt() const { return ownExcerpt; }
    /// Other places that it is about, such as the start tag of an element that is not closed.
    std::vector<Diagnostic> const& notes() const { return ownNotes; }
    /// Adds one.
    void addNote(Diagnostic note) { ownNotes.push_back(std::move(note)); }
    /// All of it in lines as a compiler prints them: "SOURCE:LINE:COLUMN: error: MESSAGE", the
    /// excerpt, the notes. What would not be seen, such as controls and marks of direction, is
    /// shown as "<U+202E>".
    std::string text() const;

private:
    Severity ownSeverity;
    unsigned ownLine;
    unsigned ownColumn;
    std::string ownMessage;
    std::string ownSource;
    std::string ownExcerpt;
    std::vector<Diagnostic> ownNotes;
};

/// What `value()` of a failure throws; `what()` is the text of its first error.
class Failure : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// A value of type T, or why there is none.
template <class T>
class Result;

/// Success, or why there is none.
template <>
class Result<void> {
public:
    /// Success.
    Result() = default;
    /// A failure, for at least one error.
    explicit Result(std::vector<Diagnostic> errors) : faults(std::move(errors)) {}

    /// Whether it is a success.
    explicit operator bool() const noexcept { return faults.empty(); }
    /// The first error. Only of a failure.
    Diagnostic const& error() const { return faults.front(); }
    /// All that were found, in the order of the source; none of a success.
    std::vector<Diagnostic> const& errors() const { return faults; }
    /// Throws `Failure` unless it is a success.
    void value() const;

private:
    std::vector<Diagnostic> faults;
};

template <class T>
class [[nodiscard]] Result : public Result<void> {
public:
    /// A success.
    Result(T made) : held(std::move(made)) {}  // NOLINT(google-explicit-constructor): for `return`
    using Result<void>::Result;

    /// The value. Only of a success.
    ///@{
    T& operator*() & { return *held; }
    T const& operator*() const& { return *held; }
    T operator*() && { return *std::move(held); }
    T* operator->() { return &*held; }
    T const* operator->() const { return &*held; }
    ///@}
    /// The value; throws `Failure` where there is none.
    ///@{
    T& value() & { return Result<void>::value(), *held; }
    T const& value() const& { return Result<void>::value(), *held; }
    T value() && { return Result<void>::value(), *std::move(held); }
    ///@}

private:
    std::optional<T> held;
};

struct [[gnu::visibility("hidden")]] SheetAccess;

/// Style rules. A value that is cheap to copy; any number of threads may copy and use one sheet.
class Sheet {
public:
    /// Without rules.
    Sheet() = default;
    /// Reads the text of a sheet. Of a text that is at fault all errors are told; `name` is what
    /// they call it. In the dialect `web` no text is: what is wrong there has no effect.
    static Result<Sheet> parse(std::string_view css, std::string_view name = "<sheet>",
                               Dialect dialect = Dialect::web);

    /// Adds the rules of another sheet behind its own.
    Sheet& operator+=(Sheet const& other);
    /// The rules of both, in this order.
    friend Sheet operator+(Sheet sheet, Sheet const& other) { return sheet += other; }

private:
    struct Rules;
    friend struct SheetAccess;

    /// Null for none.
    std::shared_ptr<Rules const> rules;
};

/// The page of a document: lines of text, each ended by "\n", or what `options.format` says. As
/// for standard output: say width and colours where it goes elsewhere. A failure has the first
/// error; `check` tells all.
Result<std::string> render(std::string_view markup, Sheet const& sheet = {},
                           Options const& options = {});

/// Writes the page of a document to `out`, whose terminal, if it is one, counts for width and
/// colours. Nothing is written of a page that fails; what cannot be written may be there in part.
Result<void> print(std::string_view markup, Sheet const& sheet = {}, Options const& options = {},
                   std::FILE* out = stdout);

/// All that is wrong with a document, and what it and its sheet have without effect: warnings of
/// the sheet, then errors and warnings of the document, in the order of the source.
[[nodiscard]] std::vector<Diagnostic> check(std::string_view markup, Sheet const& sheet = {},
                                            Options const& options = {});

/// The same of the text of a sheet, which may be at fault.
[[nodiscard]] std::vector<Diagnostic> checkSheet(std::string_view css,
                                                 std::string_view name = "<sheet>",
                                                 Dialect dialect = Dialect::web);

/// `text` as the content of an element, where it stands for itself.
[[nodiscard]] std::string escape(std::string_view text);

/// `text` as the value of an attribute, between its quotation marks. The two differ since
/// content of the core has no reference for a quotation mark, and a value cannot do without.
[[nodiscard]] std::string escapeAttribute(std::string_view text);

}  // namespace galley

#pragma GCC visibility pop
