/// \file
/// The meta-object family that every element class declares.
#ifndef VEKPrtMetaFamily_H
#define VEKPrtMetaFamily_H

#include "VEKBaseUnknown.h"
#include "VEKPrt2DModelExport.h"

/// Declares the seven members by which the framework identifies an element class at run time.
///
/// The first call of any of them except CreateItself registers the class and fills its cache, the exported
/// variable meta_object__ followed by the length of the name and the name; the cache is never cleared.
/// ClassName and IsA yield the same string, the name of the class that defines them; a class derived by a
/// client declares the family again and defines all seven, or it reports its base's name.
///
/// While the class cannot be registered because an allocation fails, the names and ClassId are null and
/// IsAKindOf is 0; each call tries again.  When only the base cannot be registered, the class is, and stays
/// without its base: IsAKindOf is 0 for the base's name.  CreateItself always yields null: no element is
/// created by name.
#define VEKPRT_DECLARE_META_FAMILY                                                                           \
    static VEKMetaClass* MetaObject();                                                                       \
    static const char* ClassId();                                                                            \
    static const char* ClassName();                                                                          \
    static VEKBaseUnknown* CreateItself();                                                                   \
    VEKMetaClass* GetMetaObject() const override;                                                            \
    const char* IsA() const override;                                                                        \
    int IsAKindOf(const char* iClassName) const override;

#endif
