/*
 * HostTestProvider - a small CMPI provider for the host's own tests.
 *
 * Provider name "HostTest"; all four MI kinds. Every MI function first
 * checks its handles and strings and answers CMPI_RC_ERR_INVALID_PARAMETER
 * with a message naming what was NULL ("ctx=NULL"), hollow ("ctx=hollow")
 * or empty ("method=empty"), so tests can see exactly what arrived.
 *
 * Instances: class HT_AllTypes carries one property of every CMPI type.
 * Methods (invokeMethod): Echo, Counter, FactoryCalls, Principal, Broker,
 * Upcall, IsA, StartIndications, JoinIndications, UnattachedIndication,
 * Error, CloneKeep, CloneRelease, Message, LateReturn. See invokeMethod below.
 */
#include <cmpidt.h>
#include <cmpift.h>
#include <cmpimacs.h>

#include <pthread.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

static const CMPIBroker *broker;

/* Static state: one copy per load of this shared object. */
static pthread_mutex_t g_lock = PTHREAD_MUTEX_INITIALIZER;
static unsigned g_factoryCalls;
static unsigned g_counter;
static int g_enabled;
static int g_factoryCtxNull;
static pthread_t g_thread;
static int g_threadRunning;

/* ------------------------------------------------------------------ */
/* Argument checks                                                    */
/* ------------------------------------------------------------------ */

typedef struct {
    char text[256];
    int bad;
} Check;

static void note(Check *c, const char *what, const char *how) {
    size_t used = strlen(c->text);
    snprintf(c->text + used, sizeof c->text - used, "%s%s=%s", c->bad ? " " : "", what, how);
    c->bad = 1;
}

static void needMI(Check *c, const void *mi) {
    if (mi == NULL) {
        note(c, "mi", "NULL");
    }
}

static void need(Check *c, const char *what, const void *handle) {
    if (handle == NULL) {
        note(c, what, "NULL");
    } else if (*(void *const *)handle == NULL) {
        note(c, what, "hollow");
    }
}

static void needText(Check *c, const char *what, const char *s) {
    if (s == NULL) {
        note(c, what, "NULL");
    } else if (*s == '\0') {
        note(c, what, "empty");
    }
}

#define CHECKED(c)                                                          \
    do {                                                                    \
        if ((c).bad) {                                                      \
            CMReturnWithChars(broker, CMPI_RC_ERR_INVALID_PARAMETER, (c).text); \
        }                                                                   \
    } while (0)

/* The handles every request carries: the MI, its context, result and path. */
#define NEED_CALL(c, path)         \
    do {                           \
        needMI(&(c), mi);          \
        need(&(c), "ctx", ctx);    \
        need(&(c), "rslt", rslt);  \
        need(&(c), "ref", (path)); \
    } while (0)

static const char *show(const char *s) { return s ? s : "<null>"; }

static const char *chars(CMPIString *s) {
    const char *p = s ? CMGetCharPtr(s) : NULL;
    return p ? p : "";
}

/* "a,b,c" or "<null>" for a property list. */
static void listText(const char **list, char *buf, size_t size) {
    size_t used = 0;
    if (list == NULL) {
        snprintf(buf, size, "<null>");
        return;
    }
    buf[0] = '\0';
    for (; *list != NULL && used < size; ++list) {
        used += (size_t)snprintf(buf + used, size - used, "%s%s", used ? "," : "", *list);
    }
}

/* ------------------------------------------------------------------ */
/* Instances                                                          */
/* ------------------------------------------------------------------ */

static CMPIObjectPath *allTypesPath(const char *ns) {
    CMPIObjectPath *op = CMNewObjectPath(broker, ns, "HT_AllTypes", NULL);
    CMPIUint16 num = 7;
    CMAddKey(op, "Id", "all", CMPI_chars);
    CMAddKey(op, "Num", &num, CMPI_uint16);
    return op;
}

