#include "VEKPrtImageElt.h"

#include "ElementProtocol.h"
#include "MemberProtocol.h"
#include "SourceGuard.h"
#include "VEKPrtColourTable.h"

VEKPRT_IMPLEMENT_META_FAMILY(VEKPrtImageElt, 14, VEKPrtGraphicPrimitiveElt)

VEKPrtImageElt::VEKPrtImageElt() = default;

VEKPrtImageElt::VEKPrtImageElt(const VEKMathPoint2D& iOrigin, double iWidth, double iHeight,
                               const VEKPrtImageUnits& iUnits, const VEKMath2x2Matrix& iMatrix)
    : _origin(iOrigin), _width(iWidth), _height(iHeight), _units(iUnits), _matrix(iMatrix) {}

VEKPrtImageElt::VEKPrtImageElt(const VEKPrtImageElt& iOther) : VEKPrtImageElt() { ReplaceContents(iOther); }

VEKPrtImageElt::~VEKPrtImageElt() {
    delete _colourTable;
    _colourTable = nullptr; // the destructors of the children may still ask for it
    vekprt::ChildProtocol::Destroy(_children);
}

VEKPrtImageElt& VEKPrtImageElt::operator=(const VEKPrtImageElt& iOther) {
    vekprt::Assign(*this, iOther, &VEKPrtImageElt::ReplaceContents);
    return *this;
}

void VEKPrtImageElt::ReplaceContents(const VEKPrtImageElt& iOther) {
    const vekprt::SourceGuard guard(iOther, _children);
    CopyFields(iOther);
    vekprt::ChildProtocol::Share(_children, iOther._children, vekprt::containerReleaseStart);
}

void VEKPrtImageElt::CopyFields(const VEKPrtImageElt& iOther) {
    _origin = iOther._origin;
    _width = iOther._width;
    _height = iOther._height;
    _units = iOther._units;
    _matrix = iOther._matrix;
    delete _colourTable;
    _colourTable = iOther._colourTable ? new (std::nothrow) VEKPrtColourTable(*iOther._colourTable) : nullptr;
}

void VEKPrtImageElt::Duplicate(VEKPrtGraphicPrimitiveElt*& oCopy) {
    auto* const copy = vekprt::DuplicateByConstruction<VEKPrtImageElt>(oCopy);
    if (!copy) return;
    copy->CopyFields(*this);
    vekprt::ChildProtocol::Duplicate(copy->_children, _children);
}

void VEKPrtImageElt::SetOrigin(const VEKMathPoint2D& iOrigin) { _origin = iOrigin; }
void VEKPrtImageElt::GetOrigin(VEKMathPoint2D& oOrigin) const { oOrigin = _origin; }
void VEKPrtImageElt::SetSize(double iWidth, double iHeight) {
    _width = iWidth;
    _height = iHeight;
}

void VEKPrtImageElt::GetSize(double& oWidth, double& oHeight) const {
    oWidth = _width;
    oHeight = _height;
}
void VEKPrtImageElt::SetUnits(const VEKPrtImageUnits& iUnits) { _units = iUnits; }
void VEKPrtImageElt::GetUnits(VEKPrtImageUnits& oUnits) const { oUnits = _units; }
void VEKPrtImageElt::SetMatrix(const VEKMath2x2Matrix& iMatrix) { _matrix = iMatrix; }
void VEKPrtImageElt::GetMatrix(VEKMath2x2Matrix& oMatrix) const { oMatrix = _matrix; }

void VEKPrtImageElt::SetColourTable(VEKPrtColourTable* iTable) {
    if (iTable == _colourTable) return;
    delete _colourTable;
    _colourTable = iTable;
}
void VEKPrtImageElt::GetColourTable(VEKPrtColourTable*& oTable) { oTable = _colourTable; }
void VEKPrtImageElt::AddChild(VEKPrtGraphicPrimitiveElt* iChild) {
    if (iChild != this) vekprt::ChildProtocol::Add(_children, iChild);
}
void VEKPrtImageElt::RemoveChild(VEKPrtGraphicPrimitiveElt* iChild) {
    if (iChild != this) vekprt::ChildProtocol::Remove(_children, iChild);
}
void VEKPrtImageElt::GetChildren(VEKListPtrVEKPrtGraphicPrimitiveElt*& oChildren) const {
    oChildren = _children;
}
