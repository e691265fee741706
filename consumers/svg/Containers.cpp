// Elements that hold others.
#include <algorithm>
#include <cmath>

#include "Handlers.h"
#include "Style.h"
#include "VEKPrtClosedFigureElt.h"
#include "VEKPrtClosedFigureRegionElt.h"
#include "VEKPrtGroupElt.h"
#include "VEKPrtImageElt.h"
#include "VEKPrtPatternElt.h"
#include "VEKPrtSymbolElt.h"

namespace {

template <class Container>
Area BoxOf(const SvgPage& iPage, const Container& iContainer) {
    VEKMathPoint2D origin;
    Area box = {};
    iContainer.GetOrigin(origin);
    iContainer.GetSize(box.width, box.height);
    box.x = origin.GetX();
    box.y = origin.GetY();
    box.map = iPage.map;
    return box;
}

void BoxAttributes(XmlWriter& ioXml, const Area& iBox) {
    ioXml.Attribute("x", iBox.x);
    ioXml.Attribute("y", iBox.y);
    ioXml.Attribute("width", iBox.width);
    ioXml.Attribute("height", iBox.height);
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

bool HasArea(const Area& iBox) {
    return iBox.width > 0.0 && iBox.height > 0.0 && std::isfinite(iBox.x + iBox.y + iBox.width + iBox.height);
}

} // namespace

void WriteChildren(SvgPage& ioPage, const VEKPrtMembers<VEKPrtGraphicPrimitiveElt>& iChildren) {
    for (VEKPrtGraphicPrimitiveElt& child : iChildren)
        WriteElement(ioPage, child);
}

void WriteBare(SvgPage& ioPage, VEKPrtGraphicPrimitiveElt& ioBare) {
    SvgElement(ioPage, ioBare, "g").Content();
}

void Write(SvgPage& ioPage, VEKPrtGroupElt& ioGroup) {
    VEKPrtGroupAttributes attributes;
    VEKPrintLinkURI link;
    ioGroup.GetGroupAttributes(attributes);
    attributes.GetLinkURI(link);
    const bool linked = *link.GetURI() != '\0';
    SvgElement element(ioPage, ioGroup, linked ? "a" : "g");
    if (linked) element.Attribute("xlink:href", link.GetURI());
    element.Transform(TransformOf(ioGroup)).Content();
    WriteChildren(ioPage, ChildrenOf(ioGroup));
}

// A page on a page: its children, under its matrix and, if it has them, in its own colours.
void Write(SvgPage& ioPage, VEKPrtImageElt& ioNestedImage) {
    VEKMath2x2Matrix matrix;
    ioNestedImage.GetMatrix(matrix);
    VEKPrtTransformAttributes transform;
    transform.AddMatrix(matrix);
    SvgElement element(ioPage, ioNestedImage, "g");
    element.Transform(transform).Content();
    VEKPrtColourTable* const outer = ioPage.colours;
    VEKPrtColourTable* own = nullptr;
    ioNestedImage.GetColourTable(own);
    if (own) ioPage.colours = own;
    WriteChildren(ioPage, ChildrenOf(ioNestedImage));
    ioPage.colours = outer;
}

void Write(SvgPage& ioPage, VEKPrtSymbolElt& ioSymbol) {
    SvgElement element(ioPage, ioSymbol, "g");
    element.Transform(TransformOf(ioSymbol));
    const Area box = BoxOf(ioPage, ioSymbol);
    const Area outer = ioPage.area;
    const std::string clip = HasArea(box) ? ioPage.NewId("clip") : std::string();
    if (!clip.empty()) element.Attribute("clip-path", "url(#" + clip + ")");
    element.Content();
    if (!clip.empty()) {
        ioPage.xml.Start("clipPath");
        ioPage.xml.Attribute("id", clip);
        ioPage.xml.Start("rect");
        BoxAttributes(ioPage.xml, box);
        ioPage.xml.End();
        ioPage.xml.End();
        ioPage.area = box;
    }
    WriteChildren(ioPage, ChildrenOf(ioSymbol));
    ioPage.area = outer;
}

void Write(SvgPage& ioPage, VEKPrtPatternElt& ioPattern) {
    const Area tile = BoxOf(ioPage, ioPattern);
    SvgElement element(ioPage, ioPattern, "g");
    element.Content();
    if (!HasArea(tile) || ioPage.map.Determinant() == 0.0) {
        ioPage.Warn(ioPattern, "a pattern whose box has no area");
        return;
    }
    const Affine outer = ioPage.map;
    const Area covered = Covering(ioPage.area, outer);
    std::string transforms;
    for (const Elementary& transform : TransformsOf(TransformOf(ioPattern))) {
        transforms += (transforms.empty() ? "" : " ") + transform.svg;
        ioPage.map = ioPage.map * transform.map;
    }
    const std::string id = ioPage.NewId("pattern");
    XmlWriter& xml = ioPage.xml;
    xml.Start("defs");
    xml.Start("pattern");
    xml.Attribute("id", id);
    xml.Attribute("patternUnits", "userSpaceOnUse");
    BoxAttributes(xml, tile);
    xml.OptionalAttribute("patternTransform", transforms);
    // The content keeps the coordinates of its surroundings, not of the tile.
    xml.Start("g");
    xml.Attribute("transform", "translate(" + Pair(-tile.x, -tile.y) + ")");
    WriteChildren(ioPage, ChildrenOf(ioPattern));
    xml.End();
    xml.End();
    xml.End();
    ioPage.map = outer;
    xml.Start("rect");
    BoxAttributes(xml, covered);
    xml.Attribute("fill", "url(#" + id + ")");
    xml.End();
}

void Write(SvgPage& ioPage, VEKPrtClosedFigureElt& ioFigure) {
    PathData path;
    const Affine outer = ioPage.map;
    ioPage.map = outer * Compose(TransformOf(ioFigure));
    for (VEKPrtClosedFigureRegionElt& region : ChildrenOf(ioFigure)) {
        AppendToRegion(ioPage, path, region, Affine());
        path.Close();
    }
    ioPage.map = outer;
    if (!ioPage.IsFinite(ioFigure, path)) return;
    const Appearance look = AppearanceOf(ioPage, ioFigure);
    SvgElement(ioPage, ioFigure, "path")
        .Attribute("d", path.Text())
        .Transform(TransformOf(ioFigure))
        .Paint(look);
}

// A region on its own has no appearance but that of its children.
void Write(SvgPage& ioPage, VEKPrtClosedFigureRegionElt& ioRegion) {
    SvgElement element(ioPage, ioRegion, "g");
    element.Transform(TransformOf(ioRegion)).Content();
    WriteChildren(ioPage, ChildrenOf(ioRegion));
}
