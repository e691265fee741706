/// \file
/// The members of lists, for range-based loops, and where they are inserted.
#ifndef VEKPrtChildren_H
#define VEKPrtChildren_H

#include <cstddef>
#include <iterator>

#include "VEKListPtrVEKPrtClosedFigureRegionElt.h"
#include "VEKListPtrVEKPrtGraphicPrimitiveElt.h"
#include "VEKListPtrVEKPrtImageElt.h"
#include "VEKPrtElements.h"
#include "VEKPrtModel.h"

namespace vekprt {

/// The members of a list that are not null, in order.  Null, for a holder that has no list, is no members.
///
/// Borrows the list, and adds no references.  A loop does not see members that are appended while it runs;
/// after one was removed, it may pass over the next.
template <class Member>
class VEKPrtMembers {
public:
    /// A forward iterator.
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
        bool operator==(const Iterator& iOther) const { return _position == iOther._position; }
        bool operator!=(const Iterator& iOther) const { return !(*this == iOther); }

    private:
        // Goes on to the next member from the position on.  A list that has become shorter yields null for
        // the positions that it lost.
        void FindMember() {
            for (; _position < _end; ++_position) {
                _member = static_cast<Member*>((*_list)[_position]);
                if (_member) return;
            }
        }

        const VEKRawCollPV* _list;
        int _position;
        int _end;
        Member* _member = nullptr;
    };

    explicit VEKPrtMembers(const VEKRawCollPV* iList) : _list(iList), _end(iList ? iList->Size() + 1 : 1) {}
    Iterator begin() const { return Iterator(_list, 1, _end); }
    Iterator end() const { return Iterator(_list, _end, _end); }
    bool IsEmpty() const { return begin() == end(); }

private:
    const VEKRawCollPV* _list;
    int _end;
};

/// \name The list of a holder
/// @{

/// Lent, and null where there is none.  A holder may be const although its getter is not.
template <class Container>
typename std::enable_if<HasChildren<Container>::value, VEKListPtrVEKPrtGraphicPrimitiveElt*>::type
ListOf(const Container& iContainer) {
    VEKListPtrVEKPrtGraphicPrimitiveElt* children = nullptr;
    const_cast<Container&>(iContainer).GetChildren(children);
    return children;
}
inline VEKListPtrVEKPrtClosedFigureRegionElt* ListOf(const VEKPrtClosedFigureElt& iFigure) {
    VEKListPtrVEKPrtClosedFigureRegionElt* regions = nullptr;
    const_cast<VEKPrtClosedFigureElt&>(iFigure).GetChildren(regions);
    return regions;
}
inline VEKListPtrVEKPrtImageElt* ListOf(const VEKPrtModel& iModel) {
    VEKListPtrVEKPrtImageElt* images = nullptr;
    iModel.GetImages(images);
    return images;
}
/// @}

/// \name What a list holds
/// @{

/// The members of a list, for a loop.
inline VEKPrtMembers<VEKPrtGraphicPrimitiveElt> MembersOf(const VEKListPtrVEKPrtGraphicPrimitiveElt* iList) {
    return VEKPrtMembers<VEKPrtGraphicPrimitiveElt>(iList);
}
inline VEKPrtMembers<VEKPrtClosedFigureRegionElt>
MembersOf(const VEKListPtrVEKPrtClosedFigureRegionElt* iList) {
    return VEKPrtMembers<VEKPrtClosedFigureRegionElt>(iList);
}
inline VEKPrtMembers<VEKPrtImageElt> MembersOf(const VEKListPtrVEKPrtImageElt* iList) {
    return VEKPrtMembers<VEKPrtImageElt>(iList);
}
/// @}

/// The children of a container, the regions of a closed figure, the pages of a model.
template <class Holder>
auto ChildrenOf(const Holder& iHolder) -> decltype(MembersOf(ListOf(iHolder))) {
    return MembersOf(ListOf(iHolder));
}

/// Adds \p iChild at position \p iPosition, from 1; the children from there on move up by one.
///
/// References are those of AddChild.  A position past the end appends; what AddChild does not add moves
/// nothing.
template <class Holder, class Child>
void InsertChild(Holder& ioHolder, Child* iChild, int iPosition) {
    const auto* const before = ListOf(ioHolder);
    const int count = before ? before->Size() : 0;
    ioHolder.AddChild(iChild);
    auto* const list = ListOf(ioHolder);
    if (!list || list->Size() == count) return;
    // Removing a position makes room for appending: no allocation can fail here.
    for (int moved = iPosition; moved <= count; ++moved) {
        void* const member = (*list)[iPosition];
        list->RemovePosition(iPosition);
        list->Append(member);
    }
}

} // namespace vekprt

#endif
