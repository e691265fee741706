// Fails every allocation of every operation of every class in turn, alone and from there on.
#include "Rows.h"

namespace {

using Base = VEKPrtGraphicPrimitiveElt;
using ElementsAndModel = Join<AllElements, testing::Types<VEKPrtModel>>::Result;
SUITE_OF(EveryAllocation, ElementsAndModel);

template <class Class>
constexpr bool isElement = !isModel<Class>;

// A member that is its own duplicate, with one more reference: its count tells how often it was taken.
template <class Member>
struct Counting : Member {
    using Member::Duplicate;
    void Duplicate(Base*& oCopy) override { Hand(oCopy); }
    template <class Out>
    void Hand(Out*& oCopy) {
        this->AddRef();
        oCopy = this;
    }
};
struct CountingRegion : Counting<VEKPrtClosedFigureRegionElt> {
    using Counting::Duplicate;
    void Duplicate(VEKPrtClosedFigureRegionElt*& oCopy) override { Hand(oCopy); }
};
template <class Holder>
using CountingMember = std::conditional_t<isFigure<Holder>, CountingRegion, Counting<MemberOf<Holder>>>;

// One operation on a new object: yields that object, or the one that it made.  A setter says what to look at.
template <class Class>
struct Operation {
    std::string name;
    std::function<VEKRef<Class>(const VEKRef<Class>&)> run;
    std::function<testing::AssertionResult(const Class&)> holds = {};
};

template <class Class, class Fielded>
void AddSetters(std::vector<Operation<Class>>& ioOperations, const Fields<Fielded>& iFields) {
    for (const Field<Fielded>& field : iFields)
        if (field.count > 0)
            ioOperations.push_back({field.name,
                                    [=](const VEKRef<Class>& iTarget) {
                                        field.set(*iTarget, 1);
                                        return iTarget;
                                    },
                                    [=](const Class& iTarget) { return field.has(iTarget, 1); }});
}

template <class Class>
std::vector<Operation<Class>> OperationsOf(Class& ioSource) {
    using Ref = VEKRef<Class>;
    std::vector<Operation<Class>> operations = {
        {"copied", [&](const Ref&) { return Ref::Adopt(new Class(ioSource)); }},
        {"assigned", [&](const Ref& iTarget) {
             *iTarget = ioSource;
             return iTarget;
         }}};
    if constexpr (isElement<Class>) {
        operations.push_back({"duplicated", [&](const Ref&) { return Duplicated(ioSource); }});
        AddSetters(operations, FieldsOf<Base>());
    }
    AddSetters(operations, FieldsOf<Class>());
    if constexpr (HasMembers<Class>::value)
        operations.push_back(
            {"added to",
             [&](const Ref& iTarget) {
                 AddTo(*iTarget, &*ChildrenOf(ioSource).begin());
                 return iTarget;
             },
             [](const Class& iTarget) { return testing::AssertionResult(!ChildrenOf(iTarget).IsEmpty()); }});
    return operations;
}

// Of the page, a failure may lose arrays of a colour table: those that came before or after the one that
// failed.
template <class Class>
constexpr long mayLose = std::is_same_v<Class, VEKPrtImageElt> ? 2 : 0;

} // namespace

TYPED_TEST(EveryAllocation, CanFail) {
    std::optional<DemandedLeak> leak;
    if (mayLose < TypeParam >> 0) leak.emplace(0, 0);
    const auto source = Make<TypeParam>();
    VEKRef<VEKBaseUnknown> member;
    SetFields(*source);
    if constexpr (isElement<TypeParam>) SetFields<Base>(*source);
    if constexpr (HasMembers<TypeParam>::value) {
        const auto counting = Make<CountingMember<TypeParam>>();
        AddTo(*source, counting.Get());
        member = counting;
    }
    const auto operations = OperationsOf(*source);
    for (const bool sticky : {false, true})
        for (const auto& operation : operations) {
            long hits = 1;
            for (long nth = 0; hits > 0; ++nth) {
                SCOPED_TRACE(std::string(Row<TypeParam>::name) + " " + operation.name + ", allocation " +
                             std::to_string(nth) + (sticky ? " and all that follow" : ""));
                const long objects = VEKBaseUnknown::CountLiveObjects(), blocks = LiveBlocks();
                {
                    const auto target = Make<TypeParam>();
                    AllocationFaults faults(nth, sticky);
                    const auto result = operation.run(target);
                    hits = faults.Stop();
                    if constexpr (HasMembers<TypeParam>::value) {
                        const auto* const list = result ? ListOf(*result) : nullptr;
                        EXPECT_EQ(Count(member), list ? 3UL : 2UL);
                        if (list && list->Size() == 0) member->Release(); // lost, as the list could not grow
                    }
                    if (hits == 0 && !operation.holds) ExpectFields(*result, 1, "in the end");
                    if (operation.holds) {
                        operation.run(target);
                        EXPECT_TRUE(operation.holds(*target)) << "set again";
                    }
                }
                const long lost = LiveBlocks() - blocks;
                EXPECT_EQ(VEKBaseUnknown::CountLiveObjects(), objects);
                EXPECT_GE(lost, 0);
                EXPECT_LE(lost, hits > 0 ? mayLose<TypeParam> : 0);
                DemandedLeak::Add(0, lost);
                ExpectFields(*source, 1, "the source");
                if constexpr (isElement<TypeParam>) ExpectFields<Base>(*source, 1, "the source");
                EXPECT_EQ(member ? Count(member) : 2UL, 2UL) << "the source's member";
                if (nth == 0 && operation.name == "copied") {
                    EXPECT_GT(hits, 0) << "nothing failed";
                }
            }
        }
}
