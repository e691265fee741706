// What a page holds, before it is drawn.
#ifndef Contents_H
#define Contents_H

#include <functional>
#include <unordered_set>

class VEKPrtGraphicPrimitiveElt;
class VEKPrtImageElt;
class VEKPrtModel;

namespace vekprt::drawing {

/// The page at position \p iPage (from 1); null if there is none.
VEKPrtImageElt* PageAt(const VEKPrtModel& iModel, int iPage);

struct Contents {
    /// Those that are held more than once.
    std::unordered_set<const VEKPrtGraphicPrimitiveElt*> shared = {};
    /// All elements, each counted once.
    long count = 0;
};
/// Calls \p iUse, if there is one, for each element once.
Contents ContentsOf(VEKPrtImageElt& ioPage,
                    const std::function<void(VEKPrtGraphicPrimitiveElt&)>& iUse = nullptr);

} // namespace vekprt::drawing

#endif
