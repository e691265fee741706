#include "VEKPrtModel.h"

#include "MemberProtocol.h"
#include "SourceGuard.h"
#include "VEKListPtrVEKPrtImageElt.h"
#include "VEKPrtImageElt.h"

using ImageProtocol = vekprt::MemberProtocol<VEKListPtrVEKPrtImageElt, VEKPrtImageElt>;

VEKPrtModel::VEKPrtModel() = default;

VEKPrtModel::VEKPrtModel(const VEKPrtModel& iOther) : VEKPrtModel() {
    if (&iOther != this) ImageProtocol::Share(_images, iOther._images, vekprt::completeReleaseStart);
}

VEKPrtModel::~VEKPrtModel() { ImageProtocol::Destroy(_images); }

VEKPrtModel& VEKPrtModel::operator=(const VEKPrtModel& iOther) {
    if (&iOther == this) return *this;
    const vekprt::SourceGuard guard(iOther, _images);
    VEKBaseUnknown::operator=(iOther);
    ImageProtocol::Share(_images, iOther._images, vekprt::completeReleaseStart);
    return *this;
}

void VEKPrtModel::AddImage(VEKPrtImageElt* iImage) { ImageProtocol::Add(_images, iImage); }
void VEKPrtModel::RemoveImage(VEKPrtImageElt* iImage) { ImageProtocol::Remove(_images, iImage); }
void VEKPrtModel::GetImages(VEKListPtrVEKPrtImageElt*& oImages) const { oImages = _images; }
