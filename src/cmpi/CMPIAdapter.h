// CMPIAdapter: the one object between the CMPI entry functions and the
// framework facade. For each CIM operation it converts the CMPI arguments to
// framework values (CMPIHelper), calls the facade, hands the results to the
// CMPIResult and turns every failure into the CMPIStatus the caller passed in
// (which the caller has set to rc 0). It also owns the provider side of
// indications, the access check for extrinsic methods and modifications, and
// the look-up of the object manager's own registered profiles.
//
// A singleton created on first getInstance under m_mutexObject. The module
// life cycle guarantees one life per load: initialize runs once, and after
// deleteInstance the class mutex is gone, so getInstance answers null.
//
// Requests arrive on many threads at once; the adapter holds no lock while
// serving them. The per-request context and the broker are atomics (the last
// writer wins); the subscription count is only changed by Enable/Disable-
// Indications, which the object manager serialises.
#ifndef VEX_CMPI_CMPIADAPTER_H
#define VEX_CMPI_CMPIADAPTER_H

#include <cmpidt.h>
#include <cmpift.h>

#include <atomic>
#include <string>
#include <vector>

#include "framework/CIMInstance.h"
#include "framework/CIMMethodParam.h"
#include "framework/CIMObjectPath.h"
#include "platform/Tkz.h"

namespace vex::cim::adap::cmpi {

// True while at least one indication subscription is active.
extern std::atomic<bool> m_subscription;

class CMPIAdapter {
public:
    using CIMInstance = fwf::CIMInstance;
    using CIMObjectPath = fwf::CIMObjectPath;
    using CIMMethodParam = fwf::CIMMethodParam;

    // ---- life cycle -------------------------------------------------------------
    // The singleton; null when the class mutex cannot be locked (it is gone
    // after deleteInstance) or the object cannot be allocated.
    static CMPIAdapter* getInstance();
    // Destroys the adapter (and with it the facade and the class mutex).
    static void deleteInstance();
    // Once, from the module's initialisation: looks up the interop profiles,
    // registers DeliverIndication with the facade and initialises the facade.
    bool initialize();

    CMPIAdapter();
    ~CMPIAdapter();
    CMPIAdapter(const CMPIAdapter&) = delete;
    CMPIAdapter& operator=(const CMPIAdapter&) = delete;

    void setContext(const CMPIContext* ctx) { m_context.store(ctx); }
    const CMPIContext* getContext() const { return m_context.load(); }
    void setBroker(const CMPIBroker* broker) { m_broker.store(broker); }
    const CMPIBroker* getBroker() const { return m_broker.load(); }
    // Prepares a context for attaching the framework's threads.
    void setThreadContext(const CMPIBroker* broker, const CMPIContext* ctx);
    const CMPIContext* getThreadContext() const { return m_threadContext.load(); }
    void resetThreadContextToContext(const CMPIContext* ctx) { m_threadContext.store(ctx); }

    // ---- intrinsic instance operations ------------------------------------------------
    void EnumInstanceNames(CMPIInstanceMI* mi, const CMPIContext* ctx, const CMPIResult* result,
                           const CMPIObjectPath* ref, const CMPIBroker* broker,
                           CMPIStatus* status);
    void EnumInstances(CMPIInstanceMI* mi, const CMPIContext* ctx, const CMPIResult* result,
                       const CMPIObjectPath* ref, const char** properties,
                       const CMPIBroker* broker, CMPIStatus* status);
    void GetInstance(CMPIInstanceMI* mi, const CMPIContext* ctx, const CMPIResult* result,
                     const CMPIObjectPath* ref, const char** properties,
                     const CMPIBroker* broker, CMPIStatus* status);
    void CreateInstance(CMPIInstanceMI* mi, const CMPIContext* ctx, const CMPIResult* result,
                        const CMPIObjectPath* ref, const CMPIInstance* instance,
                        const CMPIBroker* broker, CMPIStatus* status);
    void ModifyInstance(CMPIInstanceMI* mi, const CMPIContext* ctx, const CMPIResult* result,
                        const CMPIObjectPath* ref, const CMPIInstance* instance,
                        const char** properties, const CMPIBroker* broker, CMPIStatus* status);
    void DeleteInstance(CMPIInstanceMI* mi, const CMPIContext* ctx, const CMPIResult* result,
                        const CMPIObjectPath* ref, const CMPIBroker* broker,
                        CMPIStatus* status);

