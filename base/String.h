#pragma once

#include <cstdarg>
#include <cstdint>
#include <string_view>

#include "export.h"

/// A byte string with a 7-character inline buffer. One byte is one character and one terminal
/// cell; there is no encoding awareness. The text is always NUL-terminated in its buffer, but the
/// length, not the NUL, governs comparisons and copies.
///
/// An operation that cannot allocate reports nothing: a constructor or an assignment leaves the
/// empty string, an operation that appends or inserts leaves the text as it was.
class GALLEY_EXPORT String {
public:
    /// The buffer and its length; all-zero fields are the empty string.
    ///
    /// 1. `capacity` is 0: the text is inline in `storage.text`. `capacity` > 0: it lives in
    ///    `storage.buffer`, which is owned and comes from `malloc`.
    /// 2. The buffer holds `capacity` + 8 bytes, the text and its NUL among them.
    struct Store {
        std::int32_t capacity = 0;  ///< Bytes of the owned buffer less 8; 0 for none.
        std::int32_t length = 0;    ///< Bytes of the text, its NUL not among them.
        /// Which of the two holds the text is what `capacity` says.
        union {
            char text[8];
            char* buffer;
        } storage = {};

        Store() = default;
        Store(Store const&) = delete;
        Store& operator=(Store const&) = delete;
        /// Exchanges the two stores.
        Store& operator=(Store&& other) noexcept;
        ~Store();

        /// Records `newLength` and provides a buffer for `size` characters, without freeing what
        /// was held before: inline up to 7; the smallest power of two greater than `size` up to
        /// 4094; whole pages of 4096 bytes and one byte beyond. The new bytes are not set. When
        /// the buffer cannot be allocated the store is the empty string.
        void allocate(std::int32_t newLength, std::int32_t size);
        /// Makes the store the empty string without freeing anything.
        void setEmpty();

        /// The text, wherever it is.
        ///@{
        char* begin() { return capacity > 0 ? storage.buffer : storage.text; }
        char const* begin() const { return capacity > 0 ? storage.buffer : storage.text; }
        ///@}
    };

    /// Selects the formatting constructor.
    enum Formatted { formatted };

    /// The shared empty string.
    static String const s_empty;

    String() = default;
    /// A copy of `s`; null gives the empty string.
    String(char const* s) noexcept;  // NOLINT(google-explicit-constructor): texts are literals
    /// The `count` characters beginning at `s` + `start`.
    String(char const* s, int start, int count) noexcept;
    /// The printf-style formatting of the arguments.
    String(Formatted, char const* format, ...) __attribute__((format(printf, 3, 4)));
    /// A copy in a buffer of its own.
    String(String const& other);
    /// Takes the text over; `other` becomes the empty string.
    String(String&& other) noexcept;
    /// Replaces the text by a copy, which may be one of a part of it; null gives the empty string.
    ///@{
    String& operator=(String const& other);
    String& operator=(char const* s);
    ///@}
    /// Exchanges the two texts; `other` frees the former one when it is destroyed.
    String& operator=(String&& other) noexcept;
    ~String() = default;

    /// Bytes of the text, its NUL not among them.
    int length() const { return store.length; }
    /// Bytes of the buffer less 8; 0 while the text is inline.
    int capacity() const { return store.capacity; }
    /// The text with its NUL, never null; good until the string changes or is destroyed.
    char const* c_str() const { return store.begin(); }
    /// The characters, a NUL among them included.
    std::string_view view() const { return {c_str(), static_cast<std::size_t>(length())}; }
    /// The characters, to be changed where they are; good as long as `c_str()`.
    char* data() { return store.begin(); }
    /// The byte at `position`; NUL outside of [0, length).
    char operator[](int position) const {
        return position >= 0 && position < store.length ? store.begin()[position] : '\0';
    }

    /// Appends a text, which may be a part of this one; null appends nothing.
    ///@{
    String& operator+=(String const& other);
    String& operator+=(char const* s);
    ///@}
    /// Replaces the text by `s`, which is not in this string, in the buffer that is there if it has
    /// room.
    void assign(std::string_view s);
    /// Makes the text empty and keeps its buffer.
    void clear() {
        store.begin()[0] = '\0';
        store.length = 0;
    }
    /// Appends the first `n` characters of `s`.
    String& concat(char const* s, int n);
    /// What every appending operation rests on. `s` may lie inside this string.
    void internalConcat(char const* s, int n);
    /// Appends the printf-style formatting of the arguments.
    String& concatf(char const* format, ...) __attribute__((format(printf, 2, 3)));
    /// Replace the text by the printf-style formatting of the arguments.
    ///@{
    String& format(char const* format, ...) __attribute__((format(printf, 2, 3)));
    String& vformat(char const* format, va_list arguments) __attribute__((format(printf, 2, 0)));
    ///@}
    /// Inserts `s` before the character at `position`, which is first brought into [0, length].
    String& insert(int position, String const& s);
    /// Removes the characters from `from` up to but not including `to`; the range is first brought
    /// into [0, length].
    String& deleteRegion(int from, int to);
    /// Makes room for a text of `length` characters, so that appends up to it keep their buffer.
    /// False, with nothing changed, when there is no memory for it.
    bool reserve(int length);

    /// Makes room for `n` characters behind a text that is built piece by piece: where the buffer
    /// must grow it at least doubles, so that the pieces together cost linear time. False, with
    /// nothing changed, when there is no memory for it.
    bool growFor(std::size_t n);
    /// Gives back what the buffer holds beyond that of a fresh copy of the text.
    void shrinkToFit();

    /// `s` repeated `n` times.
    static String repeat(String const& s, unsigned n);
    /// Index of the first `c` (at or after `from`), -1 when there is none.
    ///@{
    int indexOf(char c) const { return indexOf(c, 0); }
    int indexOf(char c, int from) const;
    ///@}
    /// The characters from `from` up to but not including `to`, which counts as the length where
    /// it is greater; empty when the range is empty, reversed or begins outside the text.
    String substring(int from, int to) const;
    /// The decimal number at the beginning of the text: optional white space, optional sign,
    /// digits; whatever follows is ignored ("2px" is 2, "" and "abc" are 0). Saturates at the
    /// limits of 32 bits.
    int toInteger() const;

private:
    bool hasRoomFor(int length) const {
        return length < store.capacity + static_cast<int>(sizeof store.storage);
    }

    Store store;
};

static_assert(sizeof(String) == 16);

/// Equal texts by `strcmp`; against null, true exactly for the empty string.
GALLEY_EXPORT bool operator==(String const& left, char const* right);
/// Equal lengths and equal bytes.
GALLEY_EXPORT bool operator==(String const& left, String const& right);