static void setScalars(CMPIInstance *ci) {
    CMPIBoolean b = 1;
    CMPIChar16 c16 = 'A';
    CMPIUint8 u8 = 200;
    CMPIUint16 u16 = 60000;
    CMPIUint32 u32 = 4000000000u;
    CMPIUint64 u64 = 9223372036854775813ull;
    CMPISint8 s8 = -100;
    CMPISint16 s16 = -30000;
    CMPISint32 s32 = -2000000000;
    CMPISint64 s64 = -4611686018427387904ll;
    CMPIReal32 r32 = 1.5f;
    CMPIReal64 r64 = -2.25;
    CMPIString *str = CMNewString(broker, "text", NULL);
    CMSetProperty(ci, "Bool", &b, CMPI_boolean);
    CMSetProperty(ci, "Char16", &c16, CMPI_char16);
    CMSetProperty(ci, "U8", &u8, CMPI_uint8);
    CMSetProperty(ci, "U16", &u16, CMPI_uint16);
    CMSetProperty(ci, "U32", &u32, CMPI_uint32);
    CMSetProperty(ci, "U64", &u64, CMPI_uint64);
    CMSetProperty(ci, "S8", &s8, CMPI_sint8);
    CMSetProperty(ci, "S16", &s16, CMPI_sint16);
    CMSetProperty(ci, "S32", &s32, CMPI_sint32);
    CMSetProperty(ci, "S64", &s64, CMPI_sint64);
    CMSetProperty(ci, "R32", &r32, CMPI_real32);
    CMSetProperty(ci, "R64", &r64, CMPI_real64);
    CMSetProperty(ci, "Str", &str, CMPI_string);
    CMSetProperty(ci, "Chars", "chars", CMPI_chars);
    CMSetProperty(ci, "NullU32", NULL, CMPI_uint32);
}

static void setEncapsulated(CMPIInstance *ci, const char *ns) {
    CMPIDateTime *dt = CMNewDateTimeFromChars(broker, "20240102030405.123456+060", NULL);
    CMPIDateTime *iv = CMNewDateTimeFromBinary(broker, 90061000001ull, 1, NULL);
    CMPIObjectPath *ref = CMNewObjectPath(broker, "root/other", "HT_Other", NULL);
    CMPIObjectPath *innerPath = CMNewObjectPath(broker, ns, "HT_Embedded", NULL);
    CMPIInstance *inner;
    CMAddKey(ref, "Id", "x", CMPI_chars);
    inner = CMNewInstance(broker, innerPath, NULL);
    CMSetProperty(inner, "Name", "inner", CMPI_chars);
    CMSetProperty(ci, "DT", &dt, CMPI_dateTime);
    CMSetProperty(ci, "Interval", &iv, CMPI_dateTime);
    CMSetProperty(ci, "Ref", &ref, CMPI_ref);
    CMSetProperty(ci, "Inst", &inner, CMPI_instance);
}

static void setArrays(CMPIInstance *ci) {
    CMPIArray *u16a = CMNewArray(broker, 3, CMPI_uint16, NULL);
    CMPIArray *stra = CMNewArray(broker, 3, CMPI_string, NULL);
    CMPIArray *charsa = CMNewArray(broker, 2, CMPI_chars, NULL);
    CMPIArray *refa = CMNewArray(broker, 1, CMPI_ref, NULL);
    CMPIString *c = CMNewString(broker, "c", NULL);
    CMPIObjectPath *ref = CMNewObjectPath(broker, "root/other", "HT_Other", NULL);
    CMPIUint16 i;
    for (i = 0; i < 3; ++i) {
        CMPIUint16 v = (CMPIUint16)(i + 1);
        CMSetArrayElementAt(u16a, i, &v, CMPI_uint16);
    }
    CMSetArrayElementAt(stra, 0, "a", CMPI_chars);
    CMSetArrayElementAt(stra, 2, &c, CMPI_string);
    CMSetArrayElementAt(charsa, 0, "x", CMPI_chars);
    CMSetArrayElementAt(charsa, 1, "y", CMPI_chars);
    CMAddKey(ref, "Id", "y", CMPI_chars);
    CMSetArrayElementAt(refa, 0, &ref, CMPI_ref);
    CMSetProperty(ci, "U16A", &u16a, CMPI_uint16A);
    CMSetProperty(ci, "StrA", &stra, CMPI_stringA);
    CMSetProperty(ci, "CharsA", &charsa, CMPI_stringA);
    CMSetProperty(ci, "RefA", &refa, CMPI_refA);
}

static CMPIInstance *allTypes(const char *ns) {
    CMPIInstance *ci = CMNewInstance(broker, allTypesPath(ns), NULL);
    setScalars(ci);
    setEncapsulated(ci, ns);
    setArrays(ci);
    return ci;
}

static const char *nameSpaceOf(const CMPIObjectPath *op) {
    return chars(CMGetNameSpace(op, NULL));
}

/* ------------------------------------------------------------------ */
/* Instance MI                                                        */
/* ------------------------------------------------------------------ */

static CMPIStatus finish(const CMPIResult *rslt, CMPIrc rc, const char *text) {
    CMReturnDone(rslt);
    CMReturnWithChars(broker, rc, text);
}

