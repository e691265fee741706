#include "SameDrawing.h"

#include <algorithm>
#include <cstring>

#include "VEKListPtrVEKPrtGraphicPrimitiveElt.h"
#include "VEKPrtColourTable.h"
#include "VEKPrtGroupElt.h"
#include "VEKPrtImageElt.h"
#include "VEKPrtLineElt.h"
#include "VEKPrtPolyPolygonElt.h"
#include "VEKPrtPolylineElt.h"
#include "VEKPrtRectangleElt.h"
#include "VEKPrtTextElt.h"

namespace {

using ElementList = VEKListPtrVEKPrtGraphicPrimitiveElt;

VEKPrtGraphicPrimitiveElt& ChildAt(const ElementList& iList, int iPosition) {
    return *static_cast<VEKPrtGraphicPrimitiveElt*>(iList[iPosition]);
}

/// Null for an element that is no container, or one without a list.
ElementList* ChildrenOf(VEKPrtGraphicPrimitiveElt& ioElement) {
    ElementList* children = nullptr;
    if (auto* const group = dynamic_cast<VEKPrtGroupElt*>(&ioElement))
        group->GetChildren(children);
    else if (const auto* const image = dynamic_cast<VEKPrtImageElt*>(&ioElement))
        image->GetChildren(children);
    return children;
}

template <class Element>
VEKPrtStrokeAttributes StrokeOf(const Element& iElement) {
    VEKPrtStrokeAttributes stroke;
    iElement.GetStrokeAttributes(stroke);
    return stroke;
}

template <class Element>
bool IsSameFill(const Element& iLeft, const Element& iRight) {
    VEKPrtFillAttributes left;
    VEKPrtFillAttributes right;
    VEKPrtDrawStyle leftStyle = VEKPrtDrawOutline;
    VEKPrtDrawStyle rightStyle = VEKPrtDrawOutline;
    iLeft.GetFillAttributes(left);
    iRight.GetFillAttributes(right);
    iLeft.GetDrawStyle(leftStyle);
    iRight.GetDrawStyle(rightStyle);
    return left == right && leftStyle == rightStyle;
}

bool IsSameTable(const VEKPrtColourTable* iLeft, const VEKPrtColourTable* iRight) {
    if (!iLeft || !iRight) return iLeft == iRight;
    int count = 0;
    int otherCount = 0;
    iLeft->GetColourCount(count);
    iRight->GetColourCount(otherCount);
    if (count != otherCount) return false;
    for (unsigned int i = 0; i < static_cast<unsigned int>(count); ++i) {
        unsigned char left[3] = {};
        unsigned char right[3] = {};
        if (iLeft->GetColour(i, left[0], left[1], left[2]) != 1 ||
            iRight->GetColour(i, right[0], right[1], right[2]) != 1 || std::memcmp(left, right, 3) != 0)
            return false;
    }
    return true;
}

bool IsSame(VEKPrtImageElt& ioLeft, VEKPrtImageElt& ioRight) {
    VEKMathPoint2D origins[2];
    double widths[2] = {};
    double heights[2] = {};
    VEKPrtImageUnits units[2] = {};
    VEKPrtColourTable* tables[2] = {};
    VEKPrtImageElt* const images[2] = {&ioLeft, &ioRight};
    for (int i = 0; i < 2; ++i) {
        images[i]->GetOrigin(origins[i]);
        images[i]->GetSize(widths[i], heights[i]);
        images[i]->GetUnits(units[i]);
        images[i]->GetColourTable(tables[i]);
    }
    return origins[0] == origins[1] && widths[0] == widths[1] && heights[0] == heights[1] &&
           units[0] == units[1] && IsSameTable(tables[0], tables[1]);
}

bool IsSame(const VEKPrtGroupElt& iLeft, const VEKPrtGroupElt& iRight) {
    VEKPrtGroupAttributes left;
    VEKPrtGroupAttributes right;
    VEKPrintLinkURI leftLink;
    VEKPrintLinkURI rightLink;
    iLeft.GetGroupAttributes(left);
    iRight.GetGroupAttributes(right);
    left.GetLinkURI(leftLink);
    right.GetLinkURI(rightLink);
    return leftLink == rightLink;
}

bool IsSame(const VEKPrtPolyPolygonElt& iLeft, const VEKPrtPolyPolygonElt& iRight) {
    double* points[2] = {};
    int* counts[2] = {};
    int polygons[2] = {};
    iLeft.GetPoints(points[0], counts[0], polygons[0]);
    iRight.GetPoints(points[1], counts[1], polygons[1]);
    if (polygons[0] != polygons[1] || !std::equal(counts[0], counts[0] + polygons[0], counts[1]))
        return false;
    long total = 0;
    for (int i = 0; i < polygons[0]; ++i)
        total += counts[0][i];
    return std::equal(points[0], points[0] + 2 * total, points[1]) && IsSameFill(iLeft, iRight);
}

bool IsSame(const VEKPrtPolylineElt& iLeft, const VEKPrtPolylineElt& iRight) {
    double* points[2] = {};
    int counts[2] = {};
    iLeft.GetPoints(points[0], counts[0]);
    iRight.GetPoints(points[1], counts[1]);
    return counts[0] == counts[1] && std::equal(points[0], points[0] + 2L * counts[0], points[1]) &&
           StrokeOf(iLeft) == StrokeOf(iRight);
}

bool IsSame(const VEKPrtLineElt& iLeft, const VEKPrtLineElt& iRight) {
    VEKMathPoint2D starts[2];
    VEKMathPoint2D ends[2];
    iLeft.GetParameters(starts[0], ends[0]);
    iRight.GetParameters(starts[1], ends[1]);
    return starts[0] == starts[1] && ends[0] == ends[1] && StrokeOf(iLeft) == StrokeOf(iRight);
}

bool IsSame(const VEKPrtRectangleElt& iLeft, const VEKPrtRectangleElt& iRight) {
    VEKMathPoint2D first[2];
    VEKMathPoint2D second[2];
    iLeft.GetPoints(first[0], second[0]);
    iRight.GetPoints(first[1], second[1]);
    return first[0] == first[1] && second[0] == second[1] && StrokeOf(iLeft) == StrokeOf(iRight) &&
           IsSameFill(iLeft, iRight);
}

bool IsSame(const VEKPrtTextElt& iLeft, const VEKPrtTextElt& iRight) {
    VEKMathPoint2D positions[2];
    VEKUnicodeString texts[2];
    VEKPrtTextAttributes attributes[2];
    iLeft.GetParameters(positions[0], texts[0]);
    iRight.GetParameters(positions[1], texts[1]);
    iLeft.GetTextAttributes(attributes[0]);
    iRight.GetTextAttributes(attributes[1]);
    return positions[0] == positions[1] && texts[0] == texts[1] && attributes[0] == attributes[1] &&
           IsSameFill(iLeft, iRight);
}

/// Compares as Element when both are; false when not.
template <class Element>
bool AreSame(VEKPrtGraphicPrimitiveElt& ioLeft, VEKPrtGraphicPrimitiveElt& ioRight) {
    auto* const left = dynamic_cast<Element*>(&ioLeft);
    auto* const right = dynamic_cast<Element*>(&ioRight);
    return left && right && IsSame(*left, *right);
}

} // namespace

