/// \file
/// The target of a hyperlink.
#ifndef VEKPrintLinkURI_H
#define VEKPrintLinkURI_H

#include "VEKUnicodeString.h"

/// Stored as given; empty (no link) by default.
class VEKPrintLinkURI {
public:
    VEKPrintLinkURI() = default;
    VEKPrintLinkURI(const char* iURI) : _uri(iURI) {}

    /// Never null; valid until the next change of this link.
    const char* GetURI() const { return _uri.ToUtf8(); }

    bool operator==(const VEKPrintLinkURI& iOther) const { return _uri == iOther._uri; }
    bool operator!=(const VEKPrintLinkURI& iOther) const { return !(*this == iOther); }

private:
    VEKUnicodeString _uri;
};

#endif