static CMPIStatus HTCleanup(CMPIInstanceMI *mi, const CMPIContext *ctx, CMPIBoolean terminating);

static CMPIStatus HTEnumInstanceNames(CMPIInstanceMI *mi, const CMPIContext *ctx,
                                      const CMPIResult *rslt, const CMPIObjectPath *ref) {
    Check c = {"", 0};
    NEED_CALL(c, ref);
    CHECKED(c);
    CMReturnObjectPath(rslt, allTypesPath(nameSpaceOf(ref)));
    return finish(rslt, CMPI_RC_OK, "names");
}

static CMPIStatus HTEnumInstances(CMPIInstanceMI *mi, const CMPIContext *ctx,
                                  const CMPIResult *rslt, const CMPIObjectPath *ref,
                                  const char **properties) {
    Check c = {"", 0};
    char list[128];
    NEED_CALL(c, ref);
    CHECKED(c);
    listText(properties, list, sizeof list);
    CMReturnInstance(rslt, allTypes(nameSpaceOf(ref)));
    return finish(rslt, CMPI_RC_OK, list);
}

/* Echoes the keys it was asked for (read with getKeyAt, so in the types
 * the broker hands out) and the property list. */
static CMPIStatus HTGetInstance(CMPIInstanceMI *mi, const CMPIContext *ctx,
                                const CMPIResult *rslt, const CMPIObjectPath *ref,
                                const char **properties) {
    Check c = {"", 0};
    char list[128];
    CMPIObjectPath *op;
    CMPIInstance *ci;
    CMPICount i, n;
    NEED_CALL(c, ref);
    CHECKED(c);
    op = CMNewObjectPath(broker, nameSpaceOf(ref), chars(CMGetClassName(ref, NULL)), NULL);
    n = CMGetKeyCount(ref, NULL);
    for (i = 0; i < n; ++i) {
        CMPIString *name = NULL;
        CMPIData d = CMGetKeyAt(ref, i, &name, NULL);
        CMAddKey(op, chars(name), &d.value, d.type);
    }
    ci = CMNewInstance(broker, op, NULL);
    listText(properties, list, sizeof list);
    CMSetProperty(ci, "PropertyList", list, CMPI_chars);
    CMReturnInstance(rslt, ci);
    return finish(rslt, CMPI_RC_OK, "get");
}

static CMPIStatus HTCreateInstance(CMPIInstanceMI *mi, const CMPIContext *ctx,
                                   const CMPIResult *rslt, const CMPIObjectPath *ref,
                                   const CMPIInstance *inst) {
    Check c = {"", 0};
    NEED_CALL(c, ref);
    need(&c, "inst", inst);
    CHECKED(c);
    CMReturnObjectPath(rslt, CMGetObjectPath(inst, NULL));
    CMReturnInstance(rslt, inst);
    return finish(rslt, CMPI_RC_OK, "created");
}

static CMPIStatus HTModifyInstance(CMPIInstanceMI *mi, const CMPIContext *ctx,
                                   const CMPIResult *rslt, const CMPIObjectPath *ref,
                                   const CMPIInstance *inst, const char **properties) {
    Check c = {"", 0};
    char list[128], text[192];
    NEED_CALL(c, ref);
    need(&c, "inst", inst);
    CHECKED(c);
    listText(properties, list, sizeof list);
    snprintf(text, sizeof text, "list=%s count=%u", list, CMGetPropertyCount(inst, NULL));
    CMReturnWithChars(broker, CMPI_RC_OK, text);
}

static CMPIStatus HTDeleteInstance(CMPIInstanceMI *mi, const CMPIContext *ctx,
                                   const CMPIResult *rslt, const CMPIObjectPath *ref) {
    Check c = {"", 0};
    NEED_CALL(c, ref);
    CHECKED(c);
    CMReturnWithString(CMPI_RC_ERR_NOT_FOUND, CMObjectPathToString(ref, NULL));
}

static CMPIStatus HTExecQuery(CMPIInstanceMI *mi, const CMPIContext *ctx, const CMPIResult *rslt,
                              const CMPIObjectPath *ref, const char *query, const char *lang) {
    Check c = {"", 0};
    NEED_CALL(c, ref);
    needText(&c, "query", query);
    needText(&c, "lang", lang);
    CHECKED(c);
    CMReturnData(rslt, query, CMPI_chars);
    CMReturnData(rslt, lang, CMPI_chars);
    return finish(rslt, CMPI_RC_OK, "query");
}

/* ------------------------------------------------------------------ */
/* Association MI                                                     */
/* ------------------------------------------------------------------ */

