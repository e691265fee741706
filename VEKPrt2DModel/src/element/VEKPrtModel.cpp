#include "VEKPrtModel.h"

#include "MemberList.h"
#include "VEKListPtrVEKPrtImageElt.h"
#include "VEKPrtImageElt.h"

using ImageList = vekprt::MemberList<VEKListPtrVEKPrtImageElt, VEKPrtImageElt>;

VEKPrtModel::VEKPrtModel() = default;

VEKPrtModel::VEKPrtModel(const VEKPrtModel& iOther) : VEKPrtModel() {
    if (&iOther != this) ImageList::Share(_images, iOther._images, vekprt::completeWalkStart);
}

VEKPrtModel::~VEKPrtModel() { ImageList::Destroy(_images); }

VEKPrtModel& VEKPrtModel::operator=(const VEKPrtModel& iOther) {
    if (&iOther == this) return *this;
    const vekprt::SourceGuard guard(iOther, _images);
    VEKBaseUnknown::operator=(iOther);
    ImageList::Share(_images, iOther._images, vekprt::completeWalkStart);
    return *this;
}

void VEKPrtModel::AddImage(VEKPrtImageElt* iImage) { ImageList::Add(_images, iImage); }
void VEKPrtModel::RemoveImage(VEKPrtImageElt* iImage) { ImageList::Remove(_images, iImage); }
void VEKPrtModel::GetImages(VEKListPtrVEKPrtImageElt*& oImages) const { oImages = _images; }
