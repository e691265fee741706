// What containers, the closed figure and the model do alike with their list of members.
#ifndef MemberProtocol_H
#define MemberProtocol_H

#include <new>

#include "VEKListPtrVEKPrtGraphicPrimitiveElt.h"
#include "VEKPrtGraphicPrimitiveElt.h"

namespace vekprt {

// First position released when assignment drops the old members.
//
// Positions count from 1, but containers release positions 0 to count - 1.  Position 0 yields null, and the
// member at the last position keeps its reference and outlives the list: callers who assign to a filled
// container still own it (README, Copying).
constexpr int containerReleaseStart = 0;
// The closed figure and the model release every member.
constexpr int completeReleaseStart = 1;

/// The operations on a holder's `List*` of `Member*`, which is null until it is first needed.
///
/// The holder has one reference on each occurrence of a member.  A list silently drops an Append when it
/// cannot grow; the reference taken for it is then never given back.
///
/// The fields, and the lengths of the lists, are read anew after each call of a member's function: what a
/// member does there may change the holder or the source.  Lists are made and freed by the global operators,
/// whatever operators the host's collection has.
template <class List, class Member>
struct MemberProtocol {
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
        ReleaseFrom(ioList, completeReleaseStart);
        ::delete ioList;
        ioList = nullptr;
    }

    /// Makes \p ioList share the members of \p iSource; the old members are released from position \p iFirst
    /// on, as many positions as there are members.  Two holders without a list stay without; otherwise a list
    /// is made, even for a source without one.
    static void Share(List*& ioList, List* const& iSource, int iFirst) {
        if (ioList == iSource) return;
        ReleaseFrom(ioList, iFirst);
        ::delete ioList;
        ioList = ::new (std::nothrow) List(0);
        if (!ioList) return;
        for (int position = 1; iSource && position <= iSource->Size(); ++position)
            if (Member* const member = At(*iSource, position)) AppendShared(ioList, member);
    }

    /// Makes a list of duplicates, one for each occurrence.  The list takes over the reference that a
    /// duplicate comes with.
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

    static void ReleaseFrom(List* const& iList, int iFirst) {
        for (int position = iFirst; iList && position < iFirst + iList->Size(); ++position)
            if (Member* const member = At(*iList, position)) member->Release();
    }
};

using ChildProtocol = MemberProtocol<VEKListPtrVEKPrtGraphicPrimitiveElt, VEKPrtGraphicPrimitiveElt>;

} // namespace vekprt

#endif
