#include "VEKUnicodeString.h"

#include <cstring>
#include <new>

namespace {

// Null for the empty string as well as for no memory.
char* NewCopy(const char* iUtf8) {
    if (!iUtf8 || !*iUtf8) return nullptr;
    const std::size_t size = std::strlen(iUtf8) + 1;
    char* const copy = new (std::nothrow) char[size];
    if (copy) std::memcpy(copy, iUtf8, size);
    return copy;
}

} // namespace

VEKUnicodeString::VEKUnicodeString(const char* iUtf8) : _utf8(NewCopy(iUtf8)) {}
VEKUnicodeString::VEKUnicodeString(const VEKUnicodeString& iOther) : _utf8(NewCopy(iOther._utf8)) {}

VEKUnicodeString& VEKUnicodeString::operator=(const VEKUnicodeString& iOther) {
    if (&iOther == this) return *this;
    return *this = iOther._utf8;
}

// The old text goes last: iUtf8 may lie in it.
VEKUnicodeString& VEKUnicodeString::operator=(const char* iUtf8) {
    char* const copy = NewCopy(iUtf8);
    if (!copy && iUtf8 && *iUtf8) return *this;
    delete[] _utf8;
    _utf8 = copy;
    return *this;
}

VEKUnicodeString::~VEKUnicodeString() { delete[] _utf8; }

bool VEKUnicodeString::operator==(const VEKUnicodeString& iOther) const {
    return std::strcmp(ToUtf8(), iOther.ToUtf8()) == 0;
}
