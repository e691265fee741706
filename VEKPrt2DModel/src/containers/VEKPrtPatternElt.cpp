#include "VEKPrtPatternElt.h"

#include "ElementProtocol.h"
#include "MemberProtocol.h"
#include "SourceGuard.h"

VEKPRT_IMPLEMENT_META_FAMILY(VEKPrtPatternElt, 16, VEKPrtGraphicPrimitiveElt)

VEKPrtPatternElt::VEKPrtPatternElt() = default;

VEKPrtPatternElt::VEKPrtPatternElt(const VEKMathPoint2D& iOrigin, double iWidth, double iHeight)
    : _origin(iOrigin), _width(iWidth), _height(iHeight) {}

VEKPrtPatternElt::VEKPrtPatternElt(const VEKPrtPatternElt& iOther) : VEKPrtPatternElt() {
    ReplaceContents(iOther);
}

VEKPrtPatternElt::~VEKPrtPatternElt() { vekprt::ChildProtocol::Destroy(_children); }

VEKPrtPatternElt& VEKPrtPatternElt::operator=(const VEKPrtPatternElt& iOther) {
    vekprt::Assign(*this, iOther, &VEKPrtPatternElt::ReplaceContents);
    return *this;
}

void VEKPrtPatternElt::ReplaceContents(const VEKPrtPatternElt& iOther) {
    const vekprt::SourceGuard guard(iOther, _children);
    vekprt::ChildProtocol::Share(_children, iOther._children, vekprt::containerReleaseStart);
    CopyFields(iOther);
}

void VEKPrtPatternElt::CopyFields(const VEKPrtPatternElt& iOther) {
    _origin = iOther._origin;
    _width = iOther._width;
    _height = iOther._height;
    _transform = iOther._transform;
}

void VEKPrtPatternElt::Duplicate(VEKPrtGraphicPrimitiveElt*& oCopy) {
    auto* const copy = vekprt::DuplicateByConstruction<VEKPrtPatternElt>(oCopy);
    if (!copy) return;
    vekprt::ChildProtocol::Duplicate(copy->_children, _children);
    copy->CopyFields(*this);
}

void VEKPrtPatternElt::SetOrigin(const VEKMathPoint2D& iOrigin) { _origin = iOrigin; }
void VEKPrtPatternElt::GetOrigin(VEKMathPoint2D& oOrigin) const { oOrigin = _origin; }
void VEKPrtPatternElt::SetSize(double iWidth, double iHeight) {
    _width = iWidth;
    _height = iHeight;
}
void VEKPrtPatternElt::GetSize(double& oWidth, double& oHeight) const {
    oWidth = _width;
    oHeight = _height;
}
void VEKPrtPatternElt::SetTransformAttributes(const VEKPrtTransformAttributes& iAttributes) {
    _transform = iAttributes;
}
void VEKPrtPatternElt::GetTransformAttributes(VEKPrtTransformAttributes& oAttributes) const {
    oAttributes = _transform;
}

void VEKPrtPatternElt::AddChild(VEKPrtGraphicPrimitiveElt* iChild) {
    if (iChild != this) vekprt::ChildProtocol::Add(_children, iChild);
}
void VEKPrtPatternElt::RemoveChild(VEKPrtGraphicPrimitiveElt* iChild) {
    if (iChild != this) vekprt::ChildProtocol::Remove(_children, iChild);
}
void VEKPrtPatternElt::GetChildren(VEKListPtrVEKPrtGraphicPrimitiveElt*& oChildren) { oChildren = _children; }
