#include "base/String.h"

#include <algorithm>
#include <climits>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <utility>

#include "base/hugePages.h"

namespace {

constexpr int s_inlineLength = 7;
/// The longest text in a power-of-two buffer; longer ones take whole pages.
constexpr int s_longestPowerOfTwoText = 4094;
constexpr int s_pageSize = 4096;
/// The longest text whose buffer size still fits in 32 bits.
constexpr int s_longestText = INT_MAX - s_pageSize - 1;

int bufferSizeFor(int size) {
    if (size > s_longestPowerOfTwoText) return (size & ~(s_pageSize - 1)) + s_pageSize + 1;
    unsigned bits = static_cast<unsigned>(size);
    bits |= bits >> 1;
    bits |= bits >> 2;
    bits |= bits >> 4;
    bits |= bits >> 8;
    return static_cast<int>(bits + 1);
}

/// The length of `s` as far as a string can hold it; longer texts cannot be allocated.
int lengthOf(char const* s) {
    std::size_t const length = std::strlen(s);
    return length > INT_MAX ? INT_MAX : static_cast<int>(length);
}

bool isSpace(char c) { return c == ' ' || (c >= '\t' && c <= '\r'); }
bool isDigit(char c) { return c >= '0' && c <= '9'; }

}  // namespace

constinit String const String::s_empty;

String::Store& String::Store::operator=(Store&& other) noexcept {
    std::swap(capacity, other.capacity);
    std::swap(length, other.length);
    std::swap(storage, other.storage);
    return *this;
}

String::Store::~Store() {
    if (capacity > 0) std::free(storage.buffer);
}

void String::Store::allocate(std::int32_t newLength, std::int32_t size) {
    setEmpty();
    if (size > s_inlineLength) {
        if (size > s_longestText) return;
        int const bytes = bufferSizeFor(size);
        auto* const buffer = static_cast<char*>(std::malloc(static_cast<std::size_t>(bytes)));
        if (buffer == nullptr) return;
        preferHugePages(buffer, static_cast<std::size_t>(bytes));
        capacity = bytes - static_cast<int>(sizeof storage);
        storage.buffer = buffer;
    }
    length = newLength;
}

void String::Store::setEmpty() {
    capacity = 0;
    length = 0;
    storage = {};
}

String::String(char const* s) noexcept : String(s, 0, s != nullptr ? lengthOf(s) : 0) {}

String::String(char const* s, int start, int count) noexcept {
    if (count <= 0) return;
    store.allocate(count, count);
    if (store.length != count) return;
    std::memcpy(store.begin(), s + start, static_cast<std::size_t>(count));
    store.begin()[count] = '\0';
}

String::String(Formatted, char const* format, ...) {
    va_list arguments;
    va_start(arguments, format);
    vformat(format, arguments);
    va_end(arguments);
}

String::String(String const& other) : String(other.c_str(), 0, other.length()) {}

String::String(String&& other) noexcept { store = std::move(other.store); }

String& String::operator=(String const& other) {
    if (this != &other) store = std::move(String(other).store);
    return *this;
}

String& String::operator=(char const* s) {
    store = std::move(String(s).store);
    return *this;
}

String& String::operator=(String&& other) noexcept {
    store = std::move(other.store);
    return *this;
}

void String::assign(std::string_view s) {
    if (s.empty()) return clear();
    if (s.length() > static_cast<std::size_t>(s_longestText)) {
        *this = String();
        return;
    }
    auto const length = static_cast<int>(s.length());
    if (!hasRoomFor(length)) {
        *this = String(s.data(), 0, length);
        return;
    }
    std::memcpy(store.begin(), s.data(), s.length());
    store.begin()[length] = '\0';
    store.length = length;
}

String& String::operator+=(String const& other) { return concat(other.c_str(), other.length()); }

String& String::operator+=(char const* s) { return s == nullptr ? *this : concat(s, lengthOf(s)); }

String& String::concat(char const* s, int n) {
    internalConcat(s, n);
    return *this;
}

void String::internalConcat(char const* s, int n) {
    if (n <= 0 || n > s_longestText - length()) return;
    int const newLength = length() + n;
    if (hasRoomFor(newLength)) {
        std::memmove(store.begin() + length(), s, static_cast<std::size_t>(n));
        store.begin()[newLength] = '\0';
        store.length = newLength;
        return;
    }
    Store grown;
    grown.allocate(newLength, newLength);
    if (grown.capacity == 0) return;
    std::memcpy(grown.begin(), c_str(), static_cast<std::size_t>(length()));
    std::memcpy(grown.begin() + length(), s, static_cast<std::size_t>(n));
    grown.begin()[newLength] = '\0';
    store = std::move(grown);
}

bool String::reserve(int length) {
    if (hasRoomFor(length)) return true;
    Store grown;
    grown.allocate(store.length, length);
    if (grown.capacity == 0) return false;
    std::memcpy(grown.begin(), c_str(), static_cast<std::size_t>(store.length) + 1);
    store = std::move(grown);
    return true;
}

