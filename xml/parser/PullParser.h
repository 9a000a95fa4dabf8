#pragma once

#include <cstdint>

#include "../../base/String.h"
#include "../../base/XCode.h"
#include "../../base/ZRVector.h"
#include "../../base/export.h"
#include "references.h"

namespace CLI::XML {

/// Reads markup as a stream of events. Ask `getNextTag` what comes next, then call the one
/// operation that reads or skips it and take the result from the fields.
///
/// The reading and skipping operations return success, or the generic failure without a message
/// after having set `errorMessage`. The parser does not recover: stop after a failure.
class GALLEY_EXPORT PullParser {
public:
    /// An attribute of a start tag, its value with entities replaced.
    struct Attribute {
        String name;   ///< As written.
        String value;  ///< Without its quotes.
    };

    /// What may come next.
    enum TagType : std::int32_t {
        TAG_ERROR,            ///< nothing can be read; never answered by this parser
        TAG_END_OF_DOCUMENT,  ///< the end of the text
        TAG_START,            ///< a start tag or an empty-element tag
        TAG_OTHER,            ///< a processing instruction or a declaration
        TAG_END,              ///< an end tag, or the end that an empty-element tag implies
        TAG_CONTENT,          ///< character data, or a CDATA section
        TAG_COMMENT,          ///< a comment
    };

    /// The entities known in attribute values.
    static EntityReplacement const s_specialReplacement[];

    /// The markup: this parser's copy, or the caller's own.
    String const& text;
    /// What reading an attribute index at or past the end yields.
    Attribute emptyAttribute;
    /// Index of the next unread byte of `text`.
    int position = 0;
    /// 1 plus the line feeds consumed so far.
    int line = 1;
    /// Element type of the last start or end tag read.
    String name;
    /// Character data of the last content read, entities not decoded.
    String content;
    /// Attributes of the last start tag in document order, duplicates included.
    ZRVector<Attribute> attributes;
    /// Set by an empty-element tag until its end has been read.
    bool selfClosing = false;
    /// Line number and text of the last syntax error.
    String errorMessage;

    /// Reads a copy of `markup`.
    explicit PullParser(String const& markup) : text(copy), copy(markup) {}
    /// Reads `markup` itself, which must outlive the parser and stay as it is.
    static PullParser withoutCopy(String const& markup) { return PullParser(&markup); }
    PullParser(PullParser const&) = delete;
    PullParser& operator=(PullParser const&) = delete;
    ~PullParser() = default;

    /// What stands at `position`; moves nothing. A NUL byte after "<" begins a start tag.
    TagType getNextTag() const;
    /// Reads a start tag into `name` and `attributes`.
    XCode readStartTag();
    /// Reads an end tag into `name`, or completes an empty-element tag, whose `name` stays.
    XCode readEndTag();
    /// Reads character data or one CDATA section, which may hold NUL bytes, into `content`.
    XCode readContent();
    /// Skips a comment, whose end is searched up to the next NUL byte.
    XCode skipCommentTag();
    /// Skips up to the next ">", over NUL bytes.
    XCode skipOtherTag();

    /// Attribute `i` of the last start tag; `emptyAttribute` at or past their number.
    Attribute const& attribute(unsigned i) const {
        return i < attributes.count ? attributes.data[i] : emptyAttribute;
    }

    /// Replaces the entity references in `text`.
    static void PARSE_AND_REPLACE_SPECIAL_XML_CHARS(String& text);

    /// Sets `errorMessage` to the current line and `message`.
    void error(char const* message);

private:
    explicit PullParser(String const* borrowed) : text(*borrowed) {}

    bool readName();
    XCode readAttribute(Attribute& attribute);
    XCode fail(char const* message);
    /// Advances to `end`, or to the end of the text where `end` is negative.
    void skipTo(int end);

    String copy;
};

}  // namespace CLI::XML
