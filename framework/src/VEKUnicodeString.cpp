#include "VEKUnicodeString.h"

#include <cstring>
#include <new>

namespace {

// Null for the empty string, and when allocation fails.
char* NewCopy(const char* iUtf8) {
    if (!iUtf8 || !*iUtf8) return nullptr;
    const std::size_t size = std::strlen(iUtf8) + 1;
    char* const copy = new (std::nothrow) char[size];
    if (copy) std::memcpy(copy, iUtf8, size);
    return copy;
}

} // namespace

// The old text is freed last: iUtf8 may lie in it.
void VEKUnicodeString::Replace(const char* iUtf8) {
    if (iUtf8 == _utf8) return;
    char* const copy = NewCopy(iUtf8);
    if (!copy && iUtf8 && *iUtf8) return;
    delete[] _utf8;
    _utf8 = copy;
}

bool VEKUnicodeString::operator==(const VEKUnicodeString& iOther) const {
    return std::strcmp(ToUtf8(), iOther.ToUtf8()) == 0;
}
