/// \file
/// A raster picture placed in a drawing.
#ifndef VEKPrtBitmapImageElt_H
#define VEKPrtBitmapImageElt_H

#include "VEKMathPoint2D.h"
#include "VEKPrt2DModelExport.h"
#include "VEKPrtGraphicPrimitiveElt.h"
#include "VEKPrtTransformAttributes.h"

class VEKPixelImage;

extern VEKPRT2DMODEL_API VEKMetaClass* meta_object__20VEKPrtBitmapImageElt;

/// A pixel image with origin, width, height and orientation.
///
/// This project's consumers place the lower left corner at the origin, and rotate the bitmap about it by the
/// orientation, in degrees, counter-clockwise.
///
/// Holds one reference on the pixel image, and releases it on destruction and when the image is replaced (but
/// see SetParameters).  Copies share the image.
class VEKPRT2DMODEL_API VEKPrtBitmapImageElt : public VEKPrtGraphicPrimitiveElt {
public:
    VEKPrtBitmapImageElt();

    /// Takes its own reference on \p iImage, which may be null, and stores the orientation as a float.
    VEKPrtBitmapImageElt(const VEKMathPoint2D& iOrigin, double iWidth, double iHeight, double iOrientation,
                         VEKPixelImage* iImage);
    VEKPrtBitmapImageElt(const VEKPrtBitmapImageElt& iOther);
    ~VEKPrtBitmapImageElt() override;
    VEKPrtBitmapImageElt& operator=(const VEKPrtBitmapImageElt& iOther);

    VEKPRT_DECLARE_META_FAMILY

    /// The copy has a pixel image of its own, or shares this element's where that cannot be copied.
    void Duplicate(VEKPrtGraphicPrimitiveElt*& oCopy) override;

    virtual void SetOrigin(const VEKMathPoint2D& iOrigin);
    virtual void GetOrigin(VEKMathPoint2D& oOrigin) const;
    virtual void SetSize(double iWidth, double iHeight);
    virtual void GetSize(double& oWidth, double& oHeight) const;
    virtual void SetOrientation(float iOrientation);
    virtual void GetOrientation(float& oOrientation) const;

    /// Releases the image held before and takes its own reference on \p iImage, which may be null; the image
    /// already held keeps its count.
    virtual void SetPixelImage(VEKPixelImage* iImage);

    /// Lends the image: no reference is added.
    virtual void GetPixelImage(VEKPixelImage*& oImage) const;

    /// Stores everything except \p iOrientation: use SetOrientation.
    ///
    /// Takes its own reference on \p iImage, which may be null; the image already held keeps its count.
    ///
    /// \warning A different image held before is not released, so it is never freed.  Replace an image by
    /// SetPixelImage.
    virtual void SetParameters(const VEKMathPoint2D& iOrigin, double iWidth, double iHeight,
                               double iOrientation, VEKPixelImage* iImage);

    /// Lends the image: no reference is added.
    virtual void GetParameters(VEKMathPoint2D& oOrigin, double& oWidth, double& oHeight, double& oOrientation,
                               VEKPixelImage*& oImage) const;
    virtual void SetTransformAttributes(const VEKPrtTransformAttributes& iAttributes);
    virtual void GetTransformAttributes(VEKPrtTransformAttributes& oAttributes) const;

private:
    VEKPRT2DMODEL_LOCAL void CopyOwn(const VEKPrtBitmapImageElt& iOther);

    VEKMathPoint2D _origin{0.0, 0.0};
    double _width = 0.0;
    double _height = 0.0;
    float _orientation = 0.0F;
    VEKPixelImage* _image = nullptr;
    VEKPrtTransformAttributes _transform;
};

#endif
