#include "VEKPrtClosedFigureElt.h"

#include "ElementProtocol.h"
#include "MemberProtocol.h"
#include "SourceGuard.h"
#include "VEKListPtrVEKPrtClosedFigureRegionElt.h"
#include "VEKPrtClosedFigureRegionElt.h"

using RegionProtocol =
    vekprt::MemberProtocol<VEKListPtrVEKPrtClosedFigureRegionElt, VEKPrtClosedFigureRegionElt>;

VEKPRT_IMPLEMENT_META_FAMILY(VEKPrtClosedFigureElt, 21, VEKPrtGraphicPrimitiveElt)

VEKPrtClosedFigureElt::VEKPrtClosedFigureElt() = default;

VEKPrtClosedFigureElt::VEKPrtClosedFigureElt(const VEKPrtClosedFigureElt& iOther) : VEKPrtClosedFigureElt() {
    ReplaceContents(iOther);
}

VEKPrtClosedFigureElt::~VEKPrtClosedFigureElt() { RegionProtocol::Destroy(_regions); }

VEKPrtClosedFigureElt& VEKPrtClosedFigureElt::operator=(const VEKPrtClosedFigureElt& iOther) {
    vekprt::Assign(*this, iOther, &VEKPrtClosedFigureElt::ReplaceContents);
    return *this;
}

void VEKPrtClosedFigureElt::ReplaceContents(const VEKPrtClosedFigureElt& iOther) {
    const vekprt::SourceGuard guard(iOther, _regions);
    RegionProtocol::Share(_regions, iOther._regions, vekprt::completeReleaseStart);
    _drawStyle = iOther._drawStyle;
    _stroke = iOther._stroke;
    _fill = iOther._fill;
    _transform = iOther._transform;
}

// Unlike that of the shapes, this leaves no reference behind on the pattern image: the copy's fill is still
// empty when it is duplicated into.
void VEKPrtClosedFigureElt::Duplicate(VEKPrtGraphicPrimitiveElt*& oCopy) {
    auto* const copy = vekprt::DuplicateByConstruction<VEKPrtClosedFigureElt>(oCopy);
    if (!copy) return;
    RegionProtocol::Duplicate(copy->_regions, _regions);
    copy->_drawStyle = _drawStyle;
    copy->_stroke = _stroke;
    _fill.Duplicate(copy->_fill);
    copy->_transform = _transform;
}

void VEKPrtClosedFigureElt::SetDrawStyle(VEKPrtDrawStyle iStyle) { _drawStyle = iStyle; }
void VEKPrtClosedFigureElt::GetDrawStyle(VEKPrtDrawStyle& oStyle) const { oStyle = _drawStyle; }
void VEKPrtClosedFigureElt::SetStrokeAttributes(const VEKPrtStrokeAttributes& iAttributes) {
    _stroke = iAttributes;
}
void VEKPrtClosedFigureElt::GetStrokeAttributes(VEKPrtStrokeAttributes& oAttributes) const {
    oAttributes = _stroke;
}
void VEKPrtClosedFigureElt::SetFillAttributes(const VEKPrtFillAttributes& iAttributes) {
    _fill = iAttributes;
}
void VEKPrtClosedFigureElt::GetFillAttributes(VEKPrtFillAttributes& oAttributes) const {
    oAttributes = _fill;
}
void VEKPrtClosedFigureElt::SetTransformAttributes(const VEKPrtTransformAttributes& iAttributes) {
    _transform = iAttributes;
}
void VEKPrtClosedFigureElt::GetTransformAttributes(VEKPrtTransformAttributes& oAttributes) const {
    oAttributes = _transform;
}

void VEKPrtClosedFigureElt::AddChild(VEKPrtClosedFigureRegionElt* iRegion) {
    RegionProtocol::Add(_regions, iRegion);
}
void VEKPrtClosedFigureElt::RemoveChild(VEKPrtClosedFigureRegionElt* iRegion) {
    RegionProtocol::Remove(_regions, iRegion);
}
void VEKPrtClosedFigureElt::GetChildren(VEKListPtrVEKPrtClosedFigureRegionElt*& oRegions) {
    oRegions = _regions;
}
