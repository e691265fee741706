/// \file
/// How writing a page or a model has ended.
#ifndef WriteResult_H
#define WriteResult_H

namespace vekprt {

/// Result of the functions that write; converts to true when everything was written.
struct WriteResult {
    /// How much was written, and why not all.
    enum Status {
        Written,
        /// Nothing was written.
        NoSuchPage,
        /// The stream was not good, or failed on the way: what it was given is not a whole document.
        StreamFailed,
        /// Memory ran out, with the same consequence.
        OutOfMemory
    };
    Status status;

    explicit operator bool() const { return status == Written; }
};

} // namespace vekprt

#endif