bool IsSameDrawing(VEKPrtGraphicPrimitiveElt& ioLeft, VEKPrtGraphicPrimitiveElt& ioRight) {
    const bool same = AreSame<VEKPrtImageElt>(ioLeft, ioRight) || AreSame<VEKPrtGroupElt>(ioLeft, ioRight) ||
                      AreSame<VEKPrtPolyPolygonElt>(ioLeft, ioRight) ||
                      AreSame<VEKPrtPolylineElt>(ioLeft, ioRight) ||
                      AreSame<VEKPrtLineElt>(ioLeft, ioRight) ||
                      AreSame<VEKPrtRectangleElt>(ioLeft, ioRight) || AreSame<VEKPrtTextElt>(ioLeft, ioRight);
    if (!same) return false;
    const ElementList* const left = ChildrenOf(ioLeft);
    const ElementList* const right = ChildrenOf(ioRight);
    const int count = left ? left->Size() : 0;
    if (count != (right ? right->Size() : 0)) return false;
    for (int i = 1; i <= count; ++i)
        if (!IsSameDrawing(ChildAt(*left, i), ChildAt(*right, i))) return false;
    return true;
}

int CountElements(VEKPrtGraphicPrimitiveElt& ioElement) {
    int count = 1;
    if (const ElementList* const children = ChildrenOf(ioElement)) {
        for (int i = 1; i <= children->Size(); ++i)
            count += CountElements(ChildAt(*children, i));
    }
    return count;
}
