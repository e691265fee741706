// Where elements are.
#ifndef Placement_H
#define Placement_H

#include <string>
#include <vector>

#include "Number.h"
#include "Records.h"

namespace vekprt::svg {

using namespace drawing;

struct SvgPage;

struct Place : drawing::Place {
    /// What coordinates of the element are rounded to.
    Grid grid = {};
};

std::string Matrix(const Affine& iMap);

/// Takes the transforms of an element into the page's place, for as long as it lives.  Then the place,
/// whatever has been changed in it, is what it was.
class Placement {
public:
    /// False, with a warning, for transforms that are out of range.
    Placement(SvgPage& ioPage, const VEKPrtGraphicPrimitiveElt& iElement,
              const std::vector<Elementary>& iTransforms = {});
    ~Placement();
    Placement(const Placement&) = delete;
    Placement& operator=(const Placement&) = delete;
    explicit operator bool() const { return _isInRange; }

    /// More of them, closer to the geometry.
    void Add(const std::vector<Elementary>& iTransforms);
    /// The value of the `transform` attribute.
    const std::string& Text() const { return _text; }

private:
    SvgPage& _page;
    const Place _outer;
    bool _isInRange;
    std::string _text;
};

} // namespace vekprt::svg

#endif
