// Keeps the source of an assignment alive while the target gives up its old members.
#ifndef SourceGuard_H
#define SourceGuard_H

#include "VEKBaseUnknown.h"

namespace vekprt {

/// Keeps the source of an assignment alive while there is an old list to walk: the walk may release the last
/// owner of the source, which can be one of the old members or lie deeper in the tree.
class SourceGuard {
public:
    SourceGuard(const VEKBaseUnknown& iSource, const void* iOldList)
        : _source(iOldList ? const_cast<VEKBaseUnknown*>(&iSource) : nullptr) {
        // A source that nobody held before is being destroyed.  It keeps the reference: giving it back would
        // destroy the source a second time.
        if (_source && _source->AddRef() == 1) _source = nullptr;
    }
    ~SourceGuard() {
        if (_source) _source->Release();
    }
    SourceGuard(const SourceGuard&) = delete;
    SourceGuard& operator=(const SourceGuard&) = delete;

private:
    VEKBaseUnknown* _source;
};

} // namespace vekprt

#endif
