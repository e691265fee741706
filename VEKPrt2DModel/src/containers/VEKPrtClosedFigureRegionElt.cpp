#include "VEKPrtClosedFigureRegionElt.h"

#include "ElementProtocol.h"
#include "MemberProtocol.h"
#include "SourceGuard.h"

VEKPRT_IMPLEMENT_META_FAMILY(VEKPrtClosedFigureRegionElt, 27, VEKPrtGraphicPrimitiveElt)

VEKPrtClosedFigureRegionElt::VEKPrtClosedFigureRegionElt() = default;

VEKPrtClosedFigureRegionElt::VEKPrtClosedFigureRegionElt(const VEKPrtClosedFigureRegionElt& iOther)
    : VEKPrtClosedFigureRegionElt() {
    ReplaceContents(iOther);
}

VEKPrtClosedFigureRegionElt::~VEKPrtClosedFigureRegionElt() { vekprt::ChildProtocol::Destroy(_children); }

VEKPrtClosedFigureRegionElt&
VEKPrtClosedFigureRegionElt::operator=(const VEKPrtClosedFigureRegionElt& iOther) {
    vekprt::Assign(*this, iOther, &VEKPrtClosedFigureRegionElt::ReplaceContents);
    return *this;
}

void VEKPrtClosedFigureRegionElt::ReplaceContents(const VEKPrtClosedFigureRegionElt& iOther) {
    const vekprt::SourceGuard guard(iOther, _children);
    vekprt::ChildProtocol::Share(_children, iOther._children, vekprt::containerReleaseStart);
    _transform = iOther._transform;
}

template <class Out>
void VEKPrtClosedFigureRegionElt::DuplicateInto(Out*& oCopy) const {
    auto* const copy = vekprt::DuplicateByConstruction<VEKPrtClosedFigureRegionElt>(oCopy);
    if (!copy) return;
    vekprt::ChildProtocol::Duplicate(copy->_children, _children);
    copy->_transform = _transform;
}

void VEKPrtClosedFigureRegionElt::Duplicate(VEKPrtGraphicPrimitiveElt*& oCopy) { DuplicateInto(oCopy); }
void VEKPrtClosedFigureRegionElt::Duplicate(VEKPrtClosedFigureRegionElt*& oCopy) { DuplicateInto(oCopy); }

void VEKPrtClosedFigureRegionElt::SetTransformAttributes(const VEKPrtTransformAttributes& iAttributes) {
    _transform = iAttributes;
}
void VEKPrtClosedFigureRegionElt::GetTransformAttributes(VEKPrtTransformAttributes& oAttributes) const {
    oAttributes = _transform;
}

void VEKPrtClosedFigureRegionElt::AddChild(VEKPrtGraphicPrimitiveElt* iChild) {
    if (iChild != this) vekprt::ChildProtocol::Add(_children, iChild);
}
void VEKPrtClosedFigureRegionElt::RemoveChild(VEKPrtGraphicPrimitiveElt* iChild) {
    if (iChild != this) vekprt::ChildProtocol::Remove(_children, iChild);
}
void VEKPrtClosedFigureRegionElt::GetChildren(VEKListPtrVEKPrtGraphicPrimitiveElt*& oChildren) {
    oChildren = _children;
}
