// The order of virtual functions, which other binaries are compiled against, with the reference framework.
#include "Rows.h"

namespace {

template <class Class>
void ExpectSlots(std::size_t iFirst, const Fields<Class>& iFields) {
    for (const auto& field : iFields)
        for (const std::size_t slot : field.slots)
            EXPECT_EQ(slot, iFirst++) << Row<Class>::name << ' ' << field.name;
    EXPECT_GT(iFirst, 0U);
}

using Records = testing::Types<Transform, Stroke, Fill, VEKPrtTextAttributes, VEKPrtMarkerAttributes,
                               VEKPrtGroupAttributes, VEKPrtColourTable>;
SUITE_OF(VirtualTableOfRecord, Records);
SUITE_OF(VirtualTableOfElement, AllElements);

} // namespace

// A destructor takes two slots, the first two of a record.
TYPED_TEST(VirtualTableOfRecord, HasItsOrder) { ExpectSlots<TypeParam>(2, FieldsOf<TypeParam>()); }

// Own functions follow the base's last, GetTitle.
TYPED_TEST(VirtualTableOfElement, HasItsOrder) {
    const bool isBase = std::is_same_v<TypeParam, VEKPrtGraphicPrimitiveElt>;
    ExpectSlots<TypeParam>(isBase ? 18 : 25, FieldsOf<TypeParam>());
}

TEST(VirtualTables, OfTheFrameworkAndTheModel) {
    using C = VEKPrtGraphicPrimitiveElt;
    using U = VEKBaseUnknown;
    ExpectSlots<C>(0, {FUNCTIONS("the host's protocol",
                                 SlotOf(static_cast<int (U::*)(const void*, void**)>(&C::QueryInterface)),
                                 SlotOf(&C::AddRef), SlotOf(&C::Release), SlotOf(&C::GetTypeInfoCount),
                                 SlotOf(&C::GetTypeInfo), SlotOf(&C::GetIDsOfNames), SlotOf(&C::Invoke))});
    ExpectSlots<C>(
        9, {FUNCTIONS("the host's object", SlotOf(&C::GetMetaObject), SlotOf(&C::IsA), SlotOf(&C::IsAKindOf),
                      SlotOf(&C::GetImpl), SlotOf(&C::SetImpl), SlotOf(&C::IsNull), SlotOf(&C::IsEqual),
                      SlotOf(static_cast<U* (U::*)(const char*)>(&C::QueryInterface)),
                      SlotOf(&C::ChangeComponentState))});
    ExpectSlots<VEKPrtModel>(18, FieldsOf<VEKPrtModel>());
}
