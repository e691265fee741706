// Pattern and symbol: one body for two classes that differ in nothing but their names.
#ifndef BoxContainer_H
#define BoxContainer_H

#include "ElementProtocol.h"
#include "MemberList.h"

// A macro and not a common base class: the base of every element class is the element base.
#define VEKPRT_IMPLEMENT_BOX_CONTAINER(Self, NameLength)                                                     \
    VEKPRT_IMPLEMENT_ELEMENT(Self, NameLength)                                                               \
    Self::Self() = default;                                                                                  \
    Self::Self(const VEKMathPoint2D& iOrigin, double iWidth, double iHeight)                                 \
        : _origin(iOrigin), _width(iWidth), _height(iHeight) {}                                              \
    Self::~Self() { vekprt::ChildList::Destroy(_children); }                                                 \
    void Self::CopyOwn(const Self& iOther) {                                                                 \
        const vekprt::SourceGuard guard(iOther, _children);                                                  \
        vekprt::ChildList::Share(_children, iOther._children, vekprt::containerWalkStart);                   \
        CopyFields(iOther);                                                                                  \
    }                                                                                                        \
    void Self::CopyFields(const Self& iOther) {                                                              \
        _origin = iOther._origin;                                                                            \
        _width = iOther._width;                                                                              \
        _height = iOther._height;                                                                            \
        _transform = iOther._transform;                                                                      \
    }                                                                                                        \
    void Self::Duplicate(VEKPrtGraphicPrimitiveElt*& oCopy) {                                                \
        auto* const copy = vekprt::DuplicateByConstruction<Self>(oCopy);                                     \
        if (!copy) return;                                                                                   \
        vekprt::ChildList::Duplicate(copy->_children, _children);                                            \
        copy->CopyFields(*this);                                                                             \
    }                                                                                                        \
    void Self::SetOrigin(const VEKMathPoint2D& iOrigin) { _origin = iOrigin; }                               \
    void Self::GetOrigin(VEKMathPoint2D& oOrigin) const { oOrigin = _origin; }                               \
    void Self::SetSize(double iWidth, double iHeight) {                                                      \
        _width = iWidth;                                                                                     \
        _height = iHeight;                                                                                   \
    }                                                                                                        \
    void Self::GetSize(double& oWidth, double& oHeight) const {                                              \
        oWidth = _width;                                                                                     \
        oHeight = _height;                                                                                   \
    }                                                                                                        \
    VEKPRT_IMPLEMENT_RECORD(Self, TransformAttributes, _transform)                                           \
    VEKPRT_IMPLEMENT_CHILDREN(Self, /* not const */)

#endif
