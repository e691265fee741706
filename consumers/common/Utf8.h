// Characters of UTF-8 texts that may be damaged.
#ifndef Utf8_H
#define Utf8_H

#include <cstddef>
#include <string>
#include <string_view>

namespace vekprt::drawing {

struct Range {
    char32_t first, last;
};
template <std::size_t Count>
bool IsIn(const Range (&iRanges)[Count], char32_t iCharacter) {
    for (const Range& range : iRanges)
        if (range.first <= iCharacter && iCharacter <= range.last) return true;
    return false;
}

/// Takes the next character off a text that is not empty; U+FFFD for a byte that begins none, or none that
/// XML allows.
char32_t NextCharacter(std::string_view& ioText);

/// The text in one line and sound: line breaks and tabs become blanks, what is no character U+FFFD.
std::string OneLine(std::string_view iText);

} // namespace vekprt::drawing

#endif
