// The members of a list, for range-based loops.
#ifndef VEKPrtChildren_H
#define VEKPrtChildren_H

#include <cstddef>
#include <iterator>
#include <utility>

#include "VEKListPtrVEKPrtClosedFigureRegionElt.h"
#include "VEKListPtrVEKPrtGraphicPrimitiveElt.h"
#include "VEKListPtrVEKPrtImageElt.h"
#include "VEKPrtClosedFigureElt.h"
#include "VEKPrtClosedFigureRegionElt.h"
#include "VEKPrtImageElt.h"
#include "VEKPrtModel.h"

/// The members of a list that are not null, in order.  Null, for a holder that has no list, is no members.
///
/// Borrows the list, and adds no references.  Members appended while a loop runs are not seen by it; after
/// one was removed, the next may be passed over.
template <class Member>
class VEKPrtMembers {
public:
    /// A forward iterator; equal to end() behind the last member.
    class Iterator {
    public:
        using iterator_category = std::forward_iterator_tag;
        using value_type = Member;
        using difference_type = std::ptrdiff_t;
        using pointer = Member*;
        using reference = Member&;

        Iterator(const VEKRawCollPV* iList, int iPosition, int iEnd)
            : _list(iList), _position(iPosition), _end(iEnd) {
            FindMember();
        }
        Member& operator*() const { return *_member; }
        Member* operator->() const { return _member; }
        Iterator& operator++() {
            ++_position;
            FindMember();
            return *this;
        }
        Iterator operator++(int) {
            const Iterator before = *this;
            ++*this;
            return before;
        }
        bool operator==(const Iterator& iOther) const {
            return _member == iOther._member && (!_member || _position == iOther._position);
        }
        bool operator!=(const Iterator& iOther) const { return !(*this == iOther); }

    private:
        // A list that has become shorter yields null for the positions that it lost.
        void FindMember() {
            for (_member = nullptr; !_member && _position < _end; _position += _member ? 0 : 1)
                _member = static_cast<Member*>((*_list)[_position]);
        }

        const VEKRawCollPV* _list;
        int _position;
        int _end;
        Member* _member = nullptr; // null at the end
    };

    explicit VEKPrtMembers(const VEKRawCollPV* iList) : _list(iList), _end(iList ? iList->Size() + 1 : 1) {}
    Iterator begin() const { return Iterator(_list, 1, _end); }
    Iterator end() const { return Iterator(_list, _end, _end); }
    bool IsEmpty() const { return begin() == end(); }

private:
    const VEKRawCollPV* _list;
    int _end;
};

/// The elements of a list.
inline VEKPrtMembers<VEKPrtGraphicPrimitiveElt> MembersOf(const VEKListPtrVEKPrtGraphicPrimitiveElt* iList) {
    return VEKPrtMembers<VEKPrtGraphicPrimitiveElt>(iList);
}
/// The regions of a list.
inline VEKPrtMembers<VEKPrtClosedFigureRegionElt>
MembersOf(const VEKListPtrVEKPrtClosedFigureRegionElt* iList) {
    return VEKPrtMembers<VEKPrtClosedFigureRegionElt>(iList);
}
/// The pages of a list.
inline VEKPrtMembers<VEKPrtImageElt> MembersOf(const VEKListPtrVEKPrtImageElt* iList) {
    return VEKPrtMembers<VEKPrtImageElt>(iList);
}

/// The children of a group, page, pattern, symbol or region.  The container is not const because most of
/// their getters of children are not.
template <class Container>
auto ChildrenOf(Container& ioContainer)
    -> decltype(ioContainer.GetChildren(std::declval<VEKListPtrVEKPrtGraphicPrimitiveElt*&>()),
                VEKPrtMembers<VEKPrtGraphicPrimitiveElt>(nullptr)) {
    VEKListPtrVEKPrtGraphicPrimitiveElt* children = nullptr;
    ioContainer.GetChildren(children);
    return MembersOf(children);
}
/// The regions of a closed figure.
inline VEKPrtMembers<VEKPrtClosedFigureRegionElt> ChildrenOf(VEKPrtClosedFigureElt& ioFigure) {
    VEKListPtrVEKPrtClosedFigureRegionElt* regions = nullptr;
    ioFigure.GetChildren(regions);
    return MembersOf(regions);
}
/// The pages of a model.
inline VEKPrtMembers<VEKPrtImageElt> ChildrenOf(const VEKPrtModel& iModel) {
    VEKListPtrVEKPrtImageElt* images = nullptr;
    iModel.GetImages(images);
    return MembersOf(images);
}

#endif
