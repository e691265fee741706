/// \file
/// Writes a page of a model as SVG.
#ifndef SvgWriter_H
#define SvgWriter_H

#include <iosfwd>
#include <iostream>

#include "WriteResult.h"

class VEKPrtModel;

namespace vekprt {

/// Writes the page at position \p iPage (from 1) as one SVG document, and flushes the stream.
///
/// docs/drawing.md says how a model is read.  What cannot be drawn is left out with one line on
/// \p ioWarnings.  A page without size gives a drawing without one.
///
/// Getters of the model cannot report that memory ran out: the text, identifier, title or transform that is
/// lost then is missing from a document that counts as Written.
///
/// This is how the document is written:
/// - Coordinates are rounded to the largest power of ten not above a millionth of the page's longer side, and
///   more finely inside transforms that enlarge.  On a page without size they are not rounded.
/// - An identifier that is not a valid XML name is changed into one, with a warning: each character that a
///   name cannot have there gives way to its code, so that "2 b" is `_x32__x20_b`.  Links to "#2 b" or
///   "#2%20b" are changed likewise.  An identifier that another element had before is omitted.
/// - An element that is held several times is written once, with its identifier, and referred to.  Content
///   that looks different from place to place (other colours, fixed widths under another scale, patterns) is
///   written again for each such place, within limits: a warning says where they are reached.
/// - A pixel image is written once, whatever uses it.
WriteResult WriteSvg(const VEKPrtModel& iModel, int iPage, std::ostream& ioStream,
                     std::ostream& ioWarnings = std::cerr);

} // namespace vekprt

#endif
