// A raster picture placed in a drawing.
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
/// Holds one reference on the pixel image, taken on every store and given back on replacement (but see
/// SetParameters) and destruction.  Copies share the image.
class VEKPRT2DMODEL_API VEKPrtBitmapImageElt : public VEKPrtGraphicPrimitiveElt {
public:
    VEKPrtBitmapImageElt();

    /// Takes its own reference on \p iImage, which may be null; narrows the orientation to float.
    VEKPrtBitmapImageElt(const VEKMathPoint2D& iOrigin, double iWidth, double iHeight, double iOrientation,
                         VEKPixelImage* iImage);
    VEKPrtBitmapImageElt(const VEKPrtBitmapImageElt& iOther);
    ~VEKPrtBitmapImageElt() override;
    VEKPrtBitmapImageElt& operator=(const VEKPrtBitmapImageElt& iOther);

    VEKPRT_DECLARE_META_FAMILY

    /// The copy has a pixel image of its own; it shares the source's where that cannot be copied.
    void Duplicate(VEKPrtGraphicPrimitiveElt*& oCopy) override;

    virtual void SetOrigin(const VEKMathPoint2D& iOrigin);
    virtual void GetOrigin(VEKMathPoint2D& oOrigin) const;
    virtual void SetSize(double iWidth, double iHeight);
    virtual void GetSize(double& oWidth, double& oHeight) const;
    virtual void SetOrientation(float iOrientation);
    virtual void GetOrientation(float& oOrientation) const;

    /// Takes its own reference on \p iImage, which may be null, and gives back the one it had; the
    /// image already held keeps its count.
    virtual void SetPixelImage(VEKPixelImage* iImage);

    /// Lends the image: no reference is added.
    virtual void GetPixelImage(VEKPixelImage*& oImage) const;

    /// Stores all but \p iOrientation, which is ignored: the orientation stays.
    ///
    /// Takes its own reference on \p iImage, which may be null, but does not give back the one on a different
    /// image held before: that image keeps a reference that is never released.  The image already held keeps
    /// its count.
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
