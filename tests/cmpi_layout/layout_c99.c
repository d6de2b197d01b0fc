/*
 * The CMPI headers as a C99 provider sees them (built with -std=c99).
 *
 *  1. Compile-time layout of every structure (cmpi_layout_table.h), using
 *     the negative-array-size idiom since C99 has no _Static_assert.
 *  2. The CM*MIStub factory macros, instantiated with probe functions that
 *     record which slot the broker reached; the C++ tests call through the
 *     resulting tables.
 *  3. A small provider-style routine written with the cmpimacs.h macros,
 *     so that they are compiled as C and can be driven from the C++ tests.
 */
#include <stddef.h>

#include <cmpidt.h>
#include <cmpift.h>
#include <cmpimacs.h>

#include "layout_probe.h"

#if !defined(CMPI_VER_200) || !defined(CMPI_VER_100) || CMPICurrentVersion != 200
#error "without CMPI_VERSION the headers must describe CMPI 2.0"
#endif

#define CMPI_LAYOUT_CAT_(a, b) a##b
#define CMPI_LAYOUT_CAT(a, b) CMPI_LAYOUT_CAT_(a, b)
#define CMPI_LAYOUT_SLOT(type, member, offset)                           \
    typedef char CMPI_LAYOUT_CAT(layout_slot_line_, __LINE__)            \
        [(offsetof(type, member) == (offset)) ? 1 : -1];
#define CMPI_LAYOUT_SIZE(type, size)                                     \
    typedef char CMPI_LAYOUT_CAT(layout_size_line_, __LINE__)            \
        [(sizeof(type) == (size)) ? 1 : -1];
#include "cmpi_layout_table.h"

/* ---------------------------------------------------------------------- */
/* Probes behind the stub-generated tables                                */
/* ---------------------------------------------------------------------- */

#ifdef CMPI_LAYOUT_IN_TREE

static const char *probe_last = "";
static int probe_hooks = 0;
static const CMPIBroker *probe_broker = NULL;

static CMPIStatus probe_hit(const char *what)
{
    CMPIStatus st;
    probe_last = what;
    st.rc = CMPI_RC_OK;
    st.msg = NULL;
    return st;
}

const char *layout_probe_last(void) { return probe_last; }
int layout_probe_hooks(void) { return probe_hooks; }
const CMPIBroker *layout_probe_broker(void) { return probe_broker; }

#define UNUSED2(a, b) ((void)(a), (void)(b))
#define UNUSED3(a, b, c) ((void)(a), (void)(b), (void)(c))

/* instance MI */
static CMPIStatus ProbeCleanup(CMPIInstanceMI *mi, const CMPIContext *ctx,
                               CMPIBoolean term)
{
    UNUSED3(mi, ctx, term);
    return probe_hit("instance.cleanup");
}
static CMPIStatus ProbeEnumInstanceNames(CMPIInstanceMI *mi,
                                         const CMPIContext *ctx,
                                         const CMPIResult *rslt,
                                         const CMPIObjectPath *op)
{
    UNUSED2(mi, ctx);
    UNUSED2(rslt, op);
    return probe_hit("instance.enumerateInstanceNames");
}
static CMPIStatus ProbeEnumInstances(CMPIInstanceMI *mi, const CMPIContext *ctx,
                                     const CMPIResult *rslt,
                                     const CMPIObjectPath *op,
                                     const char **props)
{
    UNUSED3(mi, ctx, rslt);
    UNUSED2(op, props);
    return probe_hit("instance.enumerateInstances");
}
static CMPIStatus ProbeGetInstance(CMPIInstanceMI *mi, const CMPIContext *ctx,
                                   const CMPIResult *rslt,
                                   const CMPIObjectPath *op, const char **props)
{
    UNUSED3(mi, ctx, rslt);
    UNUSED2(op, props);
    return probe_hit("instance.getInstance");
}
static CMPIStatus ProbeCreateInstance(CMPIInstanceMI *mi,
                                      const CMPIContext *ctx,
                                      const CMPIResult *rslt,
                                      const CMPIObjectPath *op,
                                      const CMPIInstance *inst)
{
    UNUSED3(mi, ctx, rslt);
    UNUSED2(op, inst);
    return probe_hit("instance.createInstance");
}
static CMPIStatus ProbeModifyInstance(CMPIInstanceMI *mi,
                                      const CMPIContext *ctx,
                                      const CMPIResult *rslt,
                                      const CMPIObjectPath *op,
                                      const CMPIInstance *inst,
                                      const char **props)
{
    UNUSED3(mi, ctx, rslt);
    UNUSED3(op, inst, props);
    return probe_hit("instance.modifyInstance");
}
static CMPIStatus ProbeDeleteInstance(CMPIInstanceMI *mi,
                                      const CMPIContext *ctx,
                                      const CMPIResult *rslt,
                                      const CMPIObjectPath *op)
{
    UNUSED2(mi, ctx);
    UNUSED2(rslt, op);
    return probe_hit("instance.deleteInstance");
}
static CMPIStatus ProbeExecQuery(CMPIInstanceMI *mi, const CMPIContext *ctx,
                                 const CMPIResult *rslt,
                                 const CMPIObjectPath *op, const char *query,
                                 const char *lang)
{
    UNUSED3(mi, ctx, rslt);
    UNUSED3(op, query, lang);
    return probe_hit("instance.execQuery");
}

