/// \file
/// The colours of a page.
#ifndef VEKPrtColourTable_H
#define VEKPrtColourTable_H

#include "VEKPrt2DModelExport.h"

/// RGB colours, 8 bits a component, appended and addressed by index from 0.
///
/// Operations return 1 for success and -1 for failure (an index out of range, no such colour, a failed
/// allocation), and write their outputs only on success.  Copies are independent.
class VEKPRT2DMODEL_API VEKPrtColourTable {
public:
    /// Empty.
    VEKPrtColourTable();

    /// Empty when allocation fails.
    VEKPrtColourTable(const VEKPrtColourTable& iOther);
    virtual ~VEKPrtColourTable();

    /// Does nothing when neither table has arrays; empty when allocation fails.
    VEKPrtColourTable& operator=(const VEKPrtColourTable& iOther);

    virtual int GetColourCount(int& oCount) const;

    /// Appends the colour, even one that the table has already, and yields its index.
    ///
    /// When allocation fails, all stored colours stay readable, and a later addition tries again.
    virtual int AddColour(unsigned char iRed, unsigned char iGreen, unsigned char iBlue,
                          unsigned int& oIndex);
    virtual int ModifyColour(unsigned int iIndex, unsigned char iRed, unsigned char iGreen,
                             unsigned char iBlue);

    /// The lowest index of an equal colour; -1 is returned if there is none.
    virtual int GetColourIndex(unsigned int& oIndex, unsigned char iRed, unsigned char iGreen,
                               unsigned char iBlue) const;
    virtual int GetColour(unsigned int iIndex, unsigned char& oRed, unsigned char& oGreen,
                          unsigned char& oBlue) const;

private:
    VEKPRT2DMODEL_LOCAL bool Reallocate();
    VEKPRT2DMODEL_LOCAL void CopyOwn(const VEKPrtColourTable& iOther);

    unsigned int _capacity = 0;
    unsigned int _count = 0;
    unsigned char* _red = nullptr;
    unsigned char* _green = nullptr;
    unsigned char* _blue = nullptr;
    // The length of the arrays; below _capacity once a growth has failed.
    unsigned int _allocated = 0;
};

#endif
