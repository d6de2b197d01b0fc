#include "providers/storage/model/ComputedModelClass.h"

#include <exception>

#include "framework/CIMException.h"
#include "providers/storage/ControllerMethod.h"
#include "platform/Tkz.h"

namespace vex::cim::fwf::storage {

namespace {

bool sameKeys(const CIMObjectPath& path, const CIMObjectPath& candidate) {
    const std::vector<CIMProperty>& wanted = path.getKeyBindings();
    const std::vector<CIMProperty>& held = candidate.getKeyBindings();
    return wanted.size() == held.size() && path == candidate;
}

}  // namespace

void buildDerived(const DerivedClassRow& row, const CIMObjectPath& request, std::vector<CIMInstance>& out) {
    try {
        CacheRecords records;
        ModelSink sink(request, row.className, out);
        row.build(records, sink);
    } catch (const CIMException&) {
        throw;
    } catch (const std::exception& e) {
        TkzLogMsg(TKZ_LOG_ERROR, "%s :: %s", row.className, e.what());
        throw CIMException(CIM_ERR_FAILED, "Failed to compute the instances of %s", row.className);
    }
}

void selectNamed(const CIMObjectPath& path, std::vector<CIMInstance>& all, std::vector<CIMInstance>& out) {
    const bool classPath = path.getKeyBindings().empty();
    for (CIMInstance& instance : all) {
        if (classPath || sameKeys(path, instance.getPath())) {
            out.push_back(std::move(instance));
        }
    }
}

void ComputedModelClass::getRepositoryObjects(CIMObjectPath& path, std::vector<CIMInstance>& out) {
    std::vector<CIMInstance> all;
    buildInstances(path, all);
    selectNamed(path, all, out);
}

unsigned int ComputedModelClassWithMethods::invokeMethod(const CIMObjectPath& path, const std::string& methodName,
                                                         const CIMMethodParam& in, CIMMethodParam& out) {
    return invokeControllerRoutine(path, methodName, in, out);
}

}  // namespace vex::cim::fwf::storage