/* association MI */
static CMPIStatus ProbeAssociationCleanup(CMPIAssociationMI *mi,
                                         const CMPIContext *ctx,
                                         CMPIBoolean term)
{
    UNUSED3(mi, ctx, term);
    return probe_hit("association.cleanup");
}
static CMPIStatus ProbeAssociators(CMPIAssociationMI *mi,
                                  const CMPIContext *ctx,
                                  const CMPIResult *rslt,
                                  const CMPIObjectPath *op,
                                  const char *assocClass,
                                  const char *resultClass, const char *role,
                                  const char *resultRole, const char **props)
{
    UNUSED3(mi, ctx, rslt);
    UNUSED3(op, assocClass, resultClass);
    UNUSED3(role, resultRole, props);
    return probe_hit("association.associators");
}
static CMPIStatus ProbeAssociatorNames(CMPIAssociationMI *mi,
                                      const CMPIContext *ctx,
                                      const CMPIResult *rslt,
                                      const CMPIObjectPath *op,
                                      const char *assocClass,
                                      const char *resultClass,
                                      const char *role,
                                      const char *resultRole)
{
    UNUSED3(mi, ctx, rslt);
    UNUSED3(op, assocClass, resultClass);
    UNUSED2(role, resultRole);
    return probe_hit("association.associatorNames");
}
static CMPIStatus ProbeReferences(CMPIAssociationMI *mi, const CMPIContext *ctx,
                                 const CMPIResult *rslt,
                                 const CMPIObjectPath *op,
                                 const char *resultClass, const char *role,
                                 const char **props)
{
    UNUSED3(mi, ctx, rslt);
    UNUSED2(op, resultClass);
    UNUSED2(role, props);
    return probe_hit("association.references");
}
static CMPIStatus ProbeReferenceNames(CMPIAssociationMI *mi,
                                     const CMPIContext *ctx,
                                     const CMPIResult *rslt,
                                     const CMPIObjectPath *op,
                                     const char *resultClass,
                                     const char *role)
{
    UNUSED3(mi, ctx, rslt);
    UNUSED3(op, resultClass, role);
    return probe_hit("association.referenceNames");
}

/* method MI */
static CMPIStatus ProbeMethodCleanup(CMPIMethodMI *mi, const CMPIContext *ctx,
                                    CMPIBoolean term)
{
    UNUSED3(mi, ctx, term);
    return probe_hit("method.cleanup");
}
static CMPIStatus ProbeInvokeMethod(CMPIMethodMI *mi, const CMPIContext *ctx,
                                   const CMPIResult *rslt,
                                   const CMPIObjectPath *op,
                                   const char *method, const CMPIArgs *in,
                                   CMPIArgs *out)
{
    UNUSED3(mi, ctx, rslt);
    UNUSED2(op, method);
    UNUSED2(in, out);
    return probe_hit("method.invokeMethod");
}

/* property MI */
static CMPIStatus ProbePropertyCleanup(CMPIPropertyMI *mi,
                                      const CMPIContext *ctx,
                                      CMPIBoolean term)
{
    UNUSED3(mi, ctx, term);
    return probe_hit("property.cleanup");
}
static CMPIStatus ProbeSetProperty(CMPIPropertyMI *mi, const CMPIContext *ctx,
                                  const CMPIResult *rslt,
                                  const CMPIObjectPath *op, const char *name,
                                  const CMPIData data)
{
    UNUSED3(mi, ctx, rslt);
    UNUSED3(op, name, data);
    return probe_hit("property.setProperty");
}
static CMPIStatus ProbeGetProperty(CMPIPropertyMI *mi, const CMPIContext *ctx,
                                  const CMPIResult *rslt,
                                  const CMPIObjectPath *op, const char *name)
{
    UNUSED3(mi, ctx, rslt);
    UNUSED2(op, name);
    return probe_hit("property.getProperty");
}

