// A Unicode string value.
#ifndef VEKUnicodeString_H
#define VEKUnicodeString_H

#include "VEKFrameworkExport.h"

/// Text, kept as UTF-8.  One pointer in size; the empty string owns no memory.
///
/// No operation throws: copying yields the empty string when memory is out, assignment then keeps
/// the old value.
class VEKFRAMEWORK_API VEKUnicodeString {
public:
    VEKUnicodeString() = default;
    /// \p iUtf8 is copied as it is; null is empty.
    VEKUnicodeString(const char* iUtf8);
    VEKUnicodeString(const VEKUnicodeString& iOther);
    VEKUnicodeString& operator=(const VEKUnicodeString& iOther);
    VEKUnicodeString& operator=(const char* iUtf8);
    ~VEKUnicodeString();

    bool operator==(const VEKUnicodeString& iOther) const;
    bool operator!=(const VEKUnicodeString& iOther) const { return !(*this == iOther); }

    /// Never null; valid until the next change of this string.
    const char* ToUtf8() const { return _utf8 ? _utf8 : ""; }
    bool IsEmpty() const { return _utf8 == nullptr; }

private:
    char* _utf8 = nullptr;
};

#endif
