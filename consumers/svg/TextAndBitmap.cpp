// Texts and bitmaps: y points up on the page but down in letters and pixels, so both are flipped.
#include "ElementWriter.h"
#include "Lettering.h"

namespace vekprt::svg {

namespace {

// Most renderers put the spacing after the last letter, too, others between letters only.  An invisible mark
// at the end makes them agree, and the text is moved by the surplus.
bool NeedsEndMark(const Lettering& iLettering) {
    return iLettering.spacing != 0.0 && !iLettering.isVertical && iLettering.left > 0.0;
}

void LayoutAttributes(SvgElement& ioElement, const Lettering& iLettering) {
    if (NeedsEndMark(iLettering)) ioElement.Attribute("x", iLettering.left * iLettering.spacing);
    // Not by `dominant-baseline`, which many renderers do not know.
    if (iLettering.firstLine != 0.0) ioElement.Attribute("y", iLettering.firstLine);
    ioElement.Attribute("font-family", iLettering.family).Attribute("font-size", iLettering.height);
    if (iLettering.weight != 400) ioElement.Attribute("font-weight", std::to_string(iLettering.weight));
    if (iLettering.left > 0.0) ioElement.Attribute("text-anchor", iLettering.left < 1.0 ? "middle" : "end");
    if (iLettering.spacing != 0.0 && !iLettering.isVertical)
        ioElement.Attribute("letter-spacing", iLettering.spacing);
    ioElement.Attribute("xml:space", "preserve");
}

// A column of upright letters, one line each.
void WriteColumn(SvgPage& ioPage, const Lettering& iLettering) {
    XmlWriter& xml = ioPage.xml;
    for (const std::string& letter : iLettering.lines) {
        xml.Start("tspan", {{"x", "0"}});
        if (&letter != &iLettering.lines.front()) xml.Attribute("dy", ioPage.place.grid(iLettering.lineFeed));
        xml.Text(letter);
        xml.End();
    }
}

} // namespace

void ElementWriter::operator()(VEKPrtTextElt& ioText) const {
    const std::optional<Lettering> lettering = LetteringOf(page.reporter, ioText);
    if (!lettering) return;
    Placement placement(page, ioText, PlacementOf(ioText));
    if (!placement) return;
    placement.Add(lettering->placement);
    const Paint paint = PaintOf(page, ioText, LookOf(page.reporter, ioText), Compose(lettering->placement));
    SvgElement element(page, ioText, "text", placement);
    LayoutAttributes(element, *lettering);
    element.Attributes(paint);
    page.xml.Text({}); // from here on no white space is added, which the text would keep
    element.Content();
    if (lettering->isVertical)
        WriteColumn(page, *lettering);
    else
        page.xml.Text(lettering->lines.front() + (NeedsEndMark(*lettering) ? "\u200E" : ""));
    element.End();
}

void ElementWriter::operator()(VEKPrtBitmapImageElt& ioBitmap) const {
    const Bitmap bitmap = BitmapOf(page.reporter, ioBitmap);
    if (!bitmap.image) return SvgElement(page, ioBitmap, "g", Placement(page, ioBitmap)).End();
    const std::string reference = page.ImageReference(*bitmap.image);
    Placement placement(page, ioBitmap, bitmap.placement);
    if (!placement) return;
    placement.Add({Translation(0, 1), Scaling(1, -1)});
    SvgElement element(page, ioBitmap, "use", placement);
    element.Attribute("xlink:href", reference).End();
}

} // namespace vekprt::svg
