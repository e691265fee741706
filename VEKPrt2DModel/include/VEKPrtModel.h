/// \file
/// The root of a drawing.
#ifndef VEKPrtModel_H
#define VEKPrtModel_H

#include "VEKBaseUnknown.h"
#include "VEKPrt2DModelExport.h"

class VEKListPtrVEKPrtImageElt;
class VEKPrtImageElt;

/// An ordered list of images, each a page or canvas.  Not an element: it has no meta-object family and no
/// identity strings.
///
/// Holds one reference on each image, for each time that it was added.  Copies, by constructor or assignment,
/// share the images; if their list cannot grow, the images that it has no room for are left out, but keep the
/// reference taken for them.
class VEKPRT2DMODEL_API VEKPrtModel : public VEKBaseUnknown {
public:
    /// Without pages.
    VEKPrtModel();

    /// Does not copy the framework's data words.
    VEKPrtModel(const VEKPrtModel& iOther);
    ~VEKPrtModel() override;

    /// Releases all old images.  When \p iOther has no list and this model has one, this model ends with an
    /// empty list, not null.
    VEKPrtModel& operator=(const VEKPrtModel& iOther);

    /// Appends \p iImage as the last page.
    ///
    /// Like VEKPrtGroupElt::AddChild; an image needs no check against this model, as it can never be the
    /// model itself.
    virtual void AddImage(VEKPrtImageElt* iImage);

    /// Removes the first occurrence and releases it once.  Null and an absent image are ignored.
    virtual void RemoveImage(VEKPrtImageElt* iImage);

    /// The model's own list, null until an image is added or the model is copied from one that has a list.
    /// Do not delete it, and do not release its members.  Valid until the next assignment to the model or its
    /// destruction.
    virtual void GetImages(VEKListPtrVEKPrtImageElt*& oImages) const;

private:
    VEKListPtrVEKPrtImageElt* _images = nullptr;
};

#endif
