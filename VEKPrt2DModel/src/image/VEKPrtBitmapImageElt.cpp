#include "VEKPrtBitmapImageElt.h"

#include "ElementProtocol.h"
#include "HeldImage.h"

VEKPRT_IMPLEMENT_META_FAMILY(VEKPrtBitmapImageElt, 20, VEKPrtGraphicPrimitiveElt)

VEKPrtBitmapImageElt::VEKPrtBitmapImageElt() = default;

VEKPrtBitmapImageElt::VEKPrtBitmapImageElt(const VEKMathPoint2D& iOrigin, double iWidth, double iHeight,
                                           double iOrientation, VEKPixelImage* iImage)
    : _origin(iOrigin), _width(iWidth), _height(iHeight), _orientation(static_cast<float>(iOrientation)) {
    vekprt::HoldImage(_image, iImage);
}

VEKPrtBitmapImageElt::VEKPrtBitmapImageElt(const VEKPrtBitmapImageElt& iOther) : VEKPrtBitmapImageElt() {
    CopyOwn(iOther);
}

VEKPrtBitmapImageElt::~VEKPrtBitmapImageElt() { vekprt::HoldImage(_image, nullptr); }

VEKPrtBitmapImageElt& VEKPrtBitmapImageElt::operator=(const VEKPrtBitmapImageElt& iOther) {
    vekprt::Assign(*this, iOther, &VEKPrtBitmapImageElt::CopyOwn);
    return *this;
}

void VEKPrtBitmapImageElt::CopyOwn(const VEKPrtBitmapImageElt& iOther) {
    _origin = iOther._origin;
    _width = iOther._width;
    _height = iOther._height;
    _orientation = iOther._orientation;
    vekprt::HoldImage(_image, iOther._image);
    _transform = iOther._transform;
}

void VEKPrtBitmapImageElt::Duplicate(VEKPrtGraphicPrimitiveElt*& oCopy) {
    auto* const copy = vekprt::DuplicateByAssignment(*this, oCopy);
    if (!copy || !_image) return;
    VEKPixelImage* const image = _image->Clone();
    if (!image) return; // the copy goes on sharing this element's image
    copy->SetPixelImage(image);
    image->Release();
}

void VEKPrtBitmapImageElt::SetOrigin(const VEKMathPoint2D& iOrigin) { _origin = iOrigin; }
void VEKPrtBitmapImageElt::GetOrigin(VEKMathPoint2D& oOrigin) const { oOrigin = _origin; }
void VEKPrtBitmapImageElt::SetSize(double iWidth, double iHeight) {
    _width = iWidth;
    _height = iHeight;
}

void VEKPrtBitmapImageElt::GetSize(double& oWidth, double& oHeight) const {
    oWidth = _width;
    oHeight = _height;
}
void VEKPrtBitmapImageElt::SetOrientation(float iOrientation) { _orientation = iOrientation; }
void VEKPrtBitmapImageElt::GetOrientation(float& oOrientation) const { oOrientation = _orientation; }

void VEKPrtBitmapImageElt::SetPixelImage(VEKPixelImage* iImage) { vekprt::HoldImage(_image, iImage); }
void VEKPrtBitmapImageElt::GetPixelImage(VEKPixelImage*& oImage) const { oImage = _image; }

// Inverted on purpose: the image already held is released (last, as this may be its only reference), and a
// different image held before is not: callers who replace an image here still own a reference on the old one.
// The orientation is ignored.
void VEKPrtBitmapImageElt::SetParameters(const VEKMathPoint2D& iOrigin, double iWidth, double iHeight,
                                         double /*iOrientation*/, VEKPixelImage* iImage) {
    VEKPixelImage* const heldAlready = iImage == _image ? iImage : nullptr;
    _origin = iOrigin;
    _width = iWidth;
    _height = iHeight;
    _image = iImage;
    if (iImage) iImage->AddRef();
    if (heldAlready) heldAlready->Release();
}

void VEKPrtBitmapImageElt::GetParameters(VEKMathPoint2D& oOrigin, double& oWidth, double& oHeight,
                                         double& oOrientation, VEKPixelImage*& oImage) const {
    oOrigin = _origin;
    oWidth = _width;
    oHeight = _height;
    oOrientation = static_cast<double>(_orientation);
    oImage = _image;
}

void VEKPrtBitmapImageElt::SetTransformAttributes(const VEKPrtTransformAttributes& iAttributes) {
    _transform = iAttributes;
}
void VEKPrtBitmapImageElt::GetTransformAttributes(VEKPrtTransformAttributes& oAttributes) const {
    oAttributes = _transform;
}