/* The parameters as keys of a path of class HT_Result. */
static CMPIObjectPath *echoPath(const CMPIObjectPath *op, const char *assocClass,
                                const char *resultClass, const char *role,
                                const char *resultRole) {
    CMPIObjectPath *out = CMNewObjectPath(broker, nameSpaceOf(op), "HT_Result", NULL);
    CMAddKey(out, "Source", chars(CMGetClassName(op, NULL)), CMPI_chars);
    CMAddKey(out, "AssocClass", show(assocClass), CMPI_chars);
    CMAddKey(out, "ResultClass", show(resultClass), CMPI_chars);
    CMAddKey(out, "Role", show(role), CMPI_chars);
    CMAddKey(out, "ResultRole", show(resultRole), CMPI_chars);
    return out;
}

static CMPIStatus echoInstance(const CMPIResult *rslt, CMPIObjectPath *op, const char **props) {
    char list[128];
    CMPIInstance *ci = CMNewInstance(broker, op, NULL);
    listText(props, list, sizeof list);
    CMSetProperty(ci, "PropertyList", list, CMPI_chars);
    CMReturnInstance(rslt, ci);
    return finish(rslt, CMPI_RC_OK, "assoc");
}

#define CHECK_ASSOC(c) \
    NEED_CALL(c, op);  \
    CHECKED(c)

static CMPIStatus HTAssociationCleanup(CMPIAssociationMI *mi, const CMPIContext *ctx,
                                       CMPIBoolean terminating);

static CMPIStatus HTAssociators(CMPIAssociationMI *mi, const CMPIContext *ctx,
                                const CMPIResult *rslt, const CMPIObjectPath *op,
                                const char *assocClass, const char *resultClass,
                                const char *role, const char *resultRole,
                                const char **properties) {
    Check c = {"", 0};
    CHECK_ASSOC(c);
    return echoInstance(rslt, echoPath(op, assocClass, resultClass, role, resultRole),
                        properties);
}

static CMPIStatus HTAssociatorNames(CMPIAssociationMI *mi, const CMPIContext *ctx,
                                    const CMPIResult *rslt, const CMPIObjectPath *op,
                                    const char *assocClass, const char *resultClass,
                                    const char *role, const char *resultRole) {
    Check c = {"", 0};
    CHECK_ASSOC(c);
    CMReturnObjectPath(rslt, echoPath(op, assocClass, resultClass, role, resultRole));
    return finish(rslt, CMPI_RC_OK, "assocNames");
}

static CMPIStatus HTReferences(CMPIAssociationMI *mi, const CMPIContext *ctx,
                               const CMPIResult *rslt, const CMPIObjectPath *op,
                               const char *resultClass, const char *role,
                               const char **properties) {
    Check c = {"", 0};
    CHECK_ASSOC(c);
    return echoInstance(rslt, echoPath(op, NULL, resultClass, role, NULL), properties);
}

static CMPIStatus HTReferenceNames(CMPIAssociationMI *mi, const CMPIContext *ctx,
                                   const CMPIResult *rslt, const CMPIObjectPath *op,
                                   const char *resultClass, const char *role) {
    Check c = {"", 0};
    CHECK_ASSOC(c);
    CMReturnObjectPath(rslt, echoPath(op, NULL, resultClass, role, NULL));
    return finish(rslt, CMPI_RC_OK, "refNames");
}

/* ------------------------------------------------------------------ */
/* Indication threads                                                 */
/* ------------------------------------------------------------------ */

typedef struct {
    const CMPIContext *ctx; /* prepared with prepareAttachThread, or NULL */
    unsigned count;
} Job;

static void deliverOne(const CMPIContext *ctx, CMPIUint32 seq) {
    CMPIObjectPath *op = CMNewObjectPath(broker, "root/ht", "HT_Indication", NULL);
    CMPIInstance *ind = CMNewInstance(broker, op, NULL);
    CMSetProperty(ind, "Seq", &seq, CMPI_uint32);
    CBDeliverIndication(broker, ctx, "root/ht", ind);
}

static void *attachedSender(void *arg) {
    Job *job = arg;
    CMPIUint32 i;
    CBAttachThread(broker, job->ctx);
    for (i = 0; i < job->count; ++i) {
        deliverOne(job->ctx, i);
    }
    CBDetachThread(broker, job->ctx);
    free(job);
    return NULL;
}

static void *unattachedSender(void *arg) {
    Job *job = arg;
    deliverOne(job->ctx, 0);
    free(job);
    return NULL;
}

