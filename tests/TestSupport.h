// What the tests share: counts of live objects and memory blocks, failing allocations, small conveniences.
#ifndef TestSupport_H
#define TestSupport_H

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <string>
#include <tuple>

#include "VEKListPtrVEKMathPoint2D.h"
#include "VEKPixelImage.h"
#include "VEKPrtColourTable.h"
#include "VEKPrtWalk.h"

using namespace vekprt;

// Types for typed tests, derived from the one list of element classes and from what each class has.

template <class... Classes>
testing::Types<Classes...> Listed(std::tuple<Classes...>);
template <template <class> class Has, class... Others, class... Classes>
auto Filter(ClassList<Classes...>) -> decltype(Listed(std::tuple_cat(
    std::declval<std::tuple<Others...>>(),
    std::declval<std::conditional_t<Has<Classes>::value, std::tuple<Classes>, std::tuple<>>>()...)));
/// The element classes that have something, and others.
template <template <class> class Has, class... Others>
using ElementsWith = decltype(Filter<Has, Others...>(ElementClasses()));

/// An array of points that is set alone.
template <class Class>
using HasPoints = std::is_constructible<Class, const VEKListPtrVEKMathPoint2D&>;
// Found for a class that has the function; the overload with an ellipsis for one that has not.
template <class Class>
auto HasList(Class* ioHolder) -> decltype(ListOf(*ioHolder), std::true_type());
std::false_type HasList(...);
/// Members by reference count, of whatever class.
template <class Class>
struct HasMembers : decltype(HasList(static_cast<Class*>(nullptr))) {};

template <class>
using Any = std::true_type;
using AllElements = ElementsWith<Any, VEKPrtGraphicPrimitiveElt>;
using Containers = ElementsWith<HasChildren>;
using Holders = ElementsWith<HasMembers, VEKPrtModel>;

/// A suite of typed tests.
#define SUITE_OF(Name, Types)                                                                                \
    template <class>                                                                                         \
    class Name : public testing::Test {};                                                                    \
    TYPED_TEST_SUITE(Name, Types, )

/// Blocks that the process has from any form of operator new.
long LiveBlocks();
/// The most of them at a time since this was called last.
long PeakBlocks();
/// Requests made so far.
long Allocations();

/// Makes the \p iNth allocation from now on (from 0) fail, and with \p iSticky all that follow, until Stop.
class AllocationFaults {
public:
    AllocationFaults(long iNth, bool iSticky);
    ~AllocationFaults() { Stop(); }
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
    static void Add(long iObjects, long iBlocks);
};

/// A value of one of the host's enumerations: tests know them by number, as the library does.
template <class Enumeration>
struct Value {
    int number;
    constexpr Value(int iNumber) : number(iNumber) {}
    constexpr operator Enumeration() const { return static_cast<Enumeration>(number); }
};

template <class Pointer>
unsigned long Count(const Pointer& iObject) {
    iObject->AddRef();
    return iObject->Release();
}

/// The duplicate, typed; null when there is none.  The argument starts out poisoned and must be overwritten.
template <class Element>
VEKRef<Element> Duplicated(Element& ioSource) {
    auto* copy = reinterpret_cast<VEKPrtGraphicPrimitiveElt*>(~std::uintptr_t{0});
    ioSource.Duplicate(copy);
    return VEKRef<Element>::Adopt(static_cast<Element*>(copy));
}

/// A client's class that does something when it is counted and while it is destroyed.
template <class Base>
struct Hooked : Base {
    using Base::Base;
    std::function<void()> counted;
    std::function<void(Hooked&)> destroyed;
    unsigned long AddRef() override {
        if (counted) counted();
        return Base::AddRef();
    }
    ~Hooked() override {
        if (destroyed) destroyed(*this);
    }
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
/// The identifiers of the members, joined.
template <class Holder>
std::string IdsIn(const Holder& iHolder) {
    std::string joined;
    for (const auto& child : ChildrenOf(iHolder))
        joined += Id(child);
    return joined;
}

// All that hold members are alike but for the names.

template <class Holder>
constexpr bool isModel = std::is_base_of_v<VEKPrtModel, Holder>;
template <class Holder>
using MemberOf = typename decltype(ChildrenOf(std::declval<Holder&>()).begin())::value_type;

template <class Holder>
void AddTo(Holder& ioHolder, MemberOf<Holder>* iMember) {
    if constexpr (isModel<Holder>)
        ioHolder.AddImage(iMember);
    else
        ioHolder.AddChild(iMember);
}

#endif
