// What the cells of the specimen sheet are drawn with.
#ifndef Cell_H
#define Cell_H

#include <string>

#include "Specimen.h"
#include "VEKPrtGroupElt.h"
#include "VEKPrtImageElt.h"
#include "VEKPrtLineElt.h"
#include "VEKPrtTextElt.h"
#include "VEKRef.h"

using vekprt::Make;
using vekprt::VEKRef;

using Point = VEKMathPoint2D;

constexpr double pi = 3.14159265358979323846;

/// Indices into the page's colour table.
enum Colour : unsigned { ink, grey, faint, red, teal, ochre, blue, paper };

VEKPrtStrokeAttributes Stroke(Colour iColour, double iWidth);
VEKPrtFillAttributes Fill(Colour iColour);

/// The record with one more value set.
template <class Record, class Argument>
Record With(Record iRecord, void (Record::*iSet)(Argument), Argument iValue) {
    (iRecord.*iSet)(iValue);
    return iRecord;
}

/// The element, with stroke, fill and draw style set.
template <class Element>
VEKRef<Element> Painted(const VEKRef<Element>& iElement, const VEKPrtStrokeAttributes& iStroke,
                        const VEKPrtFillAttributes& iFill, VEKPrtDrawStyle iStyle = VEKPrtDrawBoth) {
    iElement->SetStrokeAttributes(iStroke);
    iElement->SetFillAttributes(iFill);
    iElement->SetDrawStyle(iStyle);
    return iElement;
}

/// A translation, with a rotation and a scale inside it.
VEKPrtTransformAttributes Place(double iX, double iY, float iAngle = 0.0F, double iScale = 1.0);

/// A cell: a group whose children have coordinates of the cell, x from 0 to 50, y from 0 to 42.
class Cell {
public:
    static constexpr double width = 50.0;

    Cell(const Specimen& iFonts, VEKPrtGroupElt& ioGroup) : fonts(iFonts), group(ioGroup) {}

    template <class Element>
    void Add(const VEKRef<Element>& iElement) const {
        group.AddChild(iElement.Get());
    }
    template <class Element>
    void AddPainted(const VEKRef<Element>& iElement, Colour iStroke, Colour iFill,
                    VEKPrtDrawStyle iStyle = VEKPrtDrawBoth, double iWidth = 0.5) const {
        Add(Painted(iElement, Stroke(iStroke, iWidth), Fill(iFill), iStyle));
    }
    template <class Element>
    void AddStroked(const VEKRef<Element>& iElement, const VEKPrtStrokeAttributes& iStroke) const {
        iElement->SetStrokeAttributes(iStroke);
        Add(iElement);
    }

    void Line(double iX1, double iY1, double iX2, double iY2, const VEKPrtStrokeAttributes& iStroke) const;
    void Line(double iX1, double iY1, double iX2, double iY2, Colour iColour, double iWidth = 0.15) const {
        Line(iX1, iY1, iX2, iY2, Stroke(iColour, iWidth));
    }
    /// Text as it is set on the sheet: filled, in ink.
    VEKRef<VEKPrtTextElt> Text(double iX, double iY, const std::string& iText, double iHeight = 2.2,
                               VEKPrintTextAttribute iAnchor = VEKPrintTextAnchorBaselineLeft) const;
    VEKRef<VEKPrtTextElt> Centred(double iX, double iY, const std::string& iText,
                                  double iHeight = 2.2) const {
        return Text(iX, iY, iText, iHeight, VEKPrintTextAnchorBaselineCentre);
    }
    VEKRef<VEKPrtTextElt> Right(double iX, double iY, const std::string& iText, double iHeight = 2.2) const {
        return Text(iX, iY, iText, iHeight, VEKPrintTextAnchorBaselineRight);
    }
    /// A cross that marks a point of the construction.
    void Mark(double iX, double iY) const;

    const Specimen& fonts;
    VEKPrtGroupElt& group;
};

/// Changes one attribute of a text that was added already.
template <class Argument>
void Retouch(const VEKRef<VEKPrtTextElt>& ioText, void (VEKPrtTextAttributes::*iSet)(Argument),
             Argument iValue) {
    VEKPrtTextAttributes attributes;
    ioText->GetTextAttributes(attributes);
    (attributes.*iSet)(iValue);
    ioText->SetTextAttributes(attributes);
}

/// What a cell shows: a heading, the class or record by its name, and the drawing.
struct CellContent {
    const char* id;
    const char* heading;
    const char* name;
    void (*draw)(const Cell& iCell);
};

/// The cells of the sheet, row by row, ended by one without a drawing.
extern const CellContent g_elementCells[];
extern const CellContent g_attributeCells[];

#endif