static void joinSender(void) {
    pthread_t thread;
    int running;
    pthread_mutex_lock(&g_lock);
    thread = g_thread;
    running = g_threadRunning;
    g_threadRunning = 0;
    pthread_mutex_unlock(&g_lock);
    if (running) {
        pthread_join(thread, NULL);
    }
}

static CMPIrc startSender(const CMPIContext *ctx, unsigned count) {
    Job *job = malloc(sizeof *job);
    int rc;
    joinSender();
    if (job == NULL) {
        return CMPI_RC_ERR_FAILED;
    }
    job->ctx = CBPrepareAttachThread(broker, ctx);
    job->count = count;
    pthread_mutex_lock(&g_lock);
    rc = pthread_create(&g_thread, NULL, attachedSender, job);
    g_threadRunning = rc == 0;
    pthread_mutex_unlock(&g_lock);
    if (rc != 0) {
        free(job);
    }
    return rc == 0 ? CMPI_RC_OK : CMPI_RC_ERR_FAILED;
}

static CMPIrc unattachedIndication(const CMPIContext *ctx) {
    pthread_t thread;
    Job *job = malloc(sizeof *job);
    if (job == NULL) {
        return CMPI_RC_ERR_FAILED;
    }
    job->ctx = ctx;
    job->count = 1;
    if (pthread_create(&thread, NULL, unattachedSender, job) != 0) {
        free(job);
        return CMPI_RC_ERR_FAILED;
    }
    pthread_join(thread, NULL);
    return CMPI_RC_OK;
}

/* ------------------------------------------------------------------ */
/* Method MI                                                          */
/* ------------------------------------------------------------------ */

static CMPIStatus returnUint(const CMPIResult *rslt, CMPIUint32 v) {
    CMReturnData(rslt, &v, CMPI_uint32);
    return finish(rslt, CMPI_RC_OK, "done");
}

static unsigned bump(unsigned *counter) {
    unsigned v;
    pthread_mutex_lock(&g_lock);
    v = ++*counter;
    pthread_mutex_unlock(&g_lock);
    return v;
}

/* Every in argument copied to the out arguments; returns their count. */
static CMPIStatus echo(const CMPIResult *rslt, const CMPIArgs *in, CMPIArgs *out) {
    CMPICount i, n = CMGetArgCount(in, NULL);
    for (i = 0; i < n; ++i) {
        CMPIString *name = NULL;
        CMPIData d = CMGetArgAt(in, i, &name, NULL);
        CMAddArg(out, chars(name), CMIsNullValue(d) ? NULL : &d.value, d.type);
    }
    return returnUint(rslt, n);
}

static CMPIStatus principal(const CMPIContext *ctx, const CMPIResult *rslt) {
    CMPIStatus st = {CMPI_RC_OK, NULL};
    CMPIData d = CMGetContextEntry(ctx, CMPIPrincipal, &st);
    const char *text = "<missing>";
    if (st.rc == CMPI_RC_OK && d.type == CMPI_string) {
        text = d.value.string ? CMGetCharPtr(d.value.string) : NULL;
        text = text ? text : "<null chars>";
    }
    CMReturnData(rslt, text, CMPI_chars);
    return finish(rslt, CMPI_RC_OK, "principal");
}

static CMPIStatus brokerFacts(const CMPIResult *rslt, CMPIArgs *out) {
    CMPIUint32 version = CBBrokerVersion(broker);
    CMPIBoolean hasError = broker->eft->newCMPIError != NULL;
    CMPIBoolean hasMemory = broker->mft != NULL;
    CMPIBoolean hasReturnError = rslt->ft->returnError != NULL;
    CMPIInstance *ci = CMNewInstance(broker, CMNewObjectPath(broker, "root/ht", "HT_X", NULL), NULL);
    CMPIBoolean hasOrigin = ci->ft->setPropertyWithOrigin != NULL;
    CMAddArg(out, "Version", &version, CMPI_uint32);
    CMAddArg(out, "Name", CBBrokerName(broker), CMPI_chars);
    CMAddArg(out, "NewCMPIError", &hasError, CMPI_boolean);
    CMAddArg(out, "MemoryTable", &hasMemory, CMPI_boolean);
    CMAddArg(out, "ReturnError", &hasReturnError, CMPI_boolean);
    CMAddArg(out, "SetPropertyWithOrigin", &hasOrigin, CMPI_boolean);
    return returnUint(rslt, 0);
}

/* enumerateInstanceNames of PG_RegisteredProfile in root/PG_InterOp; the
 * InstanceID keys go out as "Ids". */
