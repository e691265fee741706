// Writes a page of a model as SVG.
#ifndef SvgWriter_H
#define SvgWriter_H

#include <iosfwd>
#include <iostream>

class VEKMetaClass;
class VEKPrtModel;

/// Writes the page at position \p iPage (from 1) as one SVG document.
///
/// False, and nothing written, when there is no such page; a page without size gives a drawing without one.
/// What cannot be drawn is left out with a line on \p ioWarnings, and so is an identifier that stood before.
/// What the model leaves to its consumers is read like this:
/// - y points up; the origin of a page is its lower left corner; the page's matrix applies to all of it.
/// - Angles are degrees, counter-clockwise.  Arcs run counter-clockwise from the start to the end angle, and
///   all the way round where these are equal; those of an elliptical arc are parameters of the ellipse,
///   counted from its sloped axis.  The interior of an arc is cut off by its chord.
/// - Transforms are written in their order: the first one is the outermost.
/// - A line of fixed width is as wide as it says in page units, whatever the transforms.
/// - A dash pattern overrides the line type.  A transparency of 255 is opaque.
/// - A pattern image fills the parallelogram of its two vectors at the reference point, and repeats.
/// - A symbol is clipped to its box.  A pattern repeats its box over that of the nearest symbol around it, or
///   over the page.
/// - In a region the primitives follow one another; one that lies the other way round is turned.
/// - Extra spacing is expanded like the letters; in vertical text it stands between the lines.
/// - Of an image inside a page, origin, size and units are not read.
/// - A curve is drawn over the part of its parameter range that lies within its two bounds.
bool WriteSvg(const VEKPrtModel& iModel, int iPage, std::ostream& ioStream,
              std::ostream& ioWarnings = std::cerr);

/// Whether elements of this class are written; every element class is.
bool CanWriteSvg(const VEKMetaClass* iClass);

#endif
