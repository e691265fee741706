/// \file
/// A string of text at a position.
#ifndef VEKPrtTextElt_H
#define VEKPrtTextElt_H

#include "VEKMathPoint2D.h"
#include "VEKPrt2DModelExport.h"
#include "VEKPrtFillAttributes.h"
#include "VEKPrtGraphicPrimitiveElt.h"
#include "VEKPrtStrokeAttributes.h"
#include "VEKPrtTextAttributes.h"
#include "VEKPrtTransformAttributes.h"
#include "VEKUnicodeString.h"

extern VEKPRT2DMODEL_API VEKMetaClass* meta_object__13VEKPrtTextElt;

/// A string and its position, with records for stroke, fill, text and transform.
///
/// A new text has the draw style of a new shape, VEKPrtDrawOutline: its letters are outlined, not filled.
class VEKPRT2DMODEL_API VEKPrtTextElt : public VEKPrtGraphicPrimitiveElt {
public:
    VEKPrtTextElt();
    VEKPrtTextElt(const VEKMathPoint2D& iPosition, const VEKUnicodeString& iText);
    VEKPrtTextElt(const VEKPrtTextElt& iOther);
    ~VEKPrtTextElt() override;
    VEKPrtTextElt& operator=(const VEKPrtTextElt& iOther);

    VEKPRT_DECLARE_META_FAMILY

    /// The copy shares the fill's pattern image, with a reference of its own, and borrows the same font.
    void Duplicate(VEKPrtGraphicPrimitiveElt*& oCopy) override;

    virtual void SetPosition(const VEKMathPoint2D& iPosition);
    virtual void GetPosition(VEKMathPoint2D& oPosition) const;
    virtual void SetText(const VEKUnicodeString& iText);
    virtual void GetText(VEKUnicodeString& oText) const;
    virtual void SetParameters(const VEKMathPoint2D& iPosition, const VEKUnicodeString& iText);
    virtual void GetParameters(VEKMathPoint2D& oPosition, VEKUnicodeString& oText) const;
    virtual void SetDrawStyle(VEKPrtDrawStyle iStyle);
    virtual void GetDrawStyle(VEKPrtDrawStyle& oStyle) const;
    virtual void SetStrokeAttributes(const VEKPrtStrokeAttributes& iAttributes);
    virtual void GetStrokeAttributes(VEKPrtStrokeAttributes& oAttributes) const;
    virtual void SetFillAttributes(const VEKPrtFillAttributes& iAttributes);
    virtual void GetFillAttributes(VEKPrtFillAttributes& oAttributes) const;
    virtual void SetTextAttributes(const VEKPrtTextAttributes& iAttributes);
    virtual void GetTextAttributes(VEKPrtTextAttributes& oAttributes) const;
    virtual void SetTransformAttributes(const VEKPrtTransformAttributes& iAttributes);
    virtual void GetTransformAttributes(VEKPrtTransformAttributes& oAttributes) const;

private:
    VEKPRT2DMODEL_LOCAL void CopyOwn(const VEKPrtTextElt& iOther);

    VEKMathPoint2D _position{0.0, 0.0};
    VEKUnicodeString _text;
    VEKPrtDrawStyle _drawStyle = VEKPrtDrawOutline;
    VEKPrtStrokeAttributes _stroke;
    VEKPrtFillAttributes _fill;
    VEKPrtTextAttributes _textAttributes;
    VEKPrtTransformAttributes _transform;
};

#endif
