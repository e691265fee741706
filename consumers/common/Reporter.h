// Warnings about what cannot be drawn, in the same words for all consumers.
#ifndef Reporter_H
#define Reporter_H

#include <initializer_list>
#include <ostream>
#include <string>

class VEKPrtGraphicPrimitiveElt;

namespace vekprt::drawing {

class Path;
struct Affine;

/// How many elements may be nested; a pattern counts as nestingOfPattern.  Readers of documents refuse to go
/// deeper than some 250.
constexpr int maxNesting = 230, nestingOfPattern = 4;

class Reporter {
public:
    /// Silent where \p ioWarnings is null.
    Reporter(const char* iConsumer, std::ostream* ioWarnings) : _consumer(iConsumer), _warnings(ioWarnings) {}

    /// One line, whatever an identifier or the problem holds.
    void Warn(const VEKPrtGraphicPrimitiveElt& iElement, const std::string& iProblem) const;
    void WarnOutOfRange(const VEKPrtGraphicPrimitiveElt& iElement) const {
        Warn(iElement, "values out of range; omitted");
    }

    // Warn unless all is finite and within single precision.
    bool AreInRange(const VEKPrtGraphicPrimitiveElt& iElement, std::initializer_list<double> iValues) const;
    bool IsInRange(const VEKPrtGraphicPrimitiveElt& iElement, const Path& iPath) const;
    bool IsInRange(const VEKPrtGraphicPrimitiveElt& iElement, const Affine& iMap) const;

private:
    const char* _consumer;
    std::ostream* _warnings;
};

} // namespace vekprt::drawing

#endif
