#include "VEKPrtClosedFigureRegionElt.h"

#include "ElementProtocol.h"
#include "MemberList.h"

VEKPRT_IMPLEMENT_ELEMENT(VEKPrtClosedFigureRegionElt, 27)

VEKPrtClosedFigureRegionElt::VEKPrtClosedFigureRegionElt() = default;

VEKPrtClosedFigureRegionElt::~VEKPrtClosedFigureRegionElt() { vekprt::ChildList::Destroy(_children); }

void VEKPrtClosedFigureRegionElt::CopyOwn(const VEKPrtClosedFigureRegionElt& iOther) {
    const vekprt::SourceGuard guard(iOther, _children);
    vekprt::ChildList::Share(_children, iOther._children, vekprt::containerWalkStart);
    _transform = iOther._transform;
}

template <class Out>
void VEKPrtClosedFigureRegionElt::DuplicateInto(Out*& oCopy) const {
    auto* const copy = vekprt::DuplicateByConstruction<VEKPrtClosedFigureRegionElt>(oCopy);
    if (!copy) return;
    vekprt::ChildList::Duplicate(copy->_children, _children);
    copy->_transform = _transform;
}

void VEKPrtClosedFigureRegionElt::Duplicate(VEKPrtGraphicPrimitiveElt*& oCopy) { DuplicateInto(oCopy); }
void VEKPrtClosedFigureRegionElt::Duplicate(VEKPrtClosedFigureRegionElt*& oCopy) { DuplicateInto(oCopy); }

VEKPRT_IMPLEMENT_RECORD(VEKPrtClosedFigureRegionElt, TransformAttributes, _transform)

VEKPRT_IMPLEMENT_CHILDREN(VEKPrtClosedFigureRegionElt, /* not const */)
