#include "VEKPrtGraphicPrimitiveElt.h"

#include "ElementProtocol.h"

VEKPRT_IMPLEMENT_META_FAMILY(VEKPrtGraphicPrimitiveElt, 25, VEKBaseUnknown)

// Here and elsewhere strings are default-constructed and then assigned: the library asks no more of a host's
// string type.
VEKPrtGraphicPrimitiveElt::VEKPrtGraphicPrimitiveElt() {
    _id = "";
    _description = "";
    _title = "";
}

// The framework's part is not copied: the count starts at 1 and the data words are null.
// NOLINTNEXTLINE(bugprone-copy-constructor-init)
VEKPrtGraphicPrimitiveElt::VEKPrtGraphicPrimitiveElt(const VEKPrtGraphicPrimitiveElt& iOther)
    : VEKBaseUnknown() {
    if (&iOther != this) CopyOwn(iOther); // a host's string need not survive its own assignment
}

VEKPrtGraphicPrimitiveElt::~VEKPrtGraphicPrimitiveElt() = default;

VEKPrtGraphicPrimitiveElt& VEKPrtGraphicPrimitiveElt::operator=(const VEKPrtGraphicPrimitiveElt& iOther) {
    if (&iOther == this) return *this;
    VEKBaseUnknown::operator=(iOther);
    CopyOwn(iOther);
    return *this;
}

void VEKPrtGraphicPrimitiveElt::CopyOwn(const VEKPrtGraphicPrimitiveElt& iOther) {
    _id = iOther._id;
    _description = iOther._description;
    _title = iOther._title;
}

// Copies the strings only: unlike assignment, this leaves the framework's data words of the copy at their
// defaults.
void VEKPrtGraphicPrimitiveElt::Duplicate(VEKPrtGraphicPrimitiveElt*& oCopy) {
    auto* const copy = vekprt::DuplicateByConstruction<VEKPrtGraphicPrimitiveElt>(oCopy);
    if (copy) copy->CopyOwn(*this);
}

void VEKPrtGraphicPrimitiveElt::SetID(const VEKUnicodeString& iID) { _id = iID; }
void VEKPrtGraphicPrimitiveElt::GetID(VEKUnicodeString& oID) const { oID = _id; }
void VEKPrtGraphicPrimitiveElt::SetDescription(const VEKUnicodeString& iDescription) {
    _description = iDescription;
}
void VEKPrtGraphicPrimitiveElt::GetDescription(VEKUnicodeString& oDescription) const {
    oDescription = _description;
}
void VEKPrtGraphicPrimitiveElt::SetTitle(const VEKUnicodeString& iTitle) { _title = iTitle; }
void VEKPrtGraphicPrimitiveElt::GetTitle(VEKUnicodeString& oTitle) const { oTitle = _title; }
