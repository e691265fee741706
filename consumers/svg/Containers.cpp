// Elements that hold others.
#include <algorithm>
#include <cmath>

#include "Handlers.h"
#include "VEKPrtChildren.h"
#include "VEKPrtClosedFigureElt.h"
#include "VEKPrtClosedFigureRegionElt.h"
#include "VEKPrtGroupElt.h"
#include "VEKPrtImageElt.h"
#include "VEKPrtPatternElt.h"
#include "VEKPrtSymbolElt.h"

namespace vekprt::svg {

namespace {

template <class Container>
Area BoxOf(const SvgPage& iPage, const Container& iContainer) {
    VEKMathPoint2D origin;
    Area box = {};
    iContainer.GetOrigin(origin);
    iContainer.GetSize(box.width, box.height);
    box.x = origin.GetX();
    box.y = origin.GetY();
    box.map = iPage.place.map;
    return box;
}

// Not rounded to the grid: the error of a tile would grow with every repetition.
void BoxAttributes(XmlWriter& ioXml, const Area& iBox) {
    ioXml.Attribute("x", Number(iBox.x));
    ioXml.Attribute("y", Number(iBox.y));
    ioXml.Attribute("width", Number(iBox.width));
    ioXml.Attribute("height", Number(iBox.height));
}

// What covers the area, in the coordinates of iMap.
Area Covering(const Area& iArea, const Affine& iMap) {
    const Affine toLocal = iMap.Inverse() * iArea.map;
    double low[2] = {INFINITY, INFINITY}, high[2] = {-INFINITY, -INFINITY};
    for (const double x : {iArea.x, iArea.x + iArea.width}) {
        for (const double y : {iArea.y, iArea.y + iArea.height}) {
            const VEKMathPoint2D corner = toLocal(x, y);
            const double xy[2] = {corner.GetX(), corner.GetY()};
            for (int i = 0; i < 2; ++i) {
                low[i] = std::min(low[i], xy[i]);
                high[i] = std::max(high[i], xy[i]);
            }
        }
    }
    return {low[0], low[1], high[0] - low[0], high[1] - low[1], iMap};
}

template <class Container>
void WriteChildren(SvgPage& ioPage, Container& ioContainer) {
    for (VEKPrtGraphicPrimitiveElt& child : ChildrenOf(ioContainer))
        WriteElement(ioPage, child);
}

template <class Container>
void OutlineChildren(SvgPage& ioPage, PathData& ioPath, VEKPrtGraphicPrimitiveElt& ioElement,
                     const Affine& iMap) {
    auto& container = static_cast<Container&>(ioElement);
    const Affine map = iMap * Compose(TransformOf(container));
    for (VEKPrtGraphicPrimitiveElt& child : ChildrenOf(container))
        AppendToRegion(ioPage, ioPath, child, map);
}

template <class Container>
void AppendChildren(VEKPrtGraphicPrimitiveElt& ioElement,
                    std::vector<VEKPrtGraphicPrimitiveElt*>& ioChildren) {
    for (auto& child : ChildrenOf(static_cast<Container&>(ioElement)))
        ioChildren.push_back(&child);
}
template <class... Containers>
void AddWithChildren(SvgPage& ioPage) {
    AddHandlers<Containers...>(ioPage);
    ((ioPage.handlers[Containers::MetaObject()].appendChildren = &AppendChildren<Containers>), ...);
}

} // namespace

static void Write(SvgPage& ioPage, VEKPrtGraphicPrimitiveElt& ioBare) {
    SvgElement(ioPage, ioBare, "g", Placement(ioPage));
}

static void Write(SvgPage& ioPage, VEKPrtGroupElt& ioGroup) {
    const Placement placement(ioPage, TransformOf(ioGroup));
    VEKPrtGroupAttributes attributes;
    VEKPrintLinkURI uri;
    ioGroup.GetGroupAttributes(attributes);
    attributes.GetLinkURI(uri);
    const std::string link = ioPage.LinkTo(ioGroup, uri.GetURI());
    SvgElement element(ioPage, ioGroup, link.empty() ? "g" : "a", placement);
    ioPage.xml.OptionalAttribute("xlink:href", link);
    element.Content();
    WriteChildren(ioPage, ioGroup);
}

// A page on a page: its children, under its matrix and, if it has them, in its own colours.
static void Write(SvgPage& ioPage, VEKPrtImageElt& ioNestedImage) {
    VEKMath2x2Matrix matrix;
    ioNestedImage.GetMatrix(matrix);
    Placement placement(ioPage);
    if (matrix != VEKMath2x2Matrix()) placement.Add(Linear(matrix));
    SvgElement element(ioPage, ioNestedImage, "g", placement);
    element.Content();
    VEKPrtColourTable* own = nullptr;
    ioNestedImage.GetColourTable(own);
    const unsigned outerUses = ioPage.uses;
    if (own) ioPage.place.colours = own;
    WriteChildren(ioPage, ioNestedImage);
    if (own) ioPage.uses = (ioPage.uses & ~usesColours) | outerUses;
}

static void Write(SvgPage& ioPage, VEKPrtSymbolElt& ioSymbol) {
    const Placement placement(ioPage, TransformOf(ioSymbol));
    SvgElement element(ioPage, ioSymbol, "g", placement);
    const Area box = BoxOf(ioPage, ioSymbol);
    if (box.IsEmpty()) {
        element.Content();
        return WriteChildren(ioPage, ioSymbol);
    }
    const std::string clip = ioPage.NewId("clip");
    element.Attribute("clip-path", "url(#" + clip + ")").Content();
    ioPage.xml.Start("clipPath", {{"id", clip}});
    ioPage.xml.Start("rect");
    BoxAttributes(ioPage.xml, box);
    ioPage.xml.End(2);
    const unsigned outerUses = ioPage.uses;
    ioPage.place.area = box;
    WriteChildren(ioPage, ioSymbol);
    ioPage.uses = (ioPage.uses & ~usesArea) | outerUses;
}

static void Write(SvgPage& ioPage, VEKPrtPatternElt& ioPattern) {
    SvgElement element(ioPage, ioPattern, "g", Placement(ioPage));
    element.Content();
    const Affine& map = ioPage.place.map;
    const Area tile = BoxOf(ioPage, ioPattern);
    if (tile.IsEmpty() || map.Determinant() == 0.0)
        return ioPage.Warn(ioPattern, "a pattern whose box has no area");
    ioPage.uses |= usesArea;
    const Area covered = Covering(ioPage.place.area, map);
    const std::string id = ioPage.NewId("pattern");
    XmlWriter& xml = ioPage.xml;
    {
        const Placement placement(ioPage, TransformOf(ioPattern));
        xml.Start("defs");
        xml.Start("pattern", {{"id", id}, {"patternUnits", "userSpaceOnUse"}});
        BoxAttributes(xml, tile);
        xml.OptionalAttribute("patternTransform", placement.Text());
        // The content keeps the coordinates of its surroundings, not of the tile.
        xml.Start("g", {{"transform", "translate(" + Number(-tile.x) + "," + Number(-tile.y) + ")"}});
        WriteChildren(ioPage, ioPattern);
        xml.End(3);
    }
    xml.Start("rect");
    BoxAttributes(xml, covered);
    xml.Attribute("fill", "url(#" + id + ")");
    xml.End();
}

static void Write(SvgPage& ioPage, VEKPrtClosedFigureElt& ioFigure) {
    const Placement placement(ioPage, TransformOf(ioFigure));
    PathData path;
    for (VEKPrtClosedFigureRegionElt& region : ChildrenOf(ioFigure)) {
        AppendToRegion(ioPage, path, region, Affine());
        path.Close();
    }
    WritePath(ioPage, ioFigure, placement, path, AppearanceOf(ioPage, ioFigure));
}

// A region on its own has no appearance but that of its children.
static void Write(SvgPage& ioPage, VEKPrtClosedFigureRegionElt& ioRegion) {
    const Placement placement(ioPage, TransformOf(ioRegion));
    SvgElement element(ioPage, ioRegion, "g", placement);
    element.Content();
    WriteChildren(ioPage, ioRegion);
}

void AddContainers(SvgPage& ioPage) {
    AddHandlers<VEKPrtGraphicPrimitiveElt>(ioPage);
    AddWithChildren<VEKPrtClosedFigureElt, VEKPrtClosedFigureRegionElt, VEKPrtGroupElt, VEKPrtImageElt,
                    VEKPrtPatternElt, VEKPrtSymbolElt>(ioPage);
    ioPage.handlers[VEKPrtGroupElt::MetaObject()].outline = &OutlineChildren<VEKPrtGroupElt>;
    ioPage.handlers[VEKPrtClosedFigureRegionElt::MetaObject()].outline =
        &OutlineChildren<VEKPrtClosedFigureRegionElt>;
}

} // namespace vekprt::svg
