#include "SvgWriter.h"

#include <algorithm>
#include <utility>

#include "Handlers.h"
#include "VEKListPtrVEKPrtImageElt.h"
#include "VEKPrtChildren.h"
#include "VEKPrtImageElt.h"
#include "VEKPrtModel.h"

namespace vekprt::svg {

namespace {

// Null for a class that is not written.
const Handler* HandlerOf(const SvgPage& iPage, const VEKPrtGraphicPrimitiveElt& iElement) {
    const auto found = iPage.handlers.find(iElement.GetMetaObject());
    return found != iPage.handlers.end() ? &found->second : nullptr;
}

// Finds what the page holds more than once: each element is looked at once, however many hold it.
void FindShared(SvgPage& ioPage, VEKPrtImageElt& ioImage) {
    std::unordered_set<const VEKPrtGraphicPrimitiveElt*> seen;
    std::vector<VEKPrtGraphicPrimitiveElt*> left{&ioImage};
    while (!left.empty()) {
        VEKPrtGraphicPrimitiveElt& element = *left.back();
        left.pop_back();
        if (!seen.insert(&element).second) {
            ioPage.shared.try_emplace(&element);
        } else if (const Handler* const handler = HandlerOf(ioPage, element);
                   handler && handler->appendChildren) {
            handler->appendChildren(element, left);
        }
    }
    ioPage.ids.reserve(seen.size());
    ioPage.allowance = 100000 + 10 * static_cast<long>(seen.size());
}

// Calls iWrite unless the element is nested too deeply, or within itself: a container can hold one that holds
// it in turn.
template <class Write>
void Descend(SvgPage& ioPage, const VEKPrtGraphicPrimitiveElt& iElement, Shared* ioShared, bool iAgain,
             Write iWrite) {
    constexpr int deepest = 1000;
    if (ioShared && ioShared->open) return ioPage.Warn(iElement, "held by itself");
    if (ioPage.depth >= deepest) return ioPage.Warn(iElement, "nested too deeply");
    const bool outerAgain = std::exchange(ioPage.again, ioPage.again || iAgain);
    ++ioPage.depth;
    if (ioShared) ioShared->open = true;
    iWrite();
    if (ioShared) ioShared->open = false;
    --ioPage.depth;
    ioPage.again = outerAgain;
}

// The element as it stands in the document already, if that will do for another place.
const Written* FindWritten(SvgPage& ioPage, const VEKPrtGraphicPrimitiveElt& iElement,
                           const Shared& iShared) {
    const std::vector<Written>& written = iShared.written;
    for (auto w = written.rbegin(); w != written.rend(); ++w)
        if (w->Suits(ioPage.place)) return &*w;
    if (written.empty() || ioPage.allowance > 0) return nullptr;
    ioPage.Warn(iElement, "held at too many different places, drawn as at another one");
    return &written.back();
}

// Refers to the element where it stands already, or writes it so that others can refer to it.
void WriteShared(SvgPage& ioPage, VEKPrtGraphicPrimitiveElt& ioElement, const Handler& iHandler,
                 Shared& ioShared) {
    constexpr std::size_t remembered = 64;
    const Written* const known = ioShared.open ? nullptr : FindWritten(ioPage, ioElement, ioShared);
    if (known) {
        ioPage.uses |= known->uses;
        if (known->id.empty()) return;
        ioPage.xml.Start("use", {{"xlink:href", "#" + known->id}});
        return ioPage.xml.End();
    }
    Descend(ioPage, ioElement, &ioShared, !ioShared.written.empty(), [&] {
        const unsigned outerUses = std::exchange(ioPage.uses, 0U);
        ioShared.id.clear();
        iHandler.write(ioPage, ioElement);
        if (ioShared.written.size() >= remembered) ioShared.written.erase(ioShared.written.begin());
        ioShared.written.push_back({ioShared.id, ioPage.place, ioPage.uses});
        ioPage.uses |= outerUses;
    });
}

void WriteViewport(SvgPage& ioPage, const VEKPrtImageElt& iImage) {
    // By the values of the enumeration; a metre is no unit of SVG.
    static const char* const names[] = {"px", "pt", "pc", "in", "mm", "cm", "mm"};
    const Area& area = ioPage.place.area;
    if (area.IsEmpty()) return ioPage.Warn(iImage, "a page without size");
    VEKPrtImageUnits units = VEKPrtImageMillimetre;
    iImage.GetUnits(units);
    if (units < VEKPrtImagePixel || units > VEKPrtImageMetre) {
        ioPage.Warn(iImage, "unknown units, millimetres are taken");
        units = VEKPrtImageMillimetre;
    }
    const double size = units == VEKPrtImageMetre ? 1000.0 : 1.0;
    XmlWriter& xml = ioPage.xml;
    xml.Attribute("width", Number(area.width * size) + names[units]);
    xml.Attribute("height", Number(area.height * size) + names[units]);
    xml.Attribute("viewBox", Number(area.x) + " " + Number(-(area.y + area.height)) + " " +
                                 Number(area.width) + " " + Number(area.height));
}

void WritePage(SvgPage& ioPage, VEKPrtImageElt& ioImage) {
    VEKMath2x2Matrix matrix;
    ioImage.GetMatrix(matrix);
    SvgElement svg(ioPage, ioImage, "svg", Placement(ioPage));
    svg.Attribute("xmlns", "http://www.w3.org/2000/svg")
        .Attribute("xmlns:xlink", "http://www.w3.org/1999/xlink");
    WriteViewport(ioPage, ioImage);
    svg.Content();
    Placement placement(ioPage);
    if (matrix != VEKMath2x2Matrix()) placement.Add(Linear(matrix));
    ioPage.xml.Start(
        "g", {{"transform", "scale(1,-1)" + (placement.Text().empty() ? "" : " " + placement.Text())}});
    for (VEKPrtGraphicPrimitiveElt& child : ChildrenOf(ioImage))
        WriteElement(ioPage, child);
    ioPage.xml.End();
}

// False when the stream has failed.
bool WriteDocument(VEKPrtImageElt& ioImage, std::ostream& ioStream, std::ostream& ioWarnings) {
    constexpr double finest = 1e-6;
    VEKMathPoint2D origin;
    Area area = {};
    VEKPrtColourTable* colours = nullptr;
    ioImage.GetOrigin(origin);
    ioImage.GetSize(area.width, area.height);
    ioImage.GetColourTable(colours);
    area.x = origin.GetX();
    area.y = origin.GetY();
    const double step = area.IsEmpty() ? 0.0 : finest * std::max(area.width, area.height);

    XmlWriter xml(ioStream);
    SvgPage page{xml, ioWarnings, step, {colours, {}, Grid(step), area}};
    AddShapes(page);
    AddContainers(page);
    AddTextAndBitmap(page);
    FindShared(page, ioImage);
    if (Shared* const shared = page.SharedOf(ioImage)) shared->open = true;
    WritePage(page, ioImage);
    return xml.Finish();
}

} // namespace

void WriteElement(SvgPage& ioPage, VEKPrtGraphicPrimitiveElt& ioElement) {
    if (!ioPage.xml.HandOver()) return;
    const Handler* const handler = HandlerOf(ioPage, ioElement);
    if (!handler) return ioPage.Warn(ioElement, "no handler for this class");
    if (ioPage.again) --ioPage.allowance;
    if (Shared* const shared = ioPage.SharedOf(ioElement))
        return WriteShared(ioPage, ioElement, *handler, *shared);
    Descend(ioPage, ioElement, nullptr, false, [&] { handler->write(ioPage, ioElement); });
}

void AppendToRegion(SvgPage& ioPage, PathData& ioPath, VEKPrtGraphicPrimitiveElt& ioElement,
                    const Affine& iMap) {
    const Handler* const handler = HandlerOf(ioPage, ioElement);
    if (!handler || !handler->outline) return ioPage.Warn(ioElement, "no part of an outline");
    // An outline cannot refer to another one.
    if (ioPage.again && --ioPage.allowance < 0)
        return ioPage.Warn(ioElement, "held at too many places, left out");
    Shared* const shared = ioPage.SharedOf(ioElement);
    const bool again = shared && std::exchange(shared->outlined, true);
    Descend(ioPage, ioElement, shared, again, [&] { handler->outline(ioPage, ioPath, ioElement, iMap); });
}

} // namespace vekprt::svg

namespace vekprt {

SvgResult WriteSvg(const VEKPrtModel& iModel, int iPage, std::ostream& ioStream, std::ostream& ioWarnings) {
    VEKListPtrVEKPrtImageElt* images = nullptr;
    iModel.GetImages(images);
    auto* const image = images ? static_cast<VEKPrtImageElt*>((*images)[iPage]) : nullptr;
    if (!image) return {SvgResult::NoSuchPage};
    const bool sound = svg::WriteDocument(*image, ioStream, ioWarnings);
    return {sound ? SvgResult::Written : SvgResult::StreamFailed};
}

} // namespace vekprt
