#include "VEKPrtGroupElt.h"

#include "ElementProtocol.h"
#include "MemberProtocol.h"
#include "SourceGuard.h"

VEKPRT_IMPLEMENT_META_FAMILY(VEKPrtGroupElt, 14, VEKPrtGraphicPrimitiveElt)

VEKPrtGroupElt::VEKPrtGroupElt() = default;

VEKPrtGroupElt::VEKPrtGroupElt(const VEKPrtGroupElt& iOther) : VEKPrtGroupElt() { ReplaceContents(iOther); }

VEKPrtGroupElt::~VEKPrtGroupElt() { vekprt::ChildProtocol::Destroy(_children); }

VEKPrtGroupElt& VEKPrtGroupElt::operator=(const VEKPrtGroupElt& iOther) {
    vekprt::Assign(*this, iOther, &VEKPrtGroupElt::ReplaceContents);
    return *this;
}

void VEKPrtGroupElt::ReplaceContents(const VEKPrtGroupElt& iOther) {
    const vekprt::SourceGuard guard(iOther, _children);
    vekprt::ChildProtocol::Share(_children, iOther._children, vekprt::containerReleaseStart);
    CopyFields(iOther);
}

void VEKPrtGroupElt::CopyFields(const VEKPrtGroupElt& iOther) {
    _groupAttributes = iOther._groupAttributes;
    _transform = iOther._transform;
}

void VEKPrtGroupElt::Duplicate(VEKPrtGraphicPrimitiveElt*& oCopy) {
    auto* const copy = vekprt::DuplicateByConstruction<VEKPrtGroupElt>(oCopy);
    if (!copy) return;
    vekprt::ChildProtocol::Duplicate(copy->_children, _children);
    copy->CopyFields(*this);
}

void VEKPrtGroupElt::SetGroupAttributes(const VEKPrtGroupAttributes& iAttributes) {
    _groupAttributes = iAttributes;
}
void VEKPrtGroupElt::GetGroupAttributes(VEKPrtGroupAttributes& oAttributes) const {
    oAttributes = _groupAttributes;
}
void VEKPrtGroupElt::SetTransformAttributes(const VEKPrtTransformAttributes& iAttributes) {
    _transform = iAttributes;
}
void VEKPrtGroupElt::GetTransformAttributes(VEKPrtTransformAttributes& oAttributes) const {
    oAttributes = _transform;
}

void VEKPrtGroupElt::AddChild(VEKPrtGraphicPrimitiveElt* iChild) {
    if (iChild != this) vekprt::ChildProtocol::Add(_children, iChild);
}
void VEKPrtGroupElt::RemoveChild(VEKPrtGraphicPrimitiveElt* iChild) {
    if (iChild != this) vekprt::ChildProtocol::Remove(_children, iChild);
}
void VEKPrtGroupElt::GetChildren(VEKListPtrVEKPrtGraphicPrimitiveElt*& oChildren) { oChildren = _children; }
