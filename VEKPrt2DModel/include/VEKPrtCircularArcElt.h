/// \file
/// A part of a circle.
#ifndef VEKPrtCircularArcElt_H
#define VEKPrtCircularArcElt_H

#include "VEKMathPoint2D.h"
#include "VEKPrt2DModelExport.h"
#include "VEKPrtFillAttributes.h"
#include "VEKPrtGraphicPrimitiveElt.h"
#include "VEKPrtStrokeAttributes.h"
#include "VEKPrtTransformAttributes.h"

extern VEKPRT2DMODEL_API VEKMetaClass* meta_object__20VEKPrtCircularArcElt;

/// Centre, radius and two angles, stored as given.
///
/// This project's consumers read degrees, counter-clockwise from the start to the end angle, and a full
/// circle where these are equal; a filled arc is closed by its chord.
class VEKPRT2DMODEL_API VEKPrtCircularArcElt : public VEKPrtGraphicPrimitiveElt {
public:
    VEKPrtCircularArcElt();
    VEKPrtCircularArcElt(const VEKMathPoint2D& iCenter, double iRadius, float iStartAngle, float iEndAngle);
    VEKPrtCircularArcElt(const VEKPrtCircularArcElt& iOther);
    ~VEKPrtCircularArcElt() override;
    VEKPrtCircularArcElt& operator=(const VEKPrtCircularArcElt& iOther);

    VEKPRT_DECLARE_META_FAMILY

    /// \copydoc VEKPrtRectangleElt::Duplicate
    void Duplicate(VEKPrtGraphicPrimitiveElt*& oCopy) override;

    virtual void SetCenter(const VEKMathPoint2D& iCenter);
    virtual void GetCenter(VEKMathPoint2D& oCenter) const;
    virtual void SetRadius(double iRadius);
    virtual void GetRadius(double& oRadius) const;
    virtual void SetStartAngle(float iStartAngle);
    virtual void GetStartAngle(float& oStartAngle) const;
    virtual void SetEndAngle(float iEndAngle);
    virtual void GetEndAngle(float& oEndAngle) const;
    virtual void SetParameters(const VEKMathPoint2D& iCenter, double iRadius, float iStartAngle,
                               float iEndAngle);
    virtual void GetParameters(VEKMathPoint2D& oCenter, double& oRadius, float& oStartAngle,
                               float& oEndAngle) const;
    virtual void SetDrawStyle(VEKPrtDrawStyle iStyle);
    virtual void GetDrawStyle(VEKPrtDrawStyle& oStyle) const;
    virtual void SetStrokeAttributes(const VEKPrtStrokeAttributes& iAttributes);
    virtual void GetStrokeAttributes(VEKPrtStrokeAttributes& oAttributes) const;
    virtual void SetFillAttributes(const VEKPrtFillAttributes& iAttributes);
    virtual void GetFillAttributes(VEKPrtFillAttributes& oAttributes) const;
    virtual void SetTransformAttributes(const VEKPrtTransformAttributes& iAttributes);
    virtual void GetTransformAttributes(VEKPrtTransformAttributes& oAttributes) const;

private:
    VEKPRT2DMODEL_LOCAL void CopyOwn(const VEKPrtCircularArcElt& iOther);

    VEKMathPoint2D _center{0.0, 0.0};
    double _radius = 0.0;
    float _startAngle = 0.0F;
    float _endAngle = 0.0F;
    VEKPrtDrawStyle _drawStyle = VEKPrtDrawOutline;
    VEKPrtStrokeAttributes _stroke;
    VEKPrtFillAttributes _fill;
    VEKPrtTransformAttributes _transform;
};

#endif
