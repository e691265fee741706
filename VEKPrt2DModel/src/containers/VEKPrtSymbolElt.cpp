#include "VEKPrtSymbolElt.h"

#include "ElementProtocol.h"
#include "MemberProtocol.h"
#include "SourceGuard.h"

VEKPRT_IMPLEMENT_META_FAMILY(VEKPrtSymbolElt, 15, VEKPrtGraphicPrimitiveElt)

VEKPrtSymbolElt::VEKPrtSymbolElt() = default;

VEKPrtSymbolElt::VEKPrtSymbolElt(const VEKMathPoint2D& iOrigin, double iWidth, double iHeight)
    : _origin(iOrigin), _width(iWidth), _height(iHeight) {}

VEKPrtSymbolElt::VEKPrtSymbolElt(const VEKPrtSymbolElt& iOther) : VEKPrtSymbolElt() {
    ReplaceContents(iOther);
}

VEKPrtSymbolElt::~VEKPrtSymbolElt() { vekprt::ChildProtocol::Destroy(_children); }

VEKPrtSymbolElt& VEKPrtSymbolElt::operator=(const VEKPrtSymbolElt& iOther) {
    vekprt::Assign(*this, iOther, &VEKPrtSymbolElt::ReplaceContents);
    return *this;
}

void VEKPrtSymbolElt::ReplaceContents(const VEKPrtSymbolElt& iOther) {
    const vekprt::SourceGuard guard(iOther, _children);
    vekprt::ChildProtocol::Share(_children, iOther._children, vekprt::containerReleaseStart);
    CopyFields(iOther);
}

void VEKPrtSymbolElt::CopyFields(const VEKPrtSymbolElt& iOther) {
    _origin = iOther._origin;
    _width = iOther._width;
    _height = iOther._height;
    _transform = iOther._transform;
}

void VEKPrtSymbolElt::Duplicate(VEKPrtGraphicPrimitiveElt*& oCopy) {
    auto* const copy = vekprt::DuplicateByConstruction<VEKPrtSymbolElt>(oCopy);
    if (!copy) return;
    vekprt::ChildProtocol::Duplicate(copy->_children, _children);
    copy->CopyFields(*this);
}

void VEKPrtSymbolElt::SetOrigin(const VEKMathPoint2D& iOrigin) { _origin = iOrigin; }
void VEKPrtSymbolElt::GetOrigin(VEKMathPoint2D& oOrigin) const { oOrigin = _origin; }
void VEKPrtSymbolElt::SetSize(double iWidth, double iHeight) {
    _width = iWidth;
    _height = iHeight;
}
void VEKPrtSymbolElt::GetSize(double& oWidth, double& oHeight) const {
    oWidth = _width;
    oHeight = _height;
}
void VEKPrtSymbolElt::SetTransformAttributes(const VEKPrtTransformAttributes& iAttributes) {
    _transform = iAttributes;
}
void VEKPrtSymbolElt::GetTransformAttributes(VEKPrtTransformAttributes& oAttributes) const {
    oAttributes = _transform;
}

void VEKPrtSymbolElt::AddChild(VEKPrtGraphicPrimitiveElt* iChild) {
    if (iChild != this) vekprt::ChildProtocol::Add(_children, iChild);
}
void VEKPrtSymbolElt::RemoveChild(VEKPrtGraphicPrimitiveElt* iChild) {
    if (iChild != this) vekprt::ChildProtocol::Remove(_children, iChild);
}
void VEKPrtSymbolElt::GetChildren(VEKListPtrVEKPrtGraphicPrimitiveElt*& oChildren) { oChildren = _children; }
