#include "CairoWriter.h"

#include <cairo-pdf.h>

#include <cmath>
#include <new>

#include "Contents.h"
#include "Drawing.h"
#include "Utf8.h"
#include "VEKPrtChildren.h"

namespace vekprt {

namespace cairo {

namespace {

WriteResult ResultOf(cairo_status_t iStatus) {
    switch (iStatus) {
    case CAIRO_STATUS_SUCCESS: return {WriteResult::Written};
    case CAIRO_STATUS_NO_MEMORY:
    case CAIRO_STATUS_INVALID_SIZE: return {WriteResult::OutOfMemory};
    default: return {WriteResult::StreamFailed};
    }
}

// Between cairo and a stream that may throw.
cairo_status_t WriteTo(void* ioStream, const unsigned char* iData, unsigned iLength) {
    auto& stream = *static_cast<std::ostream*>(ioStream);
    try {
        stream.write(reinterpret_cast<const char*>(iData), static_cast<std::streamsize>(iLength));
    } catch (...) {
        return CAIRO_STATUS_WRITE_ERROR;
    }
    return stream.good() ? CAIRO_STATUS_SUCCESS : CAIRO_STATUS_WRITE_ERROR;
}

WriteResult Flushed(std::ostream& ioStream, WriteResult iResult) {
    if (iResult && !ioStream.flush().good()) return {WriteResult::StreamFailed};
    return iResult;
}

// Names for the identifiers that links of the pages lead to.
Destinations DestinationsOf(const VEKPrtModel& iModel) {
    Destinations wanted, found;
    const Reporter silent("", nullptr);
    for (VEKPrtImageElt& page : ChildrenOf(iModel)) {
        ContentsOf(page, [&](VEKPrtGraphicPrimitiveElt& ioElement) {
            if (ioElement.GetMetaObject() != VEKPrtGroupElt::MetaObject()) return;
            const std::string link = LinkOf(silent, static_cast<VEKPrtGroupElt&>(ioElement));
            if (!link.empty() && link.front() == '#') wanted[DecodedUri(link.substr(1))];
        });
    }
    if (wanted.empty()) return wanted;
    for (VEKPrtImageElt& page : ChildrenOf(iModel)) {
        ContentsOf(page, [&](VEKPrtGraphicPrimitiveElt& ioElement) {
            VEKUnicodeString id;
            ioElement.GetID(id);
            if (wanted.count(id.ToUtf8()) > 0)
                found[id.ToUtf8()].name = "element-" + std::to_string(found.size());
        });
    }
    return found;
}

void WritePages(const VEKPrtModel& iModel, cairo_surface_t* ioPdf, cairo_t* ioCairo,
                const Reporter& iReporter) {
    Images images;
    Destinations destinations = DestinationsOf(iModel);
    std::string documentTitle;
    int number = 0;
    for (VEKPrtImageElt& page : ChildrenOf(iModel)) {
        ++number;
        VEKUnicodeString title;
        page.GetTitle(title);
        if (!title.IsEmpty()) {
            const std::string text = OneLine(title.ToUtf8());
            if (documentTitle.empty()) documentTitle = text;
            cairo_pdf_surface_add_outline(ioPdf, CAIRO_PDF_OUTLINE_ROOT, text.c_str(),
                                          ("page=" + std::to_string(number)).c_str(),
                                          static_cast<cairo_pdf_outline_flags_t>(0));
        }
        const Box size = SizeInPoints(Reporter("", nullptr), page);
        cairo_pdf_surface_set_size(ioPdf, size.width, size.height);
        Drawing(ioCairo, iReporter, images, destinations).DrawPage(page);
        cairo_show_page(ioCairo);
    }
    if (!documentTitle.empty())
        cairo_pdf_surface_set_metadata(ioPdf, CAIRO_PDF_METADATA_TITLE, documentTitle.c_str());
}

} // namespace

} // namespace cairo

using namespace cairo;

WriteResult DrawPage(const VEKPrtModel& iModel, int iPage, cairo_t* ioTarget, std::ostream& ioWarnings) {
    VEKPrtImageElt* const page = PageAt(iModel, iPage);
    if (!page) return {WriteResult::NoSuchPage};
    if (cairo_status(ioTarget) != CAIRO_STATUS_SUCCESS) return ResultOf(cairo_status(ioTarget));
    try {
        Images images;
        Destinations destinations;
        Drawing(ioTarget, Reporter("cairo", &ioWarnings), images, destinations).DrawPage(*page);
    } catch (const std::bad_alloc&) {
        return {WriteResult::OutOfMemory};
    }
    return ResultOf(cairo_status(ioTarget));
}

WriteResult WritePdf(const VEKPrtModel& iModel, std::ostream& ioStream, std::ostream& ioWarnings) {
    if (ChildrenOf(iModel).IsEmpty()) return {WriteResult::NoSuchPage};
    if (!ioStream.good()) return {WriteResult::StreamFailed};
    try {
        const Surface pdf(cairo_pdf_surface_create_for_stream(WriteTo, &ioStream, 1, 1));
        const Context context(cairo_create(pdf.get()));
        WritePages(iModel, pdf.get(), context.get(), Reporter("cairo", &ioWarnings));
        const WriteResult drawn = ResultOf(cairo_status(context.get()));
        cairo_surface_finish(pdf.get());
        return Flushed(ioStream, drawn ? ResultOf(cairo_surface_status(pdf.get())) : drawn);
    } catch (const std::bad_alloc&) {
        return {WriteResult::OutOfMemory};
    }
}

WriteResult WritePng(const VEKPrtModel& iModel, int iPage, double iDotsPerInch, std::ostream& ioStream,
                     std::ostream& ioWarnings) {
    constexpr double maxSide = 32767;
    const VEKPrtImageElt* const page = PageAt(iModel, iPage);
    if (!page) return {WriteResult::NoSuchPage};
    if (!ioStream.good()) return {WriteResult::StreamFailed};
    const double scale = iDotsPerInch / 72.0;
    const Box size = SizeInPoints(Reporter("", nullptr), *page);
    const double width = std::ceil(size.width * scale - 1e-6), height = std::ceil(size.height * scale - 1e-6);
    if (!(width >= 1.0 && height >= 1.0 && width <= maxSide && height <= maxSide))
        return {WriteResult::OutOfMemory};
    const Surface picture(
        cairo_image_surface_create(CAIRO_FORMAT_RGB24, static_cast<int>(width), static_cast<int>(height)));
    const Context context(cairo_create(picture.get()));
    cairo_set_source_rgb(context.get(), 1, 1, 1);
    cairo_paint(context.get());
    cairo_scale(context.get(), scale, scale);
    const WriteResult drawn = DrawPage(iModel, iPage, context.get(), ioWarnings);
    if (!drawn) return drawn;
    return Flushed(ioStream, ResultOf(cairo_surface_write_to_png_stream(picture.get(), WriteTo, &ioStream)));
}

} // namespace vekprt
