/// \file
/// What a group carries for all of its children.
#ifndef VEKPrtGroupAttributes_H
#define VEKPrtGroupAttributes_H

#include "VEKPrintLinkURI.h"
#include "VEKPrt2DModelExport.h"

/// The hyperlink target of a whole group.
class VEKPRT2DMODEL_API VEKPrtGroupAttributes {
public:
    /// No link.
    VEKPrtGroupAttributes();
    VEKPrtGroupAttributes(const VEKPrtGroupAttributes& iOther);
    virtual ~VEKPrtGroupAttributes();
    VEKPrtGroupAttributes& operator=(const VEKPrtGroupAttributes& iOther);

    /// Stored as given, neither parsed nor checked; empty for no link.
    virtual void SetLinkURI(VEKPrintLinkURI iURI);
    virtual void GetLinkURI(VEKPrintLinkURI& oURI) const;

private:
    VEKPrintLinkURI _linkURI;
};

#endif