static CMPIStatus upcall(const CMPIContext *ctx, const CMPIResult *rslt, CMPIArgs *out) {
    CMPIStatus st = {CMPI_RC_OK, NULL};
    CMPIObjectPath *op = CMNewObjectPath(broker, "root/PG_InterOp", "PG_RegisteredProfile", NULL);
    CMPIEnumeration *en = CBEnumInstanceNames(broker, ctx, op, &st);
    CMPIArray *ids;
    CMPICount n = 0;
    if (st.rc != CMPI_RC_OK) {
        CMReturnWithChars(broker, st.rc, "upcall failed");
    }
    ids = CMNewArray(broker, CMGetArrayCount(CMToArray(en, NULL), NULL), CMPI_string, NULL);
    while (CMHasNext(en, NULL)) {
        CMPIData d = CMGetNext(en, NULL);
        CMPIData id = CMGetKey(d.value.ref, "InstanceID", NULL);
        CMSetArrayElementAt(ids, n++, &id.value.string, CMPI_string);
    }
    CMAddArg(out, "Ids", &ids, CMPI_stringA);
    return returnUint(rslt, n);
}

static CMPIStatus isA(const CMPIResult *rslt, const CMPIArgs *in, const CMPIObjectPath *ref) {
    CMPIData cls = CMGetArg(in, "Class", NULL);
    CMPIData parent = CMGetArg(in, "Parent", NULL);
    CMPIObjectPath *op =
        CMNewObjectPath(broker, nameSpaceOf(ref), chars(cls.value.string), NULL);
    CMPIBoolean yes = CMClassPathIsA(broker, op, chars(parent.value.string), NULL);
    CMReturnData(rslt, &yes, CMPI_boolean);
    return finish(rslt, CMPI_RC_OK, "isa");
}

static CMPIStatus extendedError(const CMPIResult *rslt) {
    CMPIError *err;
    if (broker->eft->newCMPIError == NULL || rslt->ft->returnError == NULL) {
        CMReturnWithChars(broker, CMPI_RC_ERR_NOT_SUPPORTED, "no extended errors");
    }
    err = CMNewCMPIError(broker, "HostTest", "HT001", "disk on fire", ErrorSevHigh,
                         Fire_Detected, CMPI_RC_ERR_FAILED, NULL);
    CMSetErrorSource(err, "slot 3");
    CMReturnError(rslt, err);
    return finish(rslt, CMPI_RC_ERR_FAILED, "see error");
}

/* A clone belongs to the host until released. */
static CMPIStatus cloneString(const CMPIResult *rslt, int release) {
    CMPIString *s = CMNewString(broker, "kept", NULL);
    CMPIString *copy = CMClone(s, NULL);
    if (release) {
        CMRelease(copy);
    }
    return returnUint(rslt, 0);
}

static CMPIStatus message(const CMPIResult *rslt) {
    CMPIString *s = CMGetMessage(broker, "HT002", "disk $0 of $1", NULL,
                                 CMFmtArgs2(CMFmtUint(3), CMFmtChars("array")));
    CMReturnData(rslt, &s, CMPI_string);
    return finish(rslt, CMPI_RC_OK, "message");
}

static CMPIStatus HTMethodCleanup(CMPIMethodMI *mi, const CMPIContext *ctx, CMPIBoolean terminating);

static CMPIStatus HTInvokeMethod(CMPIMethodMI *mi, const CMPIContext *ctx, const CMPIResult *rslt,
                                 const CMPIObjectPath *ref, const char *method,
                                 const CMPIArgs *in, CMPIArgs *out) {
    Check c = {"", 0};
    NEED_CALL(c, ref);
    needText(&c, "method", method);
    need(&c, "in", in);
    need(&c, "out", out);
    CHECKED(c);
    if (strcmp(method, "Echo") == 0) return echo(rslt, in, out);
    if (strcmp(method, "Counter") == 0) return returnUint(rslt, bump(&g_counter));
    if (strcmp(method, "FactoryCalls") == 0) return returnUint(rslt, g_factoryCalls);
    if (strcmp(method, "FactoryContextNull") == 0) return returnUint(rslt, (CMPIUint32)g_factoryCtxNull);
    if (strcmp(method, "Principal") == 0) return principal(ctx, rslt);
    if (strcmp(method, "Broker") == 0) return brokerFacts(rslt, out);
    if (strcmp(method, "Upcall") == 0) return upcall(ctx, rslt, out);
    if (strcmp(method, "IsA") == 0) return isA(rslt, in, ref);
    if (strcmp(method, "Error") == 0) return extendedError(rslt);
    if (strcmp(method, "CloneKeep") == 0) return cloneString(rslt, 0);
    if (strcmp(method, "CloneRelease") == 0) return cloneString(rslt, 1);
    if (strcmp(method, "Message") == 0) return message(rslt);
    if (strcmp(method, "LateReturn") == 0) {
        CMPIUint32 v = 1;
        CMReturnDone(rslt);
        return returnUint(rslt, v);
    }
    if (strcmp(method, "StartIndications") == 0) {
        CMPIData n = CMGetArg(in, "Count", NULL);
        return returnUint(rslt, (CMPIUint32)startSender(ctx, n.value.uint32));
    }
    if (strcmp(method, "JoinIndications") == 0) {
        joinSender();
        return returnUint(rslt, 0);
    }
    if (strcmp(method, "UnattachedIndication") == 0) {
        return returnUint(rslt, (CMPIUint32)unattachedIndication(ctx));
    }
    CMReturnWithChars(broker, CMPI_RC_ERR_METHOD_NOT_FOUND, method);
}

