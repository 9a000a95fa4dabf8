#pragma once

#include <cstdint>
#include <utility>

#include "String.h"
#include "export.h"

/// A result code in one word. Value 0 is success and converts to true; every other value is a
/// failure, which may carry a message. The plain success and the generic failure (value
/// 0x7FFFFFFF) own nothing; a message lives in a record that the code owns and copies deeply.
class GALLEY_EXPORT XCode {
    struct _BoolTester {  // NOLINT(bugprone-reserved-identifier): the idiom's traditional name
        void dummy() const {}
    };
    using SafeBool = void (_BoolTester::*)() const;

public:
    /// What a code with a message owns.
    struct Record {
        std::uint32_t value;  ///< Not shifted.
        String message;       ///< May be empty.
    };

    /// Odd: an inline code, its value shifted left by one, plus 1, in 32 bits. Even: the address
    /// of an owned record. Never 0.
    std::uintptr_t word;

    /// The plain success.
    XCode() : XCode(0) {}
    /// An inline code without message: 0 is success, -1 the generic failure.
    explicit XCode(int value) : word((static_cast<std::uint32_t>(value) << 1) | 1) {}
    /// A copy with a message of its own.
    XCode(XCode const& other);
    /// Takes the word over; `other` becomes the plain success.
    XCode(XCode&& other) noexcept : word(other.word) { other.word = s_success; }
    /// Copies the value and the message.
    XCode& operator=(XCode const& other);
    /// Takes the word over and frees the message that was held; `other` becomes the plain success.
    XCode& operator=(XCode&& other) noexcept {
        if (this == &other) return *this;
        releaseRecord();
        word = std::exchange(other.word, s_success);
        return *this;
    }
    ~XCode() { releaseRecord(); }

    /// True for every value but 0.
    bool isErr() const { return getValue() != 0; }
    /// The value in 31 bits: 0 for success, 0x7FFFFFFF for the generic failure.
    std::uint32_t getValue() const {
        return isInline() ? static_cast<std::uint32_t>(word) >> 1 : record()->value;
    }
    /// The message, or `String::s_empty`.
    String const& getString() const { return isInline() ? String::s_empty : record()->message; }
    /// True exactly for success. A member pointer, so that a code never converts to a number.
    operator SafeBool() const {  // NOLINT(google-explicit-constructor): `if (code)` is the purpose
        return isErr() ? nullptr : &_BoolTester::dummy;
    }

    /// Attaches or replaces the message; the value stays.
    XCode& setString(String const& message);
    /// Formats the message printf-style, attaches it as `setString` does, and returns a copy of
    /// this code.
    XCode setStringF(char const* format, ...) __attribute__((format(printf, 2, 3)));

private:
    static constexpr std::uintptr_t s_success = 1;

    bool isInline() const { return (word & 1) != 0; }
    Record* record() const { return reinterpret_cast<Record*>(word); }
    void releaseRecord() {
        if (!isInline()) delete record();
    }
};

/// Success for true, the generic failure for false.
inline XCode testExpression(bool condition) { return XCode(condition ? 0 : -1); }

/// Success for a non-null pointer, the generic failure for null.
template <class T>
XCode testExpression(T const* pointer) {
    return testExpression(pointer != nullptr);
}
