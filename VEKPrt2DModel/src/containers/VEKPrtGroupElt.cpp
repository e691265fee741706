#include "VEKPrtGroupElt.h"

#include "ElementProtocol.h"
#include "MemberList.h"

VEKPRT_IMPLEMENT_ELEMENT(VEKPrtGroupElt, 14)

VEKPrtGroupElt::VEKPrtGroupElt() = default;

VEKPrtGroupElt::~VEKPrtGroupElt() { vekprt::ChildList::Destroy(_children); }

void VEKPrtGroupElt::CopyOwn(const VEKPrtGroupElt& iOther) {
    const vekprt::SourceGuard guard(iOther, _children);
    vekprt::ChildList::Share(_children, iOther._children, vekprt::containerWalkStart);
    CopyFields(iOther);
}

void VEKPrtGroupElt::CopyFields(const VEKPrtGroupElt& iOther) {
    _groupAttributes = iOther._groupAttributes;
    _transform = iOther._transform;
}

void VEKPrtGroupElt::Duplicate(VEKPrtGraphicPrimitiveElt*& oCopy) {
    auto* const copy = vekprt::DuplicateByConstruction<VEKPrtGroupElt>(oCopy);
    if (!copy) return;
    vekprt::ChildList::Duplicate(copy->_children, _children);
    copy->CopyFields(*this);
}

VEKPRT_IMPLEMENT_RECORD(VEKPrtGroupElt, GroupAttributes, _groupAttributes)
VEKPRT_IMPLEMENT_RECORD(VEKPrtGroupElt, TransformAttributes, _transform)

VEKPRT_IMPLEMENT_CHILDREN(VEKPrtGroupElt, /* not const */)
