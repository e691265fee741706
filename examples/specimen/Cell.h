// The tools that the cells of the specimen sheet are drawn with.
#ifndef Cell_H
#define Cell_H

#include <initializer_list>
#include <string>
#include <type_traits>
#include <vector>

#include "Specimen.h"
#include "VEKPrtElements.h"

using vekprt::Make;
using vekprt::VEKRef;

using Point = VEKMathPoint2D;
using Vector = VEKMathVector2D;
using StrokeAttributes = VEKPrtStrokeAttributes;
using FillAttributes = VEKPrtFillAttributes;
using TextAttributes = VEKPrtTextAttributes;
using MarkerAttributes = VEKPrtMarkerAttributes;
using Transform = VEKPrtTransformAttributes;
using Anchor = VEKPrintTextAttribute;

constexpr double pi = 3.14159265358979323846;
constexpr Anchor left = VEKPrintTextAnchorBaselineLeft, centre = VEKPrintTextAnchorBaselineCentre,
                 right = VEKPrintTextAnchorBaselineRight, middleLeft = VEKPrintTextAnchorMiddleLeft,
                 middleCentre = VEKPrintTextAnchorMiddleCentre, middleRight = VEKPrintTextAnchorMiddleRight;

/// Indices into the page's colour table.
enum Colour : unsigned { ink, grey, faint, red, teal, ochre, blue, paper };

template <class Record>
Record With(const Record& iRecord) {
    return iRecord;
}
/// The record after some of its values are set: pairs of a setter and its argument.
template <class Record, class Result, class Argument, class... Rest>
Record With(Record iRecord, Result (Record::*iSet)(Argument), std::common_type_t<Argument> iValue,
            const Rest&... iRest) {
    (iRecord.*iSet)(iValue);
    return With(iRecord, iRest...);
}

inline StrokeAttributes Stroke(Colour iColour, double iWidth = 0.5) {
    return With(StrokeAttributes(), &StrokeAttributes::SetStrokeColourIndex, iColour,
                &StrokeAttributes::SetStrokeWidth, iWidth);
}
inline FillAttributes Fill(Colour iColour) {
    return With(FillAttributes(), &FillAttributes::SetFillColourIndex, iColour);
}
/// A translation, with a rotation and a scale inside it.
inline Transform Place(double iX, double iY, float iAngle = 0.0F, double iScale = 1.0) {
    Transform transform = With(Transform(), &Transform::AddTranslation, Vector(iX, iY));
    if (iAngle != 0.0F) transform.AddRotation(iAngle);
    if (iScale == 1.0) return transform;
    return With(transform, &Transform::AddScaleX, iScale, &Transform::AddScaleY, iScale);
}

template <class Element>
void Set(Element&) {}
/// Sets records of the element by their types.  With a fill the outline is drawn, too, unless a draw style
/// follows.
template <class Element, class Record, class... Rest>
void Set(Element& ioElement, const Record& iRecord, const Rest&... iRest) {
    if constexpr (std::is_same_v<Record, StrokeAttributes>) ioElement.SetStrokeAttributes(iRecord);
    if constexpr (std::is_same_v<Record, FillAttributes>) ioElement.SetFillAttributes(iRecord);
    if constexpr (std::is_same_v<Record, FillAttributes>) ioElement.SetDrawStyle(VEKPrtDrawBoth);
    if constexpr (std::is_same_v<Record, VEKPrtDrawStyle>) ioElement.SetDrawStyle(iRecord);
    if constexpr (std::is_same_v<Record, Transform>) ioElement.SetTransformAttributes(iRecord);
    Set(ioElement, iRest...);
}

/// Adds an element with such records to a container.
template <class Container, class Element, class... Records>
void AddTo(Container& ioContainer, const VEKRef<Element>& iElement, const Records&... iRecords) {
    Set(*iElement, iRecords...);
    ioContainer.AddChild(iElement.Get());
}

inline VEKRef<VEKPrtRectangleElt> Box(double iX1, double iY1, double iX2, double iY2) {
    return Make<VEKPrtRectangleElt>(Point(iX1, iY1), Point(iX2, iY2));
}
inline VEKRef<VEKPrtCircleElt> Circle(double iX, double iY, double iRadius) {
    return Make<VEKPrtCircleElt>(Point(iX, iY), iRadius);
}

struct Note {
    double x, y;
    std::string text;
    Anchor anchor = left;
    double height = 2.2;
};

/// A group whose children have coordinates of the cell, x from 0 to 50, y from 0 to 42.
class Cell {
public:
    static constexpr double width = 50.0;

    Cell(const Specimen& iFonts, VEKPrtGroupElt& ioGroup) : fonts(iFonts), group(ioGroup) {}

    template <class Element, class... Records>
    void Add(const VEKRef<Element>& iElement, const Records&... iRecords) const {
        AddTo(group, iElement, iRecords...);
    }
    /// Adds a group, and returns it as a cell to draw into.
    Cell Group(const Transform& iTransform) const {
        const auto inner = Make<VEKPrtGroupElt>();
        Add(inner, iTransform);
        return {fonts, *inner};
    }
    void Line(const Point& iFrom, const Point& iTo, const StrokeAttributes& iStroke) const {
        Add(Make<VEKPrtLineElt>(iFrom, iTo), iStroke);
    }
    /// Adds a filled text in ink, after \p iChanges to its attributes: pairs of a setter and its argument.
    template <class... Changes>
    VEKRef<VEKPrtTextElt> Text(const Note& iNote, const Changes&... iChanges) const {
        auto text = Make<VEKPrtTextElt>(Point(iNote.x, iNote.y), VEKUnicodeString(iNote.text.c_str()));
        const auto attributes =
            With(TextAttributes(), &TextAttributes::SetFont, fonts.sans.get(), &TextAttributes::SetHeight,
                 iNote.height, &TextAttributes::SetAnchor, iNote.anchor);
        text->SetTextAttributes(With(attributes, iChanges...));
        Add(text, Stroke(ink, 0.15), Fill(ink), VEKPrtDrawInterior);
        return text;
    }
    void Texts(std::initializer_list<Note> iNotes) const {
        for (const Note& note : iNotes)
            Text(note);
    }
    /// Markers by style.
    void Marker(const Point& iPoint, int iStyle, double iSize, const StrokeAttributes& iStroke) const {
        const auto marker = Make<VEKPrtMarkerElt>(iPoint, iSize);
        marker->SetMarkerAttributes(With(MarkerAttributes(), &MarkerAttributes::SetMarkerStyle,
                                         static_cast<VEKPrintMarkerAttribute>(iStyle)));
        Add(marker, iStroke);
    }
    /// Crosses at points of the construction.
    void Marks(std::initializer_list<Point> iPoints) const {
        for (const Point& point : iPoints)
            Marker(point, VEKPrintMarkerCross, 1.6, Stroke(red, 0.15));
    }

    const Specimen& fonts;
    VEKPrtGroupElt& group;
};

/// What a cell shows: a heading, the class or setter by its name, and the drawing.
struct CellContent {
    const char* name;
    const char* heading;
    const char* subject;
    void (*draw)(const Cell& iCell);
};

/// The cells of the sheet, row by row.
std::vector<CellContent> Cells();

#endif