/* ------------------------------------------------------------------ */
/* Indication MI                                                      */
/* ------------------------------------------------------------------ */

/* The handles and names every filter request carries. */
#define NEED_FILTER(c)                         \
    do {                                       \
        needMI(&(c), mi);                      \
        need(&(c), "ctx", ctx);                \
        need(&(c), "filter", filter);          \
        needText(&(c), "class", className);    \
        need(&(c), "ref", op);                 \
    } while (0)

static CMPIStatus filterText(const CMPISelectExp *filter, const char *what, const char *cls,
                             const char *extra) {
    char text[256];
    snprintf(text, sizeof text, "%s query=%s class=%s %s", what,
             chars(CMGetSelExpString(filter, NULL)), cls, extra);
    CMReturnWithChars(broker, CMPI_RC_OK, text);
}

static CMPIStatus HTIndicationCleanup(CMPIIndicationMI *mi, const CMPIContext *ctx,
                                      CMPIBoolean terminating);

static CMPIStatus HTAuthorizeFilter(CMPIIndicationMI *mi, const CMPIContext *ctx,
                                    const CMPISelectExp *filter, const char *className,
                                    const CMPIObjectPath *op, const char *owner) {
    Check c = {"", 0};
    NEED_FILTER(c);
    needText(&c, "owner", owner);
    CHECKED(c);
    return filterText(filter, "authorize", className, owner);
}

static CMPIStatus HTMustPoll(CMPIIndicationMI *mi, const CMPIContext *ctx,
                             const CMPISelectExp *filter, const char *className,
                             const CMPIObjectPath *op) {
    Check c = {"", 0};
    NEED_FILTER(c);
    CHECKED(c);
    return filterText(filter, "poll", className, "");
}

static CMPIStatus HTActivateFilter(CMPIIndicationMI *mi, const CMPIContext *ctx,
                                   const CMPISelectExp *filter, const char *className,
                                   const CMPIObjectPath *op, CMPIBoolean first) {
    Check c = {"", 0};
    NEED_FILTER(c);
    CHECKED(c);
    return filterText(filter, "activate", className, first ? "first" : "more");
}

static CMPIStatus HTDeActivateFilter(CMPIIndicationMI *mi, const CMPIContext *ctx,
                                     const CMPISelectExp *filter, const char *className,
                                     const CMPIObjectPath *op, CMPIBoolean last) {
    Check c = {"", 0};
    NEED_FILTER(c);
    CHECKED(c);
    return filterText(filter, "deactivate", className, last ? "last" : "more");
}

static CMPIStatus enabled(CMPIIndicationMI *mi, const CMPIContext *ctx, int delta) {
    Check c = {"", 0};
    char text[32];
    int now;
    needMI(&c, mi);
    need(&c, "ctx", ctx);
    CHECKED(c);
    pthread_mutex_lock(&g_lock);
    now = g_enabled += delta;
    pthread_mutex_unlock(&g_lock);
    snprintf(text, sizeof text, "enabled=%d", now);
    CMReturnWithChars(broker, CMPI_RC_OK, text);
}

static CMPIStatus HTEnableIndications(CMPIIndicationMI *mi, const CMPIContext *ctx) {
    return enabled(mi, ctx, 1);
}

static CMPIStatus HTDisableIndications(CMPIIndicationMI *mi, const CMPIContext *ctx) {
    return enabled(mi, ctx, -1);
}

/* ------------------------------------------------------------------ */
/* Cleanup and factories                                              */
/* ------------------------------------------------------------------ */