    // ---- association operations --------------------------------------------------
    void Associators(CMPIAssociationMI* mi, const CMPIContext* ctx, const CMPIResult* result,
                     const CMPIObjectPath* ref, const char* assocClass, const char* resultClass,
                     const char* role, const char* resultRole, const char** properties,
                     const CMPIBroker* broker, CMPIStatus* status);
    void AssociatorNames(CMPIAssociationMI* mi, const CMPIContext* ctx, const CMPIResult* result,
                         const CMPIObjectPath* ref, const char* assocClass,
                         const char* resultClass, const char* role, const char* resultRole,
                         const CMPIBroker* broker, CMPIStatus* status);
    void References(CMPIAssociationMI* mi, const CMPIContext* ctx, const CMPIResult* result,
                    const CMPIObjectPath* ref, const char* resultClass, const char* role,
                    const char** properties, const CMPIBroker* broker, CMPIStatus* status);
    void ReferenceNames(CMPIAssociationMI* mi, const CMPIContext* ctx, const CMPIResult* result,
                        const CMPIObjectPath* ref, const char* resultClass, const char* role,
                        const CMPIBroker* broker, CMPIStatus* status);

    // ---- extrinsic methods ------------------------------------------------------
    void InvokeMethod(CMPIMethodMI* mi, const CMPIContext* ctx, const CMPIResult* result,
                      const CMPIObjectPath* ref, const char* methodName, const CMPIArgs* in,
                      CMPIArgs* out, const CMPIBroker* broker, CMPIStatus* status);

    // ---- indications --------------------------------------------------------------
    void EnableIndications(CMPIIndicationMI* mi, const CMPIContext* ctx,
                           const CMPIBroker* broker, CMPIStatus* status);
    void DisableIndications(CMPIIndicationMI* mi, const CMPIContext* ctx,
                            const CMPIBroker* broker, CMPIStatus* status);
    void ActivateFilter(CMPIIndicationMI* mi, const CMPIContext* ctx, const CMPISelectExp* filter,
                        const char* className, const CMPIObjectPath* classPath,
                        CMPIBoolean firstActivation, const CMPIBroker* broker,
                        CMPIStatus* status);
    void DeActivateFilter(CMPIIndicationMI* mi, const CMPIContext* ctx,
                          const CMPISelectExp* filter, const char* className,
                          const CMPIObjectPath* classPath, CMPIBoolean lastActivation,
                          const CMPIBroker* broker, CMPIStatus* status);
    void MustPoll(CMPIIndicationMI* mi, const CMPIContext* ctx, const CMPISelectExp* filter,
                  const char* className, const CMPIObjectPath* classPath,
                  const CMPIBroker* broker, CMPIStatus* status);
    void AuthorizeFilter(CMPIIndicationMI* mi, const CMPIContext* ctx,
                         const CMPISelectExp* filter, const char* className,
                         const CMPIObjectPath* classPath, const char* owner,
                         const CMPIBroker* broker, CMPIStatus* status);
    // The facade's indication callback, called on the framework's threads.
    static bool DeliverIndication(CIMInstance& instance);

    // ---- supporting operations --------------------------------------------------
    void ReturnInstances(const CMPIBroker* broker, const CMPIResult* result,
                         const char** properties, std::vector<CIMInstance>& instances,
                         CMPIStatus* status);
    void ReturnObjectPaths(const CMPIBroker* broker, const CMPIResult* result,
                           std::vector<CIMObjectPath>& paths, CMPIStatus* status);
    void FormArguments(const CMPIBroker* broker, const CMPIResult* result,
                       CIMMethodParam& outParams, CMPIArgs* outArgs, CMPIStatus* status);
    // True when `user` is a login name with primary group 0 in the password
    // file. The host is not used.
    bool VerifyUserRole(const std::string& user, const std::string& host);
    void getPegasusSMISProfRegObjPaths();
    static std::string ToLower(const std::string& text);

    // The password file read by VerifyUserRole: "/etc/passwd"
    // (SystemPasswordFile.h). Tests that link the adapter in point it
    // elsewhere with setPasswordFile, which no object manager can reach.
    static void setPasswordFile(const std::string& path);
    static std::string passwordFile();

    static int subscriptionCount() { return m_numOfSubscriptions.load(); }

private:
    std::atomic<const CMPIContext*> m_context{nullptr};
    std::atomic<const CMPIBroker*> m_broker{nullptr};
    std::atomic<const CMPIContext*> m_threadContext{nullptr};

    static CMPIAdapter* m_adapins;
    static std::atomic<TKZ_MUTEX> m_mutexObject;
    static std::atomic<int> m_numOfSubscriptions;
};

}  // namespace vex::cim::adap::cmpi

#endif
