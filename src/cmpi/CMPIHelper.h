// CMPIHelper: conversion between the object manager's CMPI data and the
// framework's values (CIMObjectPath, CIMInstance, CIMProperty,
// CIMMethodParam), and the mapping of framework error codes to CMPI rc values.
//
// Every CMPI object made here is made with the broker's encapsulated
// constructors; every CMPI object read here is read through its own function
// table. The framework values are plain copies: nothing keeps a CMPI handle.
// Failures are thrown as CIMException:
//   3 " :: Invalid namespace"  the path's namespace cannot be read,
//   5 " :: Invalid class"      the path's class name cannot be read,
//   7 " :: Not supported"      a value type outside the conversion table,
//   1 " :: Operation Failed"   anything else the broker refuses.
#ifndef VEX_CMPI_CMPIHELPER_H
#define VEX_CMPI_CMPIHELPER_H

#include <cmpidt.h>
#include <cmpift.h>

#include <string>
#include <vector>

#include "cmpi/InstanceFactory.h"
#include "framework/CIMInstance.h"
#include "framework/CIMMethodParam.h"
#include "framework/CIMObjectPath.h"

namespace vex::cim::adap::cmpi {

class CMPIHelper {
public:
    CMPIHelper() = delete;

    using CIMObjectPath = fwf::CIMObjectPath;
    using CIMInstance = fwf::CIMInstance;
    using CIMMethodParam = fwf::CIMMethodParam;

    // CMPI path to framework path; the key bindings too when withKeys. A path
    // without host gets the local host name. A null namespace or class name
    // is logged and left empty (the caller decides what that means).
    static void CMPIObjectPathToFrameworkObjectPath(const CMPIObjectPath* op, bool withKeys,
                                                    CIMObjectPath& path);
    // Replaces path's key bindings with all keys of op.
    static void setKeys(const CMPIObjectPath* op, CIMObjectPath& path);

    // CMPI instance (its path with keys and all its properties) to framework.
    static void CMPIInstanceToFrameworkInstance(const CMPIInstance* ci, CIMObjectPath& path,
                                                CIMInstance& inst);
    // Appends every property of ci to inst.
    static void setProps(const CMPIInstance* ci, CIMInstance& inst);

    // A new CMPI path, or null when the broker cannot make one.
    static CMPIObjectPath* FrameworkObjectPathToCMPIObjectPath(const CIMObjectPath& path,
                                                               const CMPIBroker* broker);
    // The same from the parts of a path.
    static CMPIObjectPath* newCMPIObjectPath(const std::string& host, const std::string& nameSpace,
                                             const std::string& className,
                                             const std::vector<fwf::CIMProperty>& keys,
                                             const CMPIBroker* broker);
    // A new CMPI instance holding the properties named in `properties` (all
    // when it is null; names compared ignoring case), or null when the broker
    // cannot make the instance or its path.
    static CMPIInstance* FrameworkInstanceToCMPIInstance(const CIMInstance& inst,
                                                         const CMPIBroker* broker,
                                                         const char* const* properties);
    // The same, made by the answer's factory (a clone of an empty instance
    // of the class where the broker allows): the handle owns it.
    static InstanceHandle FrameworkInstanceToCMPIInstance(const CIMInstance& inst,
                                                          const CMPIBroker* broker,
                                                          const char* const* properties,
                                                          InstanceFactory& factory);

    // Method input: each argument added to params with addArgument.
    static void CMPIArgsToFrameWorkMethodParam(const CMPIArgs* in, CIMMethodParam& params);
    // Method output: each supported parameter added to out; parameters of
    // other types are logged and skipped. Throws when the broker refuses.
    static bool FrameworkArgumentsToCMPIArguments(const CIMMethodParam& params, CMPIArgs* out,
                                                  const CMPIBroker* broker);

    // A null-terminated list of names (a CMPI property list) to a vector;
    // out is replaced. A null list gives an empty vector.
    static void ConvertChartoStringVector(const char* const* list, std::vector<std::string>& out);

    // Framework codes 2..18 are CMPI rc values as they stand; all others are 1.
    static CMPIrc ConvertFrameWorkErrorCodeToCmpiErrorCode(unsigned int code);

    // The association classes served for the namespace of src whose plug-in
    // has src's class at one of its ends, restricted to subclasses of
    // assocClass when that is given (non-null, non-empty). Names are the
    // classes' proper spellings.
    static void GetAssociationClasses(const CIMObjectPath& src, const char* assocClass,
                                      const CMPIBroker* broker, std::vector<std::string>& names);
};

}  // namespace vex::cim::adap::cmpi

#endif
