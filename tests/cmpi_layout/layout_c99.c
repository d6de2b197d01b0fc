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

#define CMPI_LAYOUT_SLOT(type, member, offset) \
    typedef char layout_slot_##type##_##member[(offsetof(type, member) == (offset)) ? 1 : -1];
#define CMPI_LAYOUT_SIZE(type, size) \
    typedef char layout_size_##type[(sizeof(type) == (size)) ? 1 : -1];
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

/* Each probe only tells which slot was reached; the stub macros below
 * check its signature when they put it in the table. */
#pragma GCC diagnostic ignored "-Wunused-parameter"
#define PROBE(name, what, params) \
    static CMPIStatus name params { return probe_hit(what); }

#define MI_ARGS(T) T *mi, const CMPIContext *ctx, const CMPIResult *rslt, const CMPIObjectPath *op
#define IND_ARGS CMPIIndicationMI *mi, const CMPIContext *ctx, const CMPISelectExp *filter, \
    const char *className, const CMPIObjectPath *op

PROBE(ProbeCleanup, "instance.cleanup", (CMPIInstanceMI *mi, const CMPIContext *ctx, CMPIBoolean term))
PROBE(ProbeEnumInstanceNames, "instance.enumerateInstanceNames", (MI_ARGS(CMPIInstanceMI)))
PROBE(ProbeEnumInstances, "instance.enumerateInstances", (MI_ARGS(CMPIInstanceMI), const char **props))
PROBE(ProbeGetInstance, "instance.getInstance", (MI_ARGS(CMPIInstanceMI), const char **props))
PROBE(ProbeCreateInstance, "instance.createInstance", (MI_ARGS(CMPIInstanceMI), const CMPIInstance *inst))
PROBE(ProbeModifyInstance, "instance.modifyInstance",
      (MI_ARGS(CMPIInstanceMI), const CMPIInstance *inst, const char **props))
PROBE(ProbeDeleteInstance, "instance.deleteInstance", (MI_ARGS(CMPIInstanceMI)))
PROBE(ProbeExecQuery, "instance.execQuery", (MI_ARGS(CMPIInstanceMI), const char *query, const char *lang))

PROBE(ProbeAssociationCleanup, "association.cleanup",
      (CMPIAssociationMI *mi, const CMPIContext *ctx, CMPIBoolean term))
PROBE(ProbeAssociators, "association.associators",
      (MI_ARGS(CMPIAssociationMI), const char *assocClass, const char *resultClass, const char *role,
       const char *resultRole, const char **props))
PROBE(ProbeAssociatorNames, "association.associatorNames",
      (MI_ARGS(CMPIAssociationMI), const char *assocClass, const char *resultClass, const char *role,
       const char *resultRole))
PROBE(ProbeReferences, "association.references",
      (MI_ARGS(CMPIAssociationMI), const char *resultClass, const char *role, const char **props))
PROBE(ProbeReferenceNames, "association.referenceNames",
      (MI_ARGS(CMPIAssociationMI), const char *resultClass, const char *role))

PROBE(ProbeMethodCleanup, "method.cleanup", (CMPIMethodMI *mi, const CMPIContext *ctx, CMPIBoolean term))
PROBE(ProbeInvokeMethod, "method.invokeMethod",
      (MI_ARGS(CMPIMethodMI), const char *method, const CMPIArgs *in, CMPIArgs *out))

PROBE(ProbePropertyCleanup, "property.cleanup", (CMPIPropertyMI *mi, const CMPIContext *ctx, CMPIBoolean term))
PROBE(ProbeSetProperty, "property.setProperty", (MI_ARGS(CMPIPropertyMI), const char *name, const CMPIData data))
PROBE(ProbeGetProperty, "property.getProperty", (MI_ARGS(CMPIPropertyMI), const char *name))

PROBE(ProbeIndicationCleanup, "indication.cleanup",
      (CMPIIndicationMI *mi, const CMPIContext *ctx, CMPIBoolean term))
PROBE(ProbeAuthorizeFilter, "indication.authorizeFilter", (IND_ARGS, const char *owner))
PROBE(ProbeMustPoll, "indication.mustPoll", (IND_ARGS))
PROBE(ProbeActivateFilter, "indication.activateFilter", (IND_ARGS, CMPIBoolean first))
PROBE(ProbeDeActivateFilter, "indication.deActivateFilter", (IND_ARGS, CMPIBoolean last))
PROBE(ProbeEnableIndications, "indication.enableIndications", (CMPIIndicationMI *mi, const CMPIContext *ctx))
PROBE(ProbeDisableIndications, "indication.disableIndications", (CMPIIndicationMI *mi, const CMPIContext *ctx))

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
