#include "SvgWriter.h"

#include <algorithm>
#include <new>
#include <utility>

#include "Contents.h"
#include "ElementWriter.h"
#include "VEKPrtChildren.h"

namespace vekprt::svg {

namespace {

// The element as it is in the document already, if that will do for another place.
const Written* FindWritten(SvgPage& ioPage, const VEKPrtGraphicPrimitiveElt& iElement,
                           const Shared& iShared) {
    const std::vector<Written>& written = iShared.written;
    for (auto w = written.rbegin(); w != written.rend(); ++w)
        if (w->Suits(ioPage.place)) return &*w;
    if (written.empty() || ioPage.allowance > 0) return nullptr;
    ioPage.reporter.Warn(iElement, "used in too many different contexts; drawn as in another one");
    return &written.back();
}

// Refers to the element where it is already, or writes it so that others can refer to it.
void WriteShared(SvgPage& ioPage, VEKPrtGraphicPrimitiveElt& ioElement, Shared& ioShared) {
    constexpr std::size_t maxVariants = 64;
    if (ioShared.isOpen) return ioPage.reporter.Warn(ioElement, "contains itself");
    if (const Written* const known = FindWritten(ioPage, ioElement, ioShared)) {
        ioPage.uses |= known->uses;
        if (known->id.empty()) return;
        ioPage.xml.Start("use", {{"xlink:href", "#" + known->id}});
        return ioPage.xml.End();
    }
    std::vector<Written>& written = ioShared.written;
    const bool outerAgain = std::exchange(ioPage.isAgain, ioPage.isAgain || !written.empty());
    const unsigned outerUses = std::exchange(ioPage.uses, 0U);
    ioShared.isOpen = true;
    ioShared.id.clear();
    Visit(ioElement, ElementWriter{ioPage});
    ioShared.isOpen = false;
    if (written.size() >= maxVariants) written.erase(written.begin());
    written.push_back({ioShared.id, ioPage.place, ioPage.uses});
    ioPage.uses |= outerUses;
    ioPage.isAgain = outerAgain;
}

void WriteViewport(SvgPage& ioPage, const VEKPrtImageElt& iImage) {
    // By the values of the enumeration; a metre is no unit of SVG.
    static const char* const names[] = {"px", "pt", "pc", "in", "mm", "cm", "mm"};
    const Box& box = ioPage.place.area;
    if (box.IsEmpty()) return ioPage.reporter.Warn(iImage, "a page without size");
    const VEKPrtImageUnits units = UnitsOf(ioPage.reporter, iImage);
    const double size = units == VEKPrtImageMetre ? 1000.0 : 1.0;
    XmlWriter& xml = ioPage.xml;
    xml.Attribute("width", Number(box.width * size) + names[units]);
    xml.Attribute("height", Number(box.height * size) + names[units]);
    xml.Attribute("viewBox", Number(box.x) + " " + Number(-(box.y + box.height)) + " " + Number(box.width) +
                                 " " + Number(box.height));
}

void WritePage(SvgPage& ioPage, VEKPrtImageElt& ioImage) {
    SvgElement svg(ioPage, ioImage, "svg", Placement(ioPage, ioImage));
    svg.Attribute("xmlns", "http://www.w3.org/2000/svg")
        .Attribute("xmlns:xlink", "http://www.w3.org/1999/xlink");
    WriteViewport(ioPage, ioImage);
    svg.Content();
    const Placement placement(ioPage, ioImage, PlacementOf(ioImage));
    if (placement) {
        ioPage.xml.Start(
            "g", {{"transform", "scale(1,-1)" + (placement.Text().empty() ? "" : " " + placement.Text())}});
        ioPage.nesting = 1;
        for (VEKPrtGraphicPrimitiveElt& child : ChildrenOf(ioImage))
            WriteElement(ioPage, child);
        ioPage.xml.End();
    }
    svg.End();
}

// False when the stream has failed.
bool WriteDocument(VEKPrtImageElt& ioImage, std::ostream& ioStream, std::ostream& ioWarnings) {
    constexpr double relativeStep = 1e-6;
    constexpr long minAllowance = 100000, allowanceFactor = 10;
    VEKPrtColourTable* colours = nullptr;
    ioImage.GetColourTable(colours);
    const Box box = BoxOf(ioImage);
    const double step = box.IsEmpty() ? 0.0 : relativeStep * std::max(box.width, box.height);

    XmlWriter xml(ioStream);
    SvgPage page{xml, Reporter("svg", &ioWarnings), step, {{colours, {}, box}, Grid(step)}};
    const Contents contents = ContentsOf(ioImage);
    page.allowance = page.outlineAllowance = minAllowance + allowanceFactor * contents.count;
    for (const VEKPrtGraphicPrimitiveElt* const element : contents.shared)
        page.shared[element].isOpen = element == &ioImage;
    WritePage(page, ioImage);
    return xml.Finish();
}

} // namespace

void WriteElement(SvgPage& ioPage, VEKPrtGraphicPrimitiveElt& ioElement) {
    if (!ioPage.xml.FlushIfLarge()) return;
    if (ioPage.isAgain) --ioPage.allowance;
    if (Shared* const shared = ioPage.SharedOf(ioElement)) return WriteShared(ioPage, ioElement, *shared);
    Visit(ioElement, ElementWriter{ioPage});
}

} // namespace vekprt::svg

namespace vekprt {

WriteResult WriteSvg(const VEKPrtModel& iModel, int iPage, std::ostream& ioStream, std::ostream& ioWarnings) {
    VEKPrtImageElt* const page = drawing::PageAt(iModel, iPage);
    if (!page) return {WriteResult::NoSuchPage};
    if (!ioStream.good()) return {WriteResult::StreamFailed};
    try {
        const bool isWritten = svg::WriteDocument(*page, ioStream, ioWarnings);
        return {isWritten ? WriteResult::Written : WriteResult::StreamFailed};
    } catch (const std::bad_alloc&) {
        return {WriteResult::OutOfMemory};
    }
}

} // namespace vekprt
