// What the cells of the specimen sheet are drawn with.
#ifndef Sheet_H
#define Sheet_H

#include "Specimen.h"
#include "VEKPrtGroupElt.h"
#include "VEKPrtImageElt.h"
#include "VEKPrtLineElt.h"
#include "VEKPrtTextElt.h"
#include "VEKRef.h"

/// Indices into the page's colour table.
struct Palette {
    unsigned ink, grey, faint, red, teal, ochre, blue, paper;
};

VEKPrtStrokeAttributes Stroke(unsigned iColour, double iWidth);
VEKPrtFillAttributes Fill(unsigned iColour);

/// A cell: a group whose children have coordinates of the cell, x from 0 to 50, y from 0 to 42.
class Cell {
public:
    static constexpr double width = 50.0;
    static constexpr double height = 42.0;

    Cell(const Specimen& iFonts, const Palette& iPalette, VEKPrtGroupElt& ioGroup)
        : palette(iPalette), fonts(iFonts), group(ioGroup) {}

    template <class Element>
    void Add(const VEKRef<Element>& iElement) const {
        group.AddChild(iElement.Get());
    }
    /// Sets stroke, fill and draw style, and adds the element.
    template <class Element>
    void AddPainted(const VEKRef<Element>& iElement, unsigned iStroke, unsigned iFill,
                    VEKPrtDrawStyle iStyle = VEKPrtDrawBoth, double iWidth = 0.5) const {
        iElement->SetStrokeAttributes(Stroke(iStroke, iWidth));
        iElement->SetFillAttributes(Fill(iFill));
        iElement->SetDrawStyle(iStyle);
        Add(iElement);
    }
    template <class Element>
    void AddStroked(const VEKRef<Element>& iElement, unsigned iStroke, double iWidth = 0.5) const {
        iElement->SetStrokeAttributes(Stroke(iStroke, iWidth));
        Add(iElement);
    }

    VEKRef<VEKPrtLineElt> Line(double iX1, double iY1, double iX2, double iY2, unsigned iColour,
                               double iWidth = 0.15) const;
    /// Text as it is set on the sheet: filled, in ink.
    VEKRef<VEKPrtTextElt> Text(double iX, double iY, const char* iText, double iHeight = 2.2,
                               VEKPrintTextAttribute iAnchor = VEKPrintTextAnchorBaselineLeft) const;
    /// Changes one attribute of a text that was added already.
    template <class Change>
    static void Retouch(const VEKRef<VEKPrtTextElt>& ioText, Change iChange) {
        VEKPrtTextAttributes attributes;
        ioText->GetTextAttributes(attributes);
        iChange(attributes);
        ioText->SetTextAttributes(attributes);
    }
    /// A cross that marks a point of the construction.
    void Mark(double iX, double iY) const;

    const Palette& palette;
    const Specimen& fonts;
    VEKPrtGroupElt& group;
};

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
