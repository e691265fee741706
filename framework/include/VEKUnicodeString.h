/// \file
/// A Unicode string value.
#ifndef VEKUnicodeString_H
#define VEKUnicodeString_H

#include "VEKFrameworkExport.h"

/// Text, stored as UTF-8.  The size of one pointer; the empty string owns no memory.
///
/// No operation throws.  When allocation fails, constructors yield the empty string and assignment keeps the
/// old value.  Only what the empty string needs is inline.
class VEKFRAMEWORK_API VEKUnicodeString {
public:
    VEKUnicodeString() = default;
    /// Copies \p iUtf8 unchecked; null gives the empty string.
    VEKUnicodeString(const char* iUtf8) { Assign(iUtf8); }
    VEKUnicodeString(const VEKUnicodeString& iOther) { Assign(iOther._utf8); }
    VEKUnicodeString& operator=(const VEKUnicodeString& iOther) {
        Assign(iOther._utf8);
        return *this;
    }
    VEKUnicodeString& operator=(const char* iUtf8) {
        Assign(iUtf8);
        return *this;
    }
    ~VEKUnicodeString() { Assign(nullptr); }

    bool operator==(const VEKUnicodeString& iOther) const;
    bool operator!=(const VEKUnicodeString& iOther) const { return !(*this == iOther); }

    /// Never null; valid until the next change of this string.
    const char* ToUtf8() const { return _utf8 ? _utf8 : ""; }
    bool IsEmpty() const { return _utf8 == nullptr; }

private:
    void Assign(const char* iUtf8) {
        const bool isEmpty = !iUtf8 || *iUtf8 == '\0';
        if (_utf8 || !isEmpty) Replace(iUtf8);
    }
    void Replace(const char* iUtf8);

    char* _utf8 = nullptr;
};

#endif
