// Elements that hold others.
#include "Handlers.h"
#include "Style.h"
#include "VEKListPtrVEKPrtClosedFigureRegionElt.h"
#include "VEKListPtrVEKPrtGraphicPrimitiveElt.h"
#include "VEKPrtClosedFigureElt.h"
#include "VEKPrtClosedFigureRegionElt.h"
#include "VEKPrtGroupElt.h"
#include "VEKPrtImageElt.h"
#include "VEKPrtPatternElt.h"
#include "VEKPrtSymbolElt.h"

namespace {

template <class Container>
VEKListPtrVEKPrtGraphicPrimitiveElt* ChildrenOf(Container& ioContainer) {
    VEKListPtrVEKPrtGraphicPrimitiveElt* children = nullptr;
    ioContainer.GetChildren(children);
    return children;
}

template <class Container>
Box BoxOf(const Container& iContainer) {
    VEKMathPoint2D origin;
    Box box = {};
    iContainer.GetOrigin(origin);
    iContainer.GetSize(box.width, box.height);
    box.x = origin.GetX();
    box.y = origin.GetY();
    return box;
}

void BoxAttributes(XmlWriter& ioXml, const Box& iBox) {
    ioXml.Attribute("x", iBox.x);
    ioXml.Attribute("y", iBox.y);
    ioXml.Attribute("width", iBox.width);
    ioXml.Attribute("height", iBox.height);
}

bool HasArea(const Box& iBox) { return iBox.width > 0.0 && iBox.height > 0.0; }

// Null for what a list does not hold.
VEKPrtClosedFigureRegionElt* RegionAt(const VEKListPtrVEKPrtClosedFigureRegionElt& iRegions, int iPosition) {
    return static_cast<VEKPrtClosedFigureRegionElt*>(iRegions[iPosition]);
}

} // namespace

void WriteChildren(SvgPage& ioPage, const VEKListPtrVEKPrtGraphicPrimitiveElt* iChildren) {
    for (int position = 1; iChildren && position <= iChildren->Size(); ++position)
        if (auto* const child = static_cast<VEKPrtGraphicPrimitiveElt*>((*iChildren)[position]))
            WriteElement(ioPage, *child);
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

// A page on a page: its children, under its matrix and in its own colours.
void Write(SvgPage& ioPage, VEKPrtImageElt& ioNestedImage) {
    VEKMath2x2Matrix matrix;
    ioNestedImage.GetMatrix(matrix);
    VEKPrtTransformAttributes transform;
    transform.AddMatrix(matrix);
    SvgElement element(ioPage, ioNestedImage, "g");
    element.Transform(transform).Content();
    VEKPrtColourTable* const outer = ioPage.colours;
    ioNestedImage.GetColourTable(ioPage.colours);
    WriteChildren(ioPage, ChildrenOf(ioNestedImage));
    ioPage.colours = outer;
}

void Write(SvgPage& ioPage, VEKPrtSymbolElt& ioSymbol) {
    const Box box = BoxOf(ioSymbol);
    const Box outer = ioPage.area;
    const std::string clip = HasArea(box) ? ioPage.NewId("clip") : std::string();
    SvgElement element(ioPage, ioSymbol, "g");
    element.Transform(TransformOf(ioSymbol));
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
    const Box tile = BoxOf(ioPattern);
    SvgElement element(ioPage, ioPattern, "g");
    element.Content();
    if (!HasArea(tile)) {
        ioPage.Warn(ioPattern, "a pattern whose box has no area");
        return;
    }
    const std::string id = ioPage.NewId("pattern");
    XmlWriter& xml = ioPage.xml;
    xml.Start("defs");
    xml.Start("pattern");
    xml.Attribute("id", id);
    xml.Attribute("patternUnits", "userSpaceOnUse");
    BoxAttributes(xml, tile);
    xml.OptionalAttribute("patternTransform", TransformList(TransformOf(ioPattern)));
    // The content keeps the coordinates of its surroundings, not of the tile.
    xml.Start("g");
    xml.Attribute("transform", "translate(" + Point(-tile.x, -tile.y) + ")");
    WriteChildren(ioPage, ChildrenOf(ioPattern));
    xml.End();
    xml.End();
    xml.End();
    xml.Start("rect");
    BoxAttributes(xml, ioPage.area);
    xml.Attribute("fill", "url(#" + id + ")");
    xml.End();
}

void Write(SvgPage& ioPage, VEKPrtClosedFigureElt& ioFigure) {
    VEKListPtrVEKPrtClosedFigureRegionElt* regions = nullptr;
    ioFigure.GetChildren(regions);
    Path path;
    for (int position = 1; regions && position <= regions->Size(); ++position)
        if (VEKPrtClosedFigureRegionElt* const region = RegionAt(*regions, position)) {
            AppendToRegion(ioPage, path, *region, Affine());
            path.Close();
        }
    const VEKPrtDrawStyle style = DrawStyleOf(ioFigure);
    const VEKPrtFillAttributes fill = FillOf(ioFigure);
    const std::string paint = PreparePaint(ioPage, ioFigure, style, fill);
    SvgElement(ioPage, ioFigure, "path")
        .Attribute("d", path.Data())
        .Transform(TransformOf(ioFigure))
        .Paint(style, StrokeOf(ioFigure), fill, paint);
}

// A region on its own has no appearance but that of its children.
void Write(SvgPage& ioPage, VEKPrtClosedFigureRegionElt& ioRegion) {
    SvgElement element(ioPage, ioRegion, "g");
    element.Transform(TransformOf(ioRegion)).Content();
    WriteChildren(ioPage, ChildrenOf(ioRegion));
}
