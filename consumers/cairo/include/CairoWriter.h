/// \file
/// Draws pages of a model by cairo: on any of its surfaces, as PDF, as PNG.
#ifndef CairoWriter_H
#define CairoWriter_H

#include <iosfwd>
#include <iostream>

#include "WriteResult.h"

/// Declared here as cairo.h does, which need not be included.
typedef struct _cairo cairo_t;
class VEKPrtModel;

namespace vekprt {

/// \name Drawing by cairo
///
/// docs/drawing.md says how a model is read.  What cannot be drawn is left out with one line on
/// \p ioWarnings.  Text is laid out by Pango, with the fonts of the machine.  A page without size is drawn
/// as A4, with a warning.
///
/// Getters of the model cannot report that memory ran out: the text, title or transform that is lost then is
/// missing from the drawing.  GLib, under Pango, ends the process when it cannot allocate.
/// @{

/// Draws the page at position \p iPage (from 1) on \p ioTarget, and leaves its state as it was, but
/// for the path.
///
/// The page's upper left corner comes to the origin, and a point of 1/72 inch is one unit: this is what
/// cairo's PDF and PostScript surfaces have; for others, scale before.  The page is clipped to its size, and
/// has no background.  The caller shows the page and finishes the surface.  StreamFailed tells that the
/// target was or came to be in an error state; its cairo_status says which.
WriteResult DrawPage(const VEKPrtModel& iModel, int iPage, cairo_t* ioTarget,
                     std::ostream& ioWarnings = std::cerr);

/// Writes all pages as one PDF document, each at its true size, and flushes the stream.
///
/// The title of the first page that has one becomes the document's, and each title an entry of the outline.
/// Links of groups become link annotations; "#id" leads to the element or page with that identifier.  Text
/// stays text, with its fonts embedded.  A model without pages gives NoSuchPage.
WriteResult WritePdf(const VEKPrtModel& iModel, std::ostream& ioStream, std::ostream& ioWarnings = std::cerr);

/// Writes the page at position \p iPage (from 1) as PNG, on white, and flushes the stream.
///
/// A page that is larger than an image of cairo's can be, 32767 pixels either way, gives OutOfMemory; so does
/// a resolution that is not positive.
WriteResult WritePng(const VEKPrtModel& iModel, int iPage, double iDotsPerInch, std::ostream& ioStream,
                     std::ostream& ioWarnings = std::cerr);

/// @}

} // namespace vekprt

#endif