bool String::growFor(std::size_t n) {
    auto const longest = static_cast<std::size_t>(s_longestText);
    auto const former = static_cast<std::size_t>(length());
    if (n > longest - former) return false;
    std::size_t const needed = former + n;
    return hasRoomFor(static_cast<int>(needed)) ||
           reserve(static_cast<int>(std::min(std::max(needed, former * 2), longest)));
}

void String::shrinkToFit() {
    if (store.capacity == 0) return;
    if (length() <= s_inlineLength) {
        *this = String(*this);
        return;
    }
    int const bytes = bufferSizeFor(length());
    auto const slack = static_cast<int>(sizeof store.storage);
    if (bytes - slack >= store.capacity) return;
    void* const fitting = std::realloc(store.storage.buffer, static_cast<std::size_t>(bytes));
    if (fitting == nullptr) return;
    store.storage.buffer = static_cast<char*>(fitting);
    store.capacity = bytes - slack;
}

String& String::concatf(char const* format, ...) {
    String addition;
    va_list arguments;
    va_start(arguments, format);
    addition.vformat(format, arguments);
    va_end(arguments);
    return *this += addition;
}

String& String::format(char const* format, ...) {
    va_list arguments;
    va_start(arguments, format);
    vformat(format, arguments);
    va_end(arguments);
    return *this;
}

String& String::vformat(char const* format, va_list arguments) {
    va_list measured;
    va_copy(measured, arguments);
    int const length = std::vsnprintf(nullptr, 0, format, measured);
    va_end(measured);
    String result;
    if (length > 0) {
        result.store.allocate(length, length);
        // The arguments may point into this string: it is replaced only afterwards.
        if (result.length() == length) {
            std::vsnprintf(result.store.begin(), static_cast<std::size_t>(length) + 1, format,
                           arguments);
        }
    }
    return *this = std::move(result);
}

String& String::insert(int position, String const& s) {
    // NOLINTNEXTLINE(performance-unnecessary-copy-initialization): `s` may be this string
    String const inserted = s;
    int const added = inserted.length();
    int const behind = length() - std::clamp(position, 0, length());
    if (added > s_longestText - length() || !reserve(length() + added)) return *this;
    char* const place = store.begin() + (length() - behind);
    // The NUL moves along.
    std::memmove(place + added, place, static_cast<std::size_t>(behind) + 1);
    std::memcpy(place, inserted.c_str(), static_cast<std::size_t>(added));
    store.length += added;
    return *this;
}

String& String::deleteRegion(int from, int to) {
    if (from < 0) from = 0;
    if (to > length()) to = length();
    if (from >= to) return *this;
    char* const text = store.begin();
    // The NUL moves along.
    std::memmove(text + from, text + to, static_cast<std::size_t>(length() - to) + 1);
    store.length -= to - from;
    return *this;
}

String String::repeat(String const& s, unsigned n) {
    String result;
    std::int64_t const length = std::int64_t{s.length()} * n;
    if (length == 0 || length > s_longestText) return result;
    result.store.allocate(static_cast<int>(length), static_cast<int>(length));
    if (result.length() == 0) return result;
    char* out = result.store.begin();
    if (s.length() == 1) {
        std::memset(out, s[0], n);
    } else {
        auto const step = static_cast<std::size_t>(s.length());
        for (unsigned i = 0; i < n; ++i) std::memcpy(out + i * step, s.c_str(), step);
    }
    out[length] = '\0';
    return result;
}

int String::indexOf(char c, int from) const {
    if (from < 0) from = 0;
    if (from >= length()) return -1;
    void const* const found =
        std::memchr(c_str() + from, c, static_cast<std::size_t>(length() - from));
    return found == nullptr ? -1 : static_cast<int>(static_cast<char const*>(found) - c_str());
}

String String::substring(int from, int to) const {
    if (to > length()) to = length();
    if (from < 0 || from >= to) return s_empty;
    return String(c_str(), from, to - from);
}

int String::toInteger() const {
    char const* next = c_str();
    while (isSpace(*next)) ++next;
    bool const negative = *next == '-';
    if (*next == '-' || *next == '+') ++next;
    std::int64_t const limit = std::int64_t{INT_MAX} + (negative ? 1 : 0);
    std::int64_t value = 0;
    for (; isDigit(*next) && value < limit; ++next) value = value * 10 + (*next - '0');
    if (value > limit) value = limit;
    return static_cast<int>(negative ? -value : value);
}

bool operator==(String const& left, char const* right) {
    return right == nullptr ? left.length() == 0 : std::strcmp(left.c_str(), right) == 0;
}

bool operator==(String const& left, String const& right) {
    return left.length() == right.length() &&
           std::memcmp(left.c_str(), right.c_str(), static_cast<std::size_t>(left.length())) == 0;
}