/* indication MI */
static CMPIStatus ProbeIndicationCleanup(CMPIIndicationMI *mi,
                                        const CMPIContext *ctx,
                                        CMPIBoolean term)
{
    UNUSED3(mi, ctx, term);
    return probe_hit("indication.cleanup");
}
static CMPIStatus ProbeAuthorizeFilter(CMPIIndicationMI *mi,
                                      const CMPIContext *ctx,
                                      const CMPISelectExp *filter,
                                      const char *className,
                                      const CMPIObjectPath *op,
                                      const char *owner)
{
    UNUSED3(mi, ctx, filter);
    UNUSED3(className, op, owner);
    return probe_hit("indication.authorizeFilter");
}
static CMPIStatus ProbeMustPoll(CMPIIndicationMI *mi, const CMPIContext *ctx,
                               const CMPISelectExp *filter,
                               const char *className,
                               const CMPIObjectPath *classPath)
{
    UNUSED3(mi, ctx, filter);
    UNUSED2(className, classPath);
    return probe_hit("indication.mustPoll");
}
static CMPIStatus ProbeActivateFilter(CMPIIndicationMI *mi,
                                     const CMPIContext *ctx,
                                     const CMPISelectExp *filter,
                                     const char *className,
                                     const CMPIObjectPath *classPath,
                                     CMPIBoolean first)
{
    UNUSED3(mi, ctx, filter);
    UNUSED3(className, classPath, first);
    return probe_hit("indication.activateFilter");
}
static CMPIStatus ProbeDeActivateFilter(CMPIIndicationMI *mi,
                                       const CMPIContext *ctx,
                                       const CMPISelectExp *filter,
                                       const char *className,
                                       const CMPIObjectPath *classPath,
                                       CMPIBoolean last)
{
    UNUSED3(mi, ctx, filter);
    UNUSED3(className, classPath, last);
    return probe_hit("indication.deActivateFilter");
}
static CMPIStatus ProbeEnableIndications(CMPIIndicationMI *mi,
                                        const CMPIContext *ctx)
{
    UNUSED2(mi, ctx);
    return probe_hit("indication.enableIndications");
}
static CMPIStatus ProbeDisableIndications(CMPIIndicationMI *mi,
                                         const CMPIContext *ctx)
{
    UNUSED2(mi, ctx);
    return probe_hit("indication.disableIndications");
}

CMInstanceMIStub(Probe, layoutprobe, probe_broker, probe_hooks++)
CMAssociationMIStub(Probe, layoutprobe, probe_broker, CMNoHook)
CMMethodMIStub(Probe, layoutprobe, probe_broker, CMNoHook)
CMPropertyMIStub(Probe, layoutprobe, probe_broker, CMNoHook)
CMIndicationMIStub(Probe, layoutprobe, probe_broker, CMNoHook)

/*
 * The factories must have exactly the signature a broker dlsym()s for;
 * a mismatch is an incompatible-pointer error under -Werror.
 */
const layout_inst_factory_t layout_probe_inst_factory =
    layoutprobe_Create_InstanceMI;
const layout_assoc_factory_t layout_probe_assoc_factory =
    layoutprobe_Create_AssociationMI;
const layout_meth_factory_t layout_probe_meth_factory =
    layoutprobe_Create_MethodMI;
const layout_prop_factory_t layout_probe_prop_factory =
    layoutprobe_Create_PropertyMI;
const layout_ind_factory_t layout_probe_ind_factory =
    layoutprobe_Create_IndicationMI;

#endif /* CMPI_LAYOUT_IN_TREE */

/* ---------------------------------------------------------------------- */
/* A provider routine written in C with the convenience macros            */
/* ---------------------------------------------------------------------- */

CMPIStatus layout_c_enum_names(const CMPIBroker *mb, const CMPIContext *ctx,
                               const CMPIResult *rslt,
                               const CMPIObjectPath *ref)
{
    CMPIStatus rc = { CMPI_RC_OK, NULL };
    CMPIString *ns;
    CMPIObjectPath *op;
    CMPIData principal;
    CMPIUint16 slot = 7;

    if (CMIsNullObject(ctx) || CMIsNullObject(ref)) {
        CMReturnWithChars(mb, CMPI_RC_ERR_INVALID_PARAMETER, "bad arguments");
    }

    principal = CMGetContextEntry(ctx, CMPIPrincipal, &rc);
    if (rc.rc != CMPI_RC_OK || CMIsNullValue(principal)) {
        CMReturn(CMPI_RC_ERR_ACCESS_DENIED);
    }

    ns = CMGetNameSpace(ref, &rc);
    op = CMNewObjectPath(mb, CMGetCharsPtr(ns, NULL), "VEX_Probe", &rc);
    if (op == NULL) {
        CMReturnWithString(CMPI_RC_ERR_FAILED, CMNewString(mb, "no path", NULL));
    }
    CMAddKey(op, "Name", "disk0", CMPI_chars);
    CMAddKey(op, "Slot", &slot, CMPI_uint16);
    CMReturnObjectPath(rslt, op);
    CMReturnDone(rslt);
    CMReturn(CMPI_RC_OK);
}