/* Idle unload is refused; a terminating cleanup stops the sender thread. */
static CMPIStatus cleanup(const void *mi, const char *kind, CMPIBoolean terminating) {
    char text[64];
    if (mi == NULL) {
        CMReturnWithChars(broker, CMPI_RC_ERR_INVALID_PARAMETER, "mi=NULL");
    }
    if (!terminating) {
        CMReturn(CMPI_RC_NEVER_UNLOAD);
    }
    joinSender();
    snprintf(text, sizeof text, "cleanup %s", kind);
    CMReturnWithChars(broker, CMPI_RC_OK, text);
}

static CMPIStatus HTCleanup(CMPIInstanceMI *mi, const CMPIContext *ctx, CMPIBoolean terminating) {
    (void)ctx;
    return cleanup(mi, "instance", terminating);
}

static CMPIStatus HTAssociationCleanup(CMPIAssociationMI *mi, const CMPIContext *ctx,
                                       CMPIBoolean terminating) {
    (void)ctx;
    return cleanup(mi, "association", terminating);
}

static CMPIStatus HTMethodCleanup(CMPIMethodMI *mi, const CMPIContext *ctx, CMPIBoolean terminating) {
    (void)ctx;
    return cleanup(mi, "method", terminating);
}

static CMPIStatus HTIndicationCleanup(CMPIIndicationMI *mi, const CMPIContext *ctx,
                                      CMPIBoolean terminating) {
    (void)ctx;
    return cleanup(mi, "indication", terminating);
}

/* Every factory call counts, and touches the broker once (the string is
 * the host's: no request is running). The broker is stored only when it
 * changes: factories may run on several threads while others serve
 * requests, and all of them pass the same broker. */
static void factoryCalled(const CMPIBroker *brkr, const CMPIContext *ctx) {
    if (__atomic_load_n(&broker, __ATOMIC_ACQUIRE) != brkr) {
        __atomic_store_n(&broker, brkr, __ATOMIC_RELEASE);
    }
    bump(&g_factoryCalls);
    pthread_mutex_lock(&g_lock);
    g_factoryCtxNull += ctx == NULL;
    pthread_mutex_unlock(&g_lock);
    CMNewString(brkr, "factory", NULL);
}

static CMPIInstanceMIFT instFT = {CMPICurrentVersion, CMPICurrentVersion, "instanceHostTest",
                                  HTCleanup, HTEnumInstanceNames, HTEnumInstances,
                                  HTGetInstance, HTCreateInstance, HTModifyInstance,
                                  HTDeleteInstance, HTExecQuery};
static CMPIAssociationMIFT assocFT = {CMPICurrentVersion, CMPICurrentVersion,
                                      "associationHostTest", HTAssociationCleanup,
                                      HTAssociators, HTAssociatorNames, HTReferences,
                                      HTReferenceNames};
static CMPIMethodMIFT methFT = {CMPICurrentVersion, CMPICurrentVersion, "methodHostTest",
                                HTMethodCleanup, HTInvokeMethod};
static CMPIIndicationMIFT indFT = {CMPICurrentVersion, CMPICurrentVersion,
                                   "IndicationHostTest", HTIndicationCleanup,
                                   HTAuthorizeFilter, HTMustPoll, HTActivateFilter,
                                   HTDeActivateFilter, HTEnableIndications,
                                   HTDisableIndications};

static CMPIInstanceMI instMI = {NULL, &instFT};
static CMPIAssociationMI assocMI = {NULL, &assocFT};
static CMPIMethodMI methMI = {NULL, &methFT};
static CMPIIndicationMI indMI = {NULL, &indFT};

CMPI_EXTERN_C CMPIInstanceMI *HostTest_Create_InstanceMI(const CMPIBroker *brkr,
                                                         const CMPIContext *ctx, CMPIStatus *rc) {
    (void)rc;
    factoryCalled(brkr, ctx);
    return &instMI;
}

CMPI_EXTERN_C CMPIAssociationMI *HostTest_Create_AssociationMI(const CMPIBroker *brkr,
                                                               const CMPIContext *ctx,
                                                               CMPIStatus *rc) {
    (void)rc;
    factoryCalled(brkr, ctx);
    return &assocMI;
}

CMPI_EXTERN_C CMPIMethodMI *HostTest_Create_MethodMI(const CMPIBroker *brkr,
                                                     const CMPIContext *ctx, CMPIStatus *rc) {
    (void)rc;
    factoryCalled(brkr, ctx);
    return &methMI;
}

CMPI_EXTERN_C CMPIIndicationMI *HostTest_Create_IndicationMI(const CMPIBroker *brkr,
                                                             const CMPIContext *ctx,
                                                             CMPIStatus *rc) {
    (void)rc;
    factoryCalled(brkr, ctx);
    return &indMI;
}
