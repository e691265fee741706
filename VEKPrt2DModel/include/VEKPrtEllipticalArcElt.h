/// \file
/// A part of an ellipse.
#ifndef VEKPrtEllipticalArcElt_H
#define VEKPrtEllipticalArcElt_H

#include "VEKMathPoint2D.h"
#include "VEKPrt2DModelExport.h"
#include "VEKPrtFillAttributes.h"
#include "VEKPrtGraphicPrimitiveElt.h"
#include "VEKPrtStrokeAttributes.h"
#include "VEKPrtTransformAttributes.h"

extern VEKPRT2DMODEL_API VEKMetaClass* meta_object__22VEKPrtEllipticalArcElt;

/// Centre, two radii, two angles, and the angle by which the horizontal axis is rotated (the slope).
///
/// This project's consumers read the angles as those of VEKPrtCircularArcElt, measured as parameters of the
/// ellipse from its rotated horizontal axis.
class VEKPRT2DMODEL_API VEKPrtEllipticalArcElt : public VEKPrtGraphicPrimitiveElt {
public:
    VEKPrtEllipticalArcElt();

    /// Here, in SetParameters and in GetParameters the slope comes last, after the angles.
    VEKPrtEllipticalArcElt(const VEKMathPoint2D& iCenter, double iHorzRadius, double iVertRadius,
                           float iStartAngle, float iEndAngle, float iSlope);
    VEKPrtEllipticalArcElt(const VEKPrtEllipticalArcElt& iOther);
    ~VEKPrtEllipticalArcElt() override;
    VEKPrtEllipticalArcElt& operator=(const VEKPrtEllipticalArcElt& iOther);

    VEKPRT_DECLARE_META_FAMILY

    /// \copydoc VEKPrtRectangleElt::Duplicate
    void Duplicate(VEKPrtGraphicPrimitiveElt*& oCopy) override;

    virtual void SetCenter(const VEKMathPoint2D& iCenter);
    virtual void GetCenter(VEKMathPoint2D& oCenter) const;
    virtual void SetHorzRadius(double iHorzRadius);
    virtual void GetHorzRadius(double& oHorzRadius) const;
    virtual void SetVertRadius(double iVertRadius);
    virtual void GetVertRadius(double& oVertRadius) const;
    virtual void SetStartAngle(float iStartAngle);
    virtual void GetStartAngle(float& oStartAngle) const;
    virtual void SetEndAngle(float iEndAngle);
    virtual void GetEndAngle(float& oEndAngle) const;
    virtual void SetSlope(float iSlope);
    virtual void GetSlope(float& oSlope) const;
    virtual void SetParameters(const VEKMathPoint2D& iCenter, double iHorzRadius, double iVertRadius,
                               float iStartAngle, float iEndAngle, float iSlope);
    virtual void GetParameters(VEKMathPoint2D& oCenter, double& oHorzRadius, double& oVertRadius,
                               float& oStartAngle, float& oEndAngle, float& oSlope) const;
    virtual void SetDrawStyle(VEKPrtDrawStyle iStyle);
    virtual void GetDrawStyle(VEKPrtDrawStyle& oStyle) const;
    virtual void SetStrokeAttributes(const VEKPrtStrokeAttributes& iAttributes);
    virtual void GetStrokeAttributes(VEKPrtStrokeAttributes& oAttributes) const;
    virtual void SetFillAttributes(const VEKPrtFillAttributes& iAttributes);
    virtual void GetFillAttributes(VEKPrtFillAttributes& oAttributes) const;
    virtual void SetTransformAttributes(const VEKPrtTransformAttributes& iAttributes);
    virtual void GetTransformAttributes(VEKPrtTransformAttributes& oAttributes) const;

private:
    VEKPRT2DMODEL_LOCAL void CopyOwn(const VEKPrtEllipticalArcElt& iOther);

    VEKMathPoint2D _center{0.0, 0.0};
    double _horzRadius = 0.0;
    double _vertRadius = 0.0;
    float _startAngle = 0.0F;
    float _endAngle = 0.0F;
    float _slope = 0.0F;
    VEKPrtDrawStyle _drawStyle = VEKPrtDrawOutline;
    VEKPrtStrokeAttributes _stroke;
    VEKPrtFillAttributes _fill;
    VEKPrtTransformAttributes _transform;
};

#endif
