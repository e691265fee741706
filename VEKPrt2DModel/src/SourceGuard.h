// The guard of an assignment's source.
#ifndef SourceGuard_H
#define SourceGuard_H

#include "VEKBaseUnknown.h"

namespace vekprt {

/// Keeps the source of an assignment alive while the target releases the members of its old list: one of
/// them, or an element deeper in the tree, may be the last owner of the source.
class SourceGuard {
public:
    SourceGuard(const VEKBaseUnknown& iSource, const void* iOldList)
        : _source(iOldList ? const_cast<VEKBaseUnknown*>(&iSource) : nullptr) {
        // A source that nobody held before is being destroyed.  It keeps the reference: releasing it would
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
