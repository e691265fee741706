/// \file
/// Run-time class information and its registry.
#ifndef VEKMetaClass_H
#define VEKMetaClass_H

#include "VEKFrameworkExport.h"

/// The sort of class that a meta-object describes; element classes register as VEKTypeImplementation.
enum ENUMTypeOfClass : int { VEKTypeInterface = 0, VEKTypeImplementation = 1, VEKTypeExtension = 2 };

/// Describes one class at run time.
///
/// Only fct_RetrieveMetaObject makes meta-objects, one per class name.  They and the strings that they hand
/// out live as long as the process.
class VEKFRAMEWORK_API VEKMetaClass {
public:
    VEKMetaClass(const VEKMetaClass&) = delete;
    VEKMetaClass& operator=(const VEKMetaClass&) = delete;

    const char* GetName() const { return _name; }
    /// Component and class name, joined by a full stop: "PrintBase.VEKPrtLineElt".
    const char* GetId() const { return _id; }
    /// Null for a class that was registered without a base, as VEKBaseUnknown is.
    VEKMetaClass* GetBase() const { return _base; }
    /// Instance size in bytes.
    long GetSize() const { return _size; }

    /// 1 for the name of the class itself or of one of its bases, otherwise, also for null, 0.
    int IsAKindOf(const char* iClassName) const;

private:
    friend VEKFRAMEWORK_API VEKMetaClass* fct_RetrieveMetaObject(const char*, ENUMTypeOfClass, VEKMetaClass*,
                                                                 const char*, const char*, long);
    VEKMetaClass(const char* iId, const char* iName, VEKMetaClass* iBase, long iSize)
        : _id(iId), _name(iName), _base(iBase), _size(iSize) {}
    ~VEKMetaClass() = default;

    const char* _id;
    const char* _name;
    VEKMetaClass* _base;
    long _size;
    VEKMetaClass* _next = nullptr;
};

/// Registers class \p iClassName on the first call and returns that same meta-object on later ones.
///
/// The strings are copied.  \p iLateType names a type to be bound later ("VEKnull": none), which this
/// implementation ignores.  Returns null if allocation fails (a later call tries again) or \p iClassName is
/// null.  Takes no lock.
VEKFRAMEWORK_API VEKMetaClass* fct_RetrieveMetaObject(const char* iClassName, ENUMTypeOfClass iType,
                                                      VEKMetaClass* iBaseMeta, const char* iLateType,
                                                      const char* iComponent, long iSize);

#endif
