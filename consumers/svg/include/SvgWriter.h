/// \file
/// Writes a page of a model as SVG.
#ifndef SvgWriter_H
#define SvgWriter_H

#include <iosfwd>
#include <iostream>

class VEKPrtModel;

namespace vekprt {

/// Result of WriteSvg; converts to true when the whole page was written.
struct SvgResult {
    /// How much of it was written.
    enum Status {
        Written,
        /// Nothing was written.
        NoSuchPage,
        /// The stream was not good, or has failed on the way: what it was given is not a whole document.
        StreamFailed
    };
    Status status;

    explicit operator bool() const { return status == Written; }
};

/// Writes the page at position \p iPage (from 1) as one SVG document, and flushes the stream.
///
/// A page without size gives a drawing without one.  What cannot be drawn is left out with a line on
/// \p ioWarnings, and so is a link that would run a program (`javascript:` and its like), and an
/// identifier that another element had before.
///
/// What the model leaves to its consumers is read like this:
/// - y points up; the origin of a page is its lower left corner; the page's matrix applies to all of it.
///   What lies outside the page is cut off.  Units that are not known are taken for millimetres, with a
///   warning.
/// - Angles are degrees, counter-clockwise.  Arcs run counter-clockwise from the start to the end angle,
///   and all the way round where these are equal; those of an elliptical arc are parameters of the
///   ellipse, counted from its sloped axis.  The interior of an arc is cut off by its chord.
/// - Transforms are written in their order: the first one is the outermost, the last one next to the
///   geometry.
/// - A line of fixed width is as wide as it says in page units, whatever the transforms.  A line of width
///   0 is not seen.
/// - A dash pattern overrides the line type.  A transparency of 255 is opaque, 0 is not seen.
/// - A pattern image fills the parallelogram of its two vectors at the reference point, and repeats.
/// - An element that is held several times is drawn at each place.  A symbol has no place of its own but
///   by its transforms: to set it several times, hold it in groups with transforms.  It stands in the
///   document once, and its identifier with it.
/// - A symbol is cut off at its box, if that has an area, and so is the tile of a pattern; nothing else
///   is clipped.  A pattern repeats its box over that of the nearest symbol around it, or over the page.
/// - In a region the primitives follow one another; one that lies the other way round is turned.
/// - Text follows its draw style, which is the outline by default: letters are filled only where it says
///   so.  Extra spacing stands between the letters, and is expanded like them; in vertical text it stands
///   between the lines.
/// - Of an image inside a page, origin, size and units are not read.
/// - A curve is drawn over the part of its parameter range that lies within its two bounds.
///
/// And this is how the document is written:
/// - Coordinates are rounded to the power of ten at a millionth of the page's longer side or next below
///   it; inside enlarging transforms they are finer by as much.  On a page without size they are not
///   rounded.
/// - An identifier that is no XML name is changed into one, with a warning: each character that cannot
///   stand there becomes its code, so that "2 b" is `_x32__x20_b`.  Links to "#2 b" or "#2%20b" are
///   changed likewise.
/// - Content that looks different from place to place (other colours, fixed widths under another scale,
///   patterns) is written again for each such place, within limits: a warning says where they are
///   reached.
SvgResult WriteSvg(const VEKPrtModel& iModel, int iPage, std::ostream& ioStream,
                   std::ostream& ioWarnings = std::cerr);

} // namespace vekprt

#endif
