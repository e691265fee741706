// What the tests share: counts of live objects and memory blocks, failing allocations, small conveniences.
#ifndef TestSupport_H
#define TestSupport_H

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <string>

#include "AllElements.h"
#include "VEKPixelImage.h"
#include "VEKPrtFillAttributes.h"
#include "VEKPrtWalk.h"

using namespace vekprt;

/// Blocks that the process has from any form of operator new.
long LiveBlocks();
/// The most of them at a time since the test began or ResetPeak was called.
long PeakBlocks();
void ResetPeak();
/// Requests made so far.
long Allocations();

/// Makes the \p iNth allocation from now on (from 0) fail, and with \p iSticky all that follow, until Stop.
class AllocationFaults {
public:
    AllocationFaults(long iNth, bool iSticky);
    ~AllocationFaults() { Stop(); }
    AllocationFaults(const AllocationFaults&) = delete;
    AllocationFaults& operator=(const AllocationFaults&) = delete;
    /// How many allocations were made to fail.
    long Stop();
};

/// Runs an operation in which the \p iNth allocation (from 0) fails; the operation must get that far.
template <class Operation>
void WithFault(long iNth, Operation iOperation) {
    AllocationFaults faults(iNth, false);
    iOperation();
    EXPECT_EQ(faults.Stop(), 1) << "allocation " << iNth << " was not reached";
}

/// The behaviour demands that this test loses framework objects and memory blocks (those of the objects
/// included); any other that is left at the end of a test fails it.  What is allocated in the scope is no
/// leak to the sanitizer.
class DemandedLeak {
public:
    DemandedLeak(long iObjects, long iBlocks);
    ~DemandedLeak();
    DemandedLeak(const DemandedLeak&) = delete;
    DemandedLeak& operator=(const DemandedLeak&) = delete;
    static void Add(long iObjects, long iBlocks);
};

/// A value of one of the host's enumerations: tests know them by number, as the library does.
template <class Enumeration>
constexpr Enumeration Value(int iValue) {
    return static_cast<Enumeration>(iValue);
}

template <class T>
unsigned long Count(T* iObject) {
    iObject->AddRef();
    return iObject->Release();
}
template <class T>
unsigned long Count(const VEKRef<T>& iObject) {
    return Count(iObject.Get());
}

/// The duplicate, typed; null when there is none.  The argument starts out poisoned and must be overwritten.
template <class Element>
VEKRef<Element> Duplicated(Element& ioSource) {
    auto* copy = reinterpret_cast<VEKPrtGraphicPrimitiveElt*>(~std::uintptr_t{0});
    ioSource.Duplicate(copy);
    return VEKRef<Element>::Adopt(static_cast<Element*>(copy));
}

/// A copy constructed from itself, in place; the memory is filled with junk first.
template <class T, class Check>
void WithSelfCopy(Check iCheck) {
    alignas(T) unsigned char memory[sizeof(T)];
    std::fill(std::begin(memory), std::end(memory), static_cast<unsigned char>(0xA5));
    T* const object = reinterpret_cast<T*>(memory);
    ::new (memory) T(*object);
    iCheck(*object);
    object->~T();
}

/// An image that cannot be copied.
struct UncopyableImage : VEKPixelImage {
    UncopyableImage() : VEKPixelImage(1, 1) {}
    VEKPixelImage* Clone() const override { return nullptr; }
};

inline VEKPixelImage* ImageOf(VEKPrtFillAttributes& ioFill) {
    VEKPixelImage* image = nullptr;
    VEKMathVector2D first, second;
    ioFill.GetPattern(image, first, second);
    return image;
}

template <class Element>
std::string Id(const Element& iElement) {
    VEKUnicodeString id;
    iElement.GetID(id);
    return id.ToUtf8();
}

// All that hold members are alike but for the names.

template <class Holder>
constexpr bool isModel = std::is_base_of_v<VEKPrtModel, Holder>;
template <class Holder>
constexpr bool isFigure = std::is_base_of_v<VEKPrtClosedFigureElt, Holder>;
template <class Holder, class OfModel, class OfFigure, class OfContainer>
using ByHolder =
    std::conditional_t<isModel<Holder>, OfModel, std::conditional_t<isFigure<Holder>, OfFigure, OfContainer>>;
template <class Holder>
using MemberOf = ByHolder<Holder, VEKPrtImageElt, VEKPrtClosedFigureRegionElt, VEKPrtGraphicPrimitiveElt>;

template <class Holder>
void AddTo(Holder& ioHolder, VEKBaseUnknown* iMember) {
    auto* const member = static_cast<MemberOf<Holder>*>(iMember);
    if constexpr (isModel<Holder>)
        ioHolder.AddImage(member);
    else
        ioHolder.AddChild(member);
}
template <class Holder>
void RemoveFrom(Holder& ioHolder, VEKBaseUnknown* iMember) {
    auto* const member = static_cast<MemberOf<Holder>*>(iMember);
    if constexpr (isModel<Holder>)
        ioHolder.RemoveImage(member);
    else
        ioHolder.RemoveChild(member);
}

#endif
