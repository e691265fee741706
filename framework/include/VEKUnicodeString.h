// A Unicode string value.
#ifndef VEKUnicodeString_H
#define VEKUnicodeString_H

#include "VEKFrameworkExport.h"

/// Text, kept as UTF-8.  One pointer in size; the empty string owns no memory.
///
/// No operation throws: copying yields the empty string when allocation fails, assignment then keeps
/// the old value.  What the empty string needs is inline, the rest is not.
class VEKFRAMEWORK_API VEKUnicodeString {
public:
    VEKUnicodeString() = default;
    /// \p iUtf8 is copied as it is; null is empty.
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
