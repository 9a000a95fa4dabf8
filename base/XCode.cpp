#include "base/XCode.h"

#include <cstdarg>

XCode::XCode(XCode const& other) : word(other.word) {
    if (!other.isInline()) word = reinterpret_cast<std::uintptr_t>(new Record(*other.record()));
}

XCode& XCode::operator=(XCode const& other) {
    if (this != &other) *this = XCode(other);
    return *this;
}

XCode& XCode::setString(String const& message) {
    if (isInline()) {
        word = reinterpret_cast<std::uintptr_t>(new Record{getValue(), message});
    } else {
        record()->message = message;
    }
    return *this;
}

XCode XCode::setStringF(char const* format, ...) {
    String message;
    va_list arguments;
    va_start(arguments, format);
    message.vformat(format, arguments);
    va_end(arguments);
    return setString(message);
}
