#include "Contents.h"

#include <vector>

#include "VEKPrtWalk.h"

namespace vekprt::drawing {

VEKPrtImageElt* PageAt(const VEKPrtModel& iModel, int iPage) {
    const auto* const pages = ListOf(iModel);
    return pages ? static_cast<VEKPrtImageElt*>((*pages)[iPage]) : nullptr;
}

Contents ContentsOf(VEKPrtImageElt& ioPage, const std::function<void(VEKPrtGraphicPrimitiveElt&)>& iUse) {
    Contents contents;
    std::unordered_set<const VEKPrtGraphicPrimitiveElt*> seen;
    std::vector<VEKPrtGraphicPrimitiveElt*> left{&ioPage};
    while (!left.empty()) {
        VEKPrtGraphicPrimitiveElt& element = *left.back();
        left.pop_back();
        // What has a single reference has a single holder: most elements need not be remembered.
        element.AddRef();
        if (element.Release() > 1 && !seen.insert(&element).second) {
            contents.shared.insert(&element);
            continue;
        }
        ++contents.count;
        if (iUse) iUse(element);
        ForEachChild(element, [&](VEKPrtGraphicPrimitiveElt& ioChild) { left.push_back(&ioChild); });
    }
    return contents;
}

} // namespace vekprt::drawing
