// The list of members that a container, a closed figure and the model hold by reference count.
#ifndef MemberList_H
#define MemberList_H

#include <new>

#include "VEKListPtrVEKPrtGraphicPrimitiveElt.h"
#include "VEKPrtGraphicPrimitiveElt.h"

namespace vekprt {

// Where the walk starts that releases the old members in an assignment.
//
// Containers walk positions 0 to count - 1: position 0 yields null, and the member at the last position keeps
// its reference and outlives the list.  Clients see that count, so it stays
// (EveryContainer.LeavesTheLastReference).
constexpr int containerWalkStart = 0;
// The closed figure and the model release every member.
constexpr int completeWalkStart = 1;

/// The operations on a holder's `List*` of `Member*`: created when first needed, null until then.
///
/// The holder has one reference on each occurrence of a member.  A list silently drops an Append when it
/// cannot grow; the reference taken for it is then never given back.
///
/// The fields, and the lengths of the lists, are read anew after each call of a member's function: what a
/// member does there may change the holder or the source.  Lists are made and freed by the global operators,
/// whatever operators the host's collection has.
template <class List, class Member>
struct MemberList {
    static void Add(List*& ioList, Member* iMember) {
        if (!iMember) return;
        if (!ioList) ioList = ::new (std::nothrow) List(0);
        if (ioList) AppendShared(ioList, iMember);
    }

    static void Remove(List* ioList, Member* iMember) {
        if (!iMember || !ioList) return;
        const int position = ioList->Locate(iMember, 1);
        if (position <= 0) return;
        ioList->RemovePosition(position);
        iMember->Release();
    }

    static void Destroy(List*& ioList) {
        ReleaseWalk(ioList, completeWalkStart);
        ::delete ioList;
        ioList = nullptr;
    }

    /// Makes \p ioList share the members of \p iSource; the old members are released by a walk that starts at
    /// \p iFirst and covers as many positions as the list has members.  Two holders without a list stay
    /// without; otherwise a list is made, even for a source without one.
    static void Share(List*& ioList, List* const& iSource, int iFirst) {
        if (ioList == iSource) return;
        ReleaseWalk(ioList, iFirst);
        ::delete ioList;
        ioList = ::new (std::nothrow) List(0);
        if (!ioList) return;
        for (int position = 1; iSource && position <= iSource->Size(); ++position)
            if (Member* const member = At(*iSource, position)) AppendShared(ioList, member);
    }

    /// Makes a list of duplicates, one for each occurrence.  The reference that a duplicate comes with is
    /// the list's.
    static void Duplicate(List*& oList, List* const& iSource) {
        if (!iSource) return;
        oList = ::new (std::nothrow) List(0);
        if (!oList) return;
        for (int position = 1; iSource && position <= iSource->Size(); ++position) {
            Member* const member = At(*iSource, position);
            if (!member) continue;
            Member* copy = nullptr;
            member->Duplicate(copy);
            if (copy) oList->Append(copy);
        }
    }

private:
    static Member* At(const List& iList, int iPosition) { return static_cast<Member*>(iList[iPosition]); }

    static void AppendShared(List* const& ioList, Member* iMember) {
        iMember->AddRef();
        if (ioList) ioList->Append(iMember);
    }

    static void ReleaseWalk(List* const& iList, int iFirst) {
        for (int position = iFirst; iList && position < iFirst + iList->Size(); ++position)
            if (Member* const member = At(*iList, position)) member->Release();
    }
};

using ChildList = MemberList<VEKListPtrVEKPrtGraphicPrimitiveElt, VEKPrtGraphicPrimitiveElt>;

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
