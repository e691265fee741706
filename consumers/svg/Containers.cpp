// Elements that hold others.
#include "ElementWriter.h"
#include "VEKPrtChildren.h"

namespace vekprt::svg {

namespace {

// Not rounded to the grid: the error of a tile would grow with every repetition.
void BoxAttributes(XmlWriter& ioXml, const Box& iBox) {
    ioXml.Attribute("x", Number(iBox.x));
    ioXml.Attribute("y", Number(iBox.y));
    ioXml.Attribute("width", Number(iBox.width));
    ioXml.Attribute("height", Number(iBox.height));
}

template <class Container>
void WriteChildren(SvgPage& ioPage, Container& ioContainer, int iNesting = 1) {
    if (ioPage.nesting + iNesting > maxNesting) return ioPage.reporter.Warn(ioContainer, "nested too deeply");
    ioPage.nesting += iNesting;
    for (VEKPrtGraphicPrimitiveElt& child : ChildrenOf(ioContainer))
        WriteElement(ioPage, child);
    ioPage.nesting -= iNesting;
}

template <class Container>
void WriteGroup(SvgPage& ioPage, Container& ioContainer) {
    const Placement placement(ioPage, ioContainer, PlacementOf(ioContainer));
    if (!placement) return;
    std::string link;
    if constexpr (std::is_same_v<Container, VEKPrtGroupElt>) link = LinkOf(ioPage.reporter, ioContainer);
    if (!link.empty() && link.front() == '#') link = "#" + XmlName(DecodedUri(link.substr(1)));
    SvgElement element(ioPage, ioContainer, link.empty() ? "g" : "a", placement);
    ioPage.xml.OptionalAttribute("xlink:href", link);
    element.Content();
    WriteChildren(ioPage, ioContainer);
    element.End();
}

} // namespace

void ElementWriter::operator()(VEKPrtGroupElt& ioGroup) const { WriteGroup(page, ioGroup); }

// A region on its own has no appearance but that of its children.
void ElementWriter::operator()(VEKPrtClosedFigureRegionElt& ioRegion) const { WriteGroup(page, ioRegion); }

// A page on a page: its children, under its matrix and, if it has them, in its own colours.
void ElementWriter::operator()(VEKPrtImageElt& ioNested) const {
    VEKPrtColourTable* own = nullptr;
    ioNested.GetColourTable(own);
    if (!own) return WriteGroup(page, ioNested);
    VEKPrtColourTable* const outer = std::exchange(page.place.colours, own);
    const unsigned outerUses = page.uses;
    WriteGroup(page, ioNested);
    page.uses = (page.uses & ~usesColours) | outerUses;
    page.place.colours = outer;
}

void ElementWriter::operator()(VEKPrtSymbolElt& ioSymbol) const {
    const Box box = BoxOf(ioSymbol);
    if (box.IsEmpty()) return WriteGroup(page, ioSymbol);
    const Placement placement(page, ioSymbol, PlacementOf(ioSymbol));
    if (!placement) return;
    SvgElement element(page, ioSymbol, "g", placement);
    const std::string clip = page.NewId("clip");
    element.Attribute("clip-path", "url(#" + clip + ")").Content();
    page.xml.Start("clipPath", {{"id", clip}});
    page.xml.Start("rect");
    BoxAttributes(page.xml, box);
    page.xml.End(2);
    const unsigned outerUses = page.uses;
    page.place.area = box;
    page.place.areaMap = page.place.map;
    WriteChildren(page, ioSymbol);
    page.uses = (page.uses & ~usesArea) | outerUses;
    element.End();
}

void ElementWriter::operator()(VEKPrtPatternElt& ioPattern) const {
    SvgElement element(page, ioPattern, "g", Placement(page, ioPattern));
    element.Content();
    const Box tile = BoxOf(ioPattern);
    const std::vector<Elementary> transforms = PlacementOf(ioPattern);
    if (tile.IsEmpty() || Compose(transforms).Determinant() == 0.0 || page.place.map.Determinant() == 0.0) {
        page.reporter.Warn(ioPattern, "pattern whose box has no area");
        return element.End();
    }
    page.uses |= usesArea;
    const Box covered = page.place.Covered();
    const std::string id = page.NewId("pattern");
    XmlWriter& xml = page.xml;
    {
        const Placement placement(page, ioPattern, transforms);
        if (!placement) return element.End();
        xml.Start("defs");
        xml.Start("pattern", {{"id", id}, {"patternUnits", "userSpaceOnUse"}});
        BoxAttributes(xml, tile);
        xml.OptionalAttribute("patternTransform", placement.Text());
        // The content keeps the coordinates of its surroundings, not of the tile.
        xml.Start("g", {{"transform", "translate(" + Number(-tile.x) + "," + Number(-tile.y) + ")"}});
        WriteChildren(page, ioPattern, nestingOfPattern);
        xml.End(3);
    }
    xml.Start("rect");
    BoxAttributes(xml, covered);
    xml.Attribute("fill", "url(#" + id + ")");
    xml.End();
    element.End();
}

} // namespace vekprt::svg
