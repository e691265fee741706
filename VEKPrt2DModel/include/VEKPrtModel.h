// The root of a drawing.
#ifndef VEKPrtModel_H
#define VEKPrtModel_H

#include "VEKBaseUnknown.h"
#include "VEKPrt2DModelExport.h"

class VEKListPtrVEKPrtImageElt;
class VEKPrtImageElt;

/// An ordered list of images, each a page or canvas.  Not an element: no meta-object family, no
/// identity strings.
///
/// Copies, by constructor or assignment, share the images: each gains a reference.  Destruction gives
/// one reference back for each occurrence.
class VEKPRT2DMODEL_API VEKPrtModel : public VEKBaseUnknown {
public:
    /// Without pages.
    VEKPrtModel();

    /// Shares the images; the framework's data words are left out.
    VEKPrtModel(const VEKPrtModel& iOther);
    ~VEKPrtModel() override;

    /// Leaves an empty list, not null, when \p iOther has none and this model had one.
    VEKPrtModel& operator=(const VEKPrtModel& iOther);

    /// Appends \p iImage as the last page.
    ///
    /// As VEKPrtGroupElt::AddChild, but any image is accepted.
    virtual void AddImage(VEKPrtImageElt* iImage);

    /// Removes the first occurrence and releases it once; null and an absent image are ignored.
    virtual void RemoveImage(VEKPrtImageElt* iImage);

    /// The model's own list, null until an image was added: do not delete it, do not release its
    /// members.  Valid until the next assignment to the model or its destruction.
    virtual void GetImages(VEKListPtrVEKPrtImageElt*& oImages) const;

private:
    VEKListPtrVEKPrtImageElt* _images = nullptr;
};

#endif
