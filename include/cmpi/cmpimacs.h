/*
 * cmpimacs.h - CMPI 2.0 convenience macros.
 *
 * Each macro is a thin spelling of one function-table call, e.g.
 * CMGetKeyCount(op, rc) is op->ft->getKeyCount(op, rc).  They are plain
 * macros (no inline functions), which is also what the sfcb and
 * OpenPegasus headers give a provider unless it asks for CMPI_INLINE; in
 * particular the value arguments of CMSetProperty, CMAddKey, CMAddArg,
 * CMSetArrayElementAt, CMReturnData and friends are cast to
 * (const CMPIValue *).  Pass the address of the value ("&u16" with
 * CMPI_uint16, "&str" with CMPI_string) - except for CMPI_chars, where
 * brokers take the argument itself as the character pointer:
 * CMAddKey(op, "Name", "disk0", CMPI_chars).
 *
 * As in every CMPI header, the table-call macros name their object twice
 * (o->ft->f(o, ...)) and CMIsNullObject tests its argument twice: pass
 * plain pointers, not expressions with side effects.  The status helpers
 * below evaluate each argument once.
 */
#ifndef _CMPIMACS_H_
#define _CMPIMACS_H_

#include "cmpidt.h"
#include "cmpift.h"

/* ---------------------------------------------------------------------- */
/* Returning a status from an MI function                                 */
/* ---------------------------------------------------------------------- */

#define CMReturn(rc_)                          \
    do {                                       \
        CMPIStatus cmpi_ret_status_;           \
        cmpi_ret_status_.rc = (CMPIrc)(rc_);   \
        cmpi_ret_status_.msg = NULL;           \
        return cmpi_ret_status_;               \
    } while (0)

#define CMReturnWithString(rc_, str_)                   \
    do {                                                \
        CMPIStatus cmpi_ret_status_;                    \
        cmpi_ret_status_.rc = (CMPIrc)(rc_);            \
        cmpi_ret_status_.msg = (CMPIString *)(str_);    \
        return cmpi_ret_status_;                        \
    } while (0)

/* The message is created with the broker's newString(); no broker, no
 * message.  (Broker and status pointers go through locals, so that passing
 * "&status" or "&broker" does not trip -Waddress.) */
#define CMReturnWithChars(mb_, rc_, chars_)                                  \
    do {                                                                     \
        const CMPIBroker *cmpi_ret_mb_ = (mb_);                              \
        CMPIStatus cmpi_ret_status_;                                         \
        cmpi_ret_status_.rc = (CMPIrc)(rc_);                                 \
        cmpi_ret_status_.msg =                                               \
            cmpi_ret_mb_                                                     \
                ? cmpi_ret_mb_->eft->newString(cmpi_ret_mb_, (chars_), NULL) \
                : NULL;                                                      \
        return cmpi_ret_status_;                                             \
    } while (0)

/* ---------------------------------------------------------------------- */
/* Filling a status through a pointer (NULL pointer: nothing happens)     */
/* ---------------------------------------------------------------------- */

#define CMSetStatus(st_, rc_)                                                \
    do {                                                                     \
        CMPIStatus *cmpi_set_st_ = (st_);                                    \
        if (cmpi_set_st_) {                                                  \
            cmpi_set_st_->rc = (CMPIrc)(rc_);                                \
            cmpi_set_st_->msg = NULL;                                        \
        }                                                                    \
    } while (0)

#define CMSetStatusWithString(st_, rc_, str_)                                \
    do {                                                                     \
        CMPIStatus *cmpi_set_st_ = (st_);                                    \
        if (cmpi_set_st_) {                                                  \
            cmpi_set_st_->rc = (CMPIrc)(rc_);                                \
            cmpi_set_st_->msg = (CMPIString *)(str_);                        \
        }                                                                    \
    } while (0)

#define CMSetStatusWithChars(mb_, st_, rc_, chars_)                          \
    do {                                                                     \
        const CMPIBroker *cmpi_set_mb_ = (mb_);                              \
        CMPIStatus *cmpi_set_st_ = (st_);                                    \
        if (cmpi_set_st_) {                                                  \
            cmpi_set_st_->rc = (CMPIrc)(rc_);                                \
            cmpi_set_st_->msg =                                              \
                cmpi_set_mb_                                                 \
                    ? cmpi_set_mb_->eft->newString(cmpi_set_mb_, (chars_),   \
                                                   NULL)                     \
                    : NULL;                                                  \
        }                                                                    \
    } while (0)

/* ---------------------------------------------------------------------- */
/* Tests                                                                  */
/* ---------------------------------------------------------------------- */

/* True for a NULL object pointer and for an object whose hdl is NULL (hdl
 * is the first member of every encapsulated object). */
#define CMIsNullObject(o) ((o) == NULL || *((void *const *)(o)) == NULL)

#define CMIsNullValue(v)  (((v).state) & CMPI_nullValue)
#define CMIsKeyValue(v)   (((v).state) & CMPI_keyValue)
#define CMIsArray(v)      (((v).type) & CMPI_ARRAY)

/* ---------------------------------------------------------------------- */
/* Life cycle of any encapsulated object                                  */
/* ---------------------------------------------------------------------- */

#define CMClone(o, rc)  ((o)->ft->clone((o), (rc)))
#define CMRelease(o)    ((o)->ft->release((o)))

/* ---------------------------------------------------------------------- */
/* Broker factories (CMPIBrokerEncFT)                                     */
/* ---------------------------------------------------------------------- */

#define CMNewInstance(b, op, rc)       ((b)->eft->newInstance((b), (op), (rc)))
#define CMNewObjectPath(b, ns, cn, rc) ((b)->eft->newObjectPath((b), (ns), (cn), (rc)))
#define CMNewString(b, s, rc)          ((b)->eft->newString((b), (s), (rc)))
#define CMNewArgs(b, rc)               ((b)->eft->newArgs((b), (rc)))
#define CMNewArray(b, n, t, rc)        ((b)->eft->newArray((b), (n), (t), (rc)))
#define CMNewDateTime(b, rc)           ((b)->eft->newDateTime((b), (rc)))
#define CMNewDateTimeFromBinary(b, d, i, rc) \
    ((b)->eft->newDateTimeFromBinary((b), (d), (i), (rc)))
#define CMNewDateTimeFromChars(b, d, rc) \
    ((b)->eft->newDateTimeFromChars((b), (d), (rc)))
#define CMNewSelectExp(b, q, l, p, rc) \
    ((b)->eft->newSelectExp((b), (q), (l), (p), (rc)))
#define CMClassPathIsA(b, op, cn, rc) \
    ((b)->eft->classPathIsA((b), (op), (cn), (rc)))

#define CDToString(b, o, rc)      ((b)->eft->toString((b), (const void *)(o), (rc)))
#define CDIsOfType(b, o, t, rc)   ((b)->eft->isOfType((b), (const void *)(o), (t), (rc)))
#define CDGetType(b, o, rc)       ((b)->eft->getType((b), (const void *)(o), (rc)))

#ifdef CMPI_VER_85
/* Message inserts for CMGetMessage/CMGetMessage2: each CMFmtX yields the
 * (type, value) pair getMessage() expects, CMFmtArgsN prepends the count.
 *   CMGetMessage(b, "ID1", "disk $0 failed", &rc, CMFmtArgs1(CMFmtUint(n)))
 */
#  define CMFmtSint(v)    CMPI_sint32, ((long int)(v))
#  define CMFmtUint(v)    CMPI_uint32, ((unsigned long int)(v))
#  define CMFmtSint64(v)  CMPI_sint64, ((CMPISint64)(v))
#  define CMFmtUint64(v)  CMPI_uint64, ((CMPIUint64)(v))
#  define CMFmtReal(v)    CMPI_real64, ((double)(v))
#  define CMFmtBoolean(v) CMPI_boolean, ((int)(v))
#  define CMFmtChars(v)   CMPI_chars, ((const char *)(v))
#  define CMFmtString(v)  CMPI_string, ((CMPIString *)(v))

#  define CMFmtArgs0()                                   0
#  define CMFmtArgs1(v1)                                 1, v1
#  define CMFmtArgs2(v1, v2)                             2, v1, v2
#  define CMFmtArgs3(v1, v2, v3)                         3, v1, v2, v3
#  define CMFmtArgs4(v1, v2, v3, v4)                     4, v1, v2, v3, v4
#  define CMFmtArgs5(v1, v2, v3, v4, v5)                 5, v1, v2, v3, v4, v5
#  define CMFmtArgs6(v1, v2, v3, v4, v5, v6)             6, v1, v2, v3, v4, v5, v6
#  define CMFmtArgs7(v1, v2, v3, v4, v5, v6, v7)         7, v1, v2, v3, v4, v5, v6, v7
#  define CMFmtArgs8(v1, v2, v3, v4, v5, v6, v7, v8)     8, v1, v2, v3, v4, v5, v6, v7, v8
#  define CMFmtArgs9(v1, v2, v3, v4, v5, v6, v7, v8, v9) 9, v1, v2, v3, v4, v5, v6, v7, v8, v9
#  define CMFmtArgs10(v1, v2, v3, v4, v5, v6, v7, v8, v9, v10) \
        10, v1, v2, v3, v4, v5, v6, v7, v8, v9, v10

#  define CMGetMessage(b, id, def, rc, parms) \
    ((b)->eft->getMessage((b), (id), (def), (rc), parms))
#endif /* CMPI_VER_85 */

#ifdef CMPI_VER_100
#  define CMLogMessage(b, severity, id, text, string) \
    ((b)->eft->logMessage((b), (severity), (id), (text), (string)))
#  define CMTraceMessage(b, level, component, text, string) \
    ((b)->eft->trace((b), (level), (component), (text), (string)))
#endif

#ifdef CMPI_VER_200
#  define CMNewCMPIError(b, owner, msgID, msg, sev, pc, cimStatusCode, rc)   \
    ((b)->eft->newCMPIError((b), (owner), (msgID), (msg), (sev), (pc),      \
                            (cimStatusCode), (rc)))
#  define CMOpenMessageFile(b, mf, mfh) \
    ((b)->eft->openMessageFile((b), (mf), (mfh)))
#  define CMCloseMessageFile(b, mfh) \
    ((b)->eft->closeMessageFile((b), (mfh)))
#  define CMGetMessage2(b, id, mfh, def, rc, parms) \
    ((b)->eft->getMessage2((b), (id), (mfh), (def), (rc), parms))
#endif

/* ---------------------------------------------------------------------- */
/* CMPIInstance                                                           */
/* ---------------------------------------------------------------------- */

#define CMGetProperty(i, n, rc)         ((i)->ft->getProperty((i), (n), (rc)))
#define CMGetPropertyAt(i, num, s, rc)  ((i)->ft->getPropertyAt((i), (num), (s), (rc)))
#define CMSetProperty(i, n, v, t) \
    ((i)->ft->setProperty((i), (n), (const CMPIValue *)(v), (t)))
#define CMGetPropertyCount(i, rc)       ((i)->ft->getPropertyCount((i), (rc)))
#define CMGetObjectPath(i, rc)          ((i)->ft->getObjectPath((i), (rc)))
#define CMSetPropertyFilter(i, pl, k)   ((i)->ft->setPropertyFilter((i), (pl), (k)))
#ifdef CMPI_VER_100
#  define CMSetObjectPath(i, op)        ((i)->ft->setObjectPath((i), (op)))
#endif
#ifdef CMPI_VER_200
#  define CMSetPropertyWithOrigin(i, n, v, t, o) \
    ((i)->ft->setPropertyWithOrigin((i), (n), (const CMPIValue *)(v), (t), (o)))
#endif

/* ---------------------------------------------------------------------- */
/* CMPIObjectPath                                                         */
/* ---------------------------------------------------------------------- */

#define CMSetHostname(p, n)        ((p)->ft->setHostname((p), (n)))
#define CMGetHostname(p, rc)       ((p)->ft->getHostname((p), (rc)))
#define CMSetNameSpace(p, n)       ((p)->ft->setNameSpace((p), (n)))
#define CMGetNameSpace(p, rc)      ((p)->ft->getNameSpace((p), (rc)))
#define CMSetClassName(p, n)       ((p)->ft->setClassName((p), (n)))
#define CMGetClassName(p, rc)      ((p)->ft->getClassName((p), (rc)))
#define CMAddKey(p, n, v, t) \
    ((p)->ft->addKey((p), (n), (const CMPIValue *)(v), (t)))
#define CMGetKey(p, n, rc)         ((p)->ft->getKey((p), (n), (rc)))
#define CMGetKeyAt(p, i, n, rc)    ((p)->ft->getKeyAt((p), (i), (n), (rc)))
#define CMGetKeyCount(p, rc)       ((p)->ft->getKeyCount((p), (rc)))
#define CMSetNameSpaceFromObjectPath(p, s) \
    ((p)->ft->setNameSpaceFromObjectPath((p), (s)))
#define CMSetHostAndNameSpaceFromObjectPath(p, s) \
    ((p)->ft->setHostAndNameSpaceFromObjectPath((p), (s)))
#define CMGetClassQualifier(p, q, rc) \
    ((p)->ft->getClassQualifier((p), (q), (rc)))
#define CMGetPropertyQualifier(p, pn, q, rc) \
    ((p)->ft->getPropertyQualifier((p), (pn), (q), (rc)))
#define CMGetMethodQualifier(p, m, q, rc) \
    ((p)->ft->getMethodQualifier((p), (m), (q), (rc)))
#define CMGetParameterQualifier(p, m, pn, q, rc) \
    ((p)->ft->getParameterQualifier((p), (m), (pn), (q), (rc)))
#ifdef CMPI_VER_86
#  define CMObjectPathToString(p, rc) ((p)->ft->toString((p), (rc)))
#endif

/* ---------------------------------------------------------------------- */
/* CMPIArray                                                              */
/* ---------------------------------------------------------------------- */

#define CMGetArrayCount(a, rc)        ((a)->ft->getSize((a), (rc)))
#define CMGetArrayType(a, rc)         ((a)->ft->getSimpleType((a), (rc)))
#define CMGetArrayElementAt(a, n, rc) ((a)->ft->getElementAt((a), (n), (rc)))
#define CMSetArrayElementAt(a, n, v, t) \
    ((a)->ft->setElementAt((a), (n), (const CMPIValue *)(v), (t)))

/* ---------------------------------------------------------------------- */
/* CMPIArgs                                                               */
/* ---------------------------------------------------------------------- */

#define CMAddArg(a, n, v, t) \
    ((a)->ft->addArg((a), (n), (const CMPIValue *)(v), (t)))
#define CMGetArg(a, n, rc)         ((a)->ft->getArg((a), (n), (rc)))
#define CMGetArgAt(a, p, n, rc)    ((a)->ft->getArgAt((a), (p), (n), (rc)))
#define CMGetArgCount(a, rc)       ((a)->ft->getArgCount((a), (rc)))

/* ---------------------------------------------------------------------- */
/* CMPIString and CMPIDateTime                                            */
/* ---------------------------------------------------------------------- */

/* Goes through getCharPtr(): the contents of hdl are the broker's
 * business and differ between brokers. */
#define CMGetCharPtr(s)            ((s)->ft->getCharPtr((s), NULL))
#define CMGetCharsPtr(s, rc)       ((s)->ft->getCharPtr((s), (rc)))

#define CMGetStringFormat(d, rc)   ((d)->ft->getStringFormat((d), (rc)))
#define CMGetBinaryFormat(d, rc)   ((d)->ft->getBinaryFormat((d), (rc)))
#define CMIsInterval(d, rc)        ((d)->ft->isInterval((d), (rc)))

/* ---------------------------------------------------------------------- */
/* CMPIError                                                              */
/* ---------------------------------------------------------------------- */

#ifdef CMPI_VER_200
#  define CMGetErrorType(e, rc)              ((e)->ft->getErrorType((e), (rc)))
#  define CMGetOtherErrorType(e, rc)         ((e)->ft->getOtherErrorType((e), (rc)))
#  define CMGetOwningEntity(e, rc)           ((e)->ft->getOwningEntity((e), (rc)))
#  define CMGetMessageID(e, rc)              ((e)->ft->getMessageID((e), (rc)))
#  define CMGetErrorMessage(e, rc)           ((e)->ft->getMessage((e), (rc)))
#  define CMGetPerceivedSeverity(e, rc)      ((e)->ft->getPerceivedSeverity((e), (rc)))
#  define CMGetProbableCause(e, rc)          ((e)->ft->getProbableCause((e), (rc)))
#  define CMGetProbableCauseDescription(e, rc) \
    ((e)->ft->getProbableCauseDescription((e), (rc)))
#  define CMGetRecommendedActions(e, rc)     ((e)->ft->getRecommendedActions((e), (rc)))
#  define CMGetErrorSource(e, rc)            ((e)->ft->getErrorSource((e), (rc)))
#  define CMGetErrorSourceFormat(e, rc)      ((e)->ft->getErrorSourceFormat((e), (rc)))
#  define CMGetOtherErrorSourceFormat(e, rc) \
    ((e)->ft->getOtherErrorSourceFormat((e), (rc)))
#  define CMGetCIMStatusCode(e, rc)          ((e)->ft->getCIMStatusCode((e), (rc)))
#  define CMGetCIMStatusCodeDescription(e, rc) \
    ((e)->ft->getCIMStatusCodeDescription((e), (rc)))
#  define CMGetMessageArguments(e, rc)       ((e)->ft->getMessageArguments((e), (rc)))
#  define CMSetErrorType(e, et)              ((e)->ft->setErrorType((e), (et)))
#  define CMSetOtherErrorType(e, oet)        ((e)->ft->setOtherErrorType((e), (oet)))
#  define CMSetProbableCauseDescription(e, pcd) \
    ((e)->ft->setProbableCauseDescription((e), (pcd)))
#  define CMSetRecommendedActions(e, ra)     ((e)->ft->setRecommendedActions((e), (ra)))
#  define CMSetErrorSource(e, es)            ((e)->ft->setErrorSource((e), (es)))
#  define CMSetErrorSourceFormat(e, esf)     ((e)->ft->setErrorSourceFormat((e), (esf)))
#  define CMSetOtherErrorSourceFormat(e, oesf) \
    ((e)->ft->setOtherErrorSourceFormat((e), (oesf)))
#  define CMSetCIMStatusCodeDescription(e, cd) \
    ((e)->ft->setCIMStatusCodeDescription((e), (cd)))
#  define CMSetMessageArguments(e, ma)       ((e)->ft->setMessageArguments((e), (ma)))
#endif /* CMPI_VER_200 */

/* ---------------------------------------------------------------------- */
/* CMPIEnumeration                                                        */
/* ---------------------------------------------------------------------- */

#define CMGetNext(n, rc)   ((n)->ft->getNext((n), (rc)))
#define CMHasNext(n, rc)   ((n)->ft->hasNext((n), (rc)))
#define CMToArray(n, rc)   ((n)->ft->toArray((n), (rc)))

/* ---------------------------------------------------------------------- */
/* CMPIResult                                                             */
/* ---------------------------------------------------------------------- */

#define CMReturnData(r, v, t) \
    ((r)->ft->returnData((r), (const CMPIValue *)(v), (t)))
#define CMReturnInstance(r, i)     ((r)->ft->returnInstance((r), (i)))
#define CMReturnObjectPath(r, o)   ((r)->ft->returnObjectPath((r), (o)))
#define CMReturnDone(r)            ((r)->ft->returnDone((r)))
#ifdef CMPI_VER_200
#  define CMReturnError(r, e)      ((r)->ft->returnError((r), (e)))
#endif

/* ---------------------------------------------------------------------- */
/* CMPIContext                                                            */
/* ---------------------------------------------------------------------- */

#define CMGetContextEntry(c, n, rc)       ((c)->ft->getEntry((c), (n), (rc)))
#define CMGetContextEntryAt(c, p, n, rc)  ((c)->ft->getEntryAt((c), (p), (n), (rc)))
#define CMGetContextEntryCount(c, rc)     ((c)->ft->getEntryCount((c), (rc)))
#define CMAddContextEntry(c, n, v, t) \
    ((c)->ft->addEntry((c), (n), (const CMPIValue *)(v), (t)))

/* ---------------------------------------------------------------------- */
/* Queries                                                                */
/* ---------------------------------------------------------------------- */

#define CMGetSelExpString(s, rc)     ((s)->ft->getString((s), (rc)))
#define CMEvaluateSelExp(s, i, rc)   ((s)->ft->evaluate((s), (i), (rc)))
#ifdef CMPI_VER_87
#  define CMEvaluateSelExpUsingAccessor(s, a, p, rc) \
    ((s)->ft->evaluateUsingAccessor((s), (a), (p), (rc)))
#endif
#define CMGetDoc(s, rc)              ((s)->ft->getDOC((s), (rc)))
#define CMGetCod(s, rc)              ((s)->ft->getCOD((s), (rc)))

#define CMGetSubCondCountAndType(c, t, rc) \
    ((c)->ft->getCountAndType((c), (t), (rc)))
#define CMGetSubCondAt(c, p, rc)     ((c)->ft->getSubCondAt((c), (p), (rc)))

#define CMGetPredicateCount(s, rc)   ((s)->ft->getCount((s), (rc)))
#define CMGetPredicateAt(s, p, rc)   ((s)->ft->getPredicateAt((s), (p), (rc)))
#define CMGetPredicate(s, n, rc)     ((s)->ft->getPredicate((s), (n), (rc)))

#define CMGetPredicateData(p, t, o, n, v) \
    ((p)->ft->getData((p), (t), (o), (n), (v)))
#ifdef CMPI_VER_100
#  define CMEvaluatePredicateUsingAccessor(p, a, parm, rc) \
    ((p)->ft->evaluateUsingAccessor((p), (a), (parm), (rc)))
#endif

/* ---------------------------------------------------------------------- */
/* Broker services (CMPIBrokerFT)                                         */
/* ---------------------------------------------------------------------- */

#define CBGetBrokerCapabilities(b)   ((b)->bft->brokerCapabilities)
#define CBBrokerVersion(b)           ((b)->bft->brokerVersion)
#define CBBrokerName(b)              ((b)->bft->brokerName)

#define CBPrepareAttachThread(b, c)  ((b)->bft->prepareAttachThread((b), (c)))
#define CBAttachThread(b, c)         ((b)->bft->attachThread((b), (c)))
#define CBDetachThread(b, c)         ((b)->bft->detachThread((b), (c)))

#define CBDeliverIndication(b, c, ns, i) \
    ((b)->bft->deliverIndication((b), (c), (ns), (i)))

#define CBEnumInstanceNames(b, c, p, rc) \
    ((b)->bft->enumerateInstanceNames((b), (c), (p), (rc)))
#define CBEnumInstances(b, c, p, pr, rc) \
    ((b)->bft->enumerateInstances((b), (c), (p), (pr), (rc)))
#define CBGetInstance(b, c, p, pr, rc) \
    ((b)->bft->getInstance((b), (c), (p), (pr), (rc)))
#define CBCreateInstance(b, c, p, i, rc) \
    ((b)->bft->createInstance((b), (c), (p), (i), (rc)))
#ifdef CMPI_VER_100
#  define CBModifyInstance(b, c, p, i, pr) \
    ((b)->bft->modifyInstance((b), (c), (p), (i), (pr)))
#endif
#define CBDeleteInstance(b, c, p) \
    ((b)->bft->deleteInstance((b), (c), (p)))
#define CBExecQuery(b, c, p, q, l, rc) \
    ((b)->bft->execQuery((b), (c), (p), (q), (l), (rc)))
#define CBAssociators(b, c, p, acl, rcl, r, rr, pr, rc) \
    ((b)->bft->associators((b), (c), (p), (acl), (rcl), (r), (rr), (pr), (rc)))
#define CBAssociatorNames(b, c, p, acl, rcl, r, rr, rc) \
    ((b)->bft->associatorNames((b), (c), (p), (acl), (rcl), (r), (rr), (rc)))
#define CBReferences(b, c, p, rcl, r, pr, rc) \
    ((b)->bft->references((b), (c), (p), (rcl), (r), (pr), (rc)))
#define CBReferenceNames(b, c, p, rcl, r, rc) \
    ((b)->bft->referenceNames((b), (c), (p), (rcl), (r), (rc)))
#define CBInvokeMethod(b, c, p, m, ai, ao, rc) \
    ((b)->bft->invokeMethod((b), (c), (p), (m), (ai), (ao), (rc)))
#define CBSetProperty(b, c, p, n, v, t) \
    ((b)->bft->setProperty((b), (c), (p), (n), (const CMPIValue *)(v), (t)))
#define CBGetProperty(b, c, p, n, rc) \
    ((b)->bft->getProperty((b), (c), (p), (n), (rc)))

/* ---------------------------------------------------------------------- */
/* MI factory stubs for providers written in C                            */
/* ---------------------------------------------------------------------- */

/*
 * CMxxxMIStub(pfx, pn, broker, hook) defines the static function table of
 * one MI kind, filled with the functions pfx##Cleanup, pfx##EnumInstanceNames
 * ... in slot order, plus the exported factory pn##_Create_xxxMI that stores
 * the broker in the provider's variable "broker", runs "hook" (CMNoHook
 * when there is nothing to do) and returns the MI.  The tables carry
 * CMPICurrentVersion as ftVersion and miVersion and "<kind><pn>" as name.
 */
#define CMNoHook

#define CMInstanceMIStub(pfx, pn, broker, hook)                             \
    static CMPIInstanceMIFT instMIFT__ = {                                  \
        CMPICurrentVersion, CMPICurrentVersion, "instance" #pn,             \
        pfx##Cleanup, pfx##EnumInstanceNames, pfx##EnumInstances,           \
        pfx##GetInstance, pfx##CreateInstance, pfx##ModifyInstance,         \
        pfx##DeleteInstance, pfx##ExecQuery                                 \
    };                                                                      \
    CMPI_EXTERN_C CMPIInstanceMI *pn##_Create_InstanceMI(                   \
        const CMPIBroker *brkr, const CMPIContext *ctx, CMPIStatus *rc)     \
    {                                                                       \
        static CMPIInstanceMI mi = { NULL, &instMIFT__ };                   \
        (void)ctx;                                                          \
        (void)rc;                                                           \
        broker = brkr;                                                      \
        hook;                                                               \
        return &mi;                                                         \
    }

#define CMAssociationMIStub(pfx, pn, broker, hook)                          \
    static CMPIAssociationMIFT assocMIFT__ = {                              \
        CMPICurrentVersion, CMPICurrentVersion, "association" #pn,          \
        pfx##AssociationCleanup, pfx##Associators, pfx##AssociatorNames,    \
        pfx##References, pfx##ReferenceNames                                \
    };                                                                      \
    CMPI_EXTERN_C CMPIAssociationMI *pn##_Create_AssociationMI(             \
        const CMPIBroker *brkr, const CMPIContext *ctx, CMPIStatus *rc)     \
    {                                                                       \
        static CMPIAssociationMI mi = { NULL, &assocMIFT__ };               \
        (void)ctx;                                                          \
        (void)rc;                                                           \
        broker = brkr;                                                      \
        hook;                                                               \
        return &mi;                                                         \
    }

#define CMMethodMIStub(pfx, pn, broker, hook)                               \
    static CMPIMethodMIFT methMIFT__ = {                                    \
        CMPICurrentVersion, CMPICurrentVersion, "method" #pn,               \
        pfx##MethodCleanup, pfx##InvokeMethod                               \
    };                                                                      \
    CMPI_EXTERN_C CMPIMethodMI *pn##_Create_MethodMI(                       \
        const CMPIBroker *brkr, const CMPIContext *ctx, CMPIStatus *rc)     \
    {                                                                       \
        static CMPIMethodMI mi = { NULL, &methMIFT__ };                     \
        (void)ctx;                                                          \
        (void)rc;                                                           \
        broker = brkr;                                                      \
        hook;                                                               \
        return &mi;                                                         \
    }

/* The 2.0 slot setPropertyWithOrigin is not among the functions the stub
 * asks for; it is set to NULL explicitly (keeps -Wextra quiet). */
#ifdef CMPI_VER_200
#  define CMPropertyMIStubOrigin , NULL
#else
#  define CMPropertyMIStubOrigin
#endif

#define CMPropertyMIStub(pfx, pn, broker, hook)                             \
    static CMPIPropertyMIFT propMIFT__ = {                                  \
        CMPICurrentVersion, CMPICurrentVersion, "property" #pn,             \
        pfx##PropertyCleanup, pfx##SetProperty, pfx##GetProperty            \
        CMPropertyMIStubOrigin                                              \
    };                                                                      \
    CMPI_EXTERN_C CMPIPropertyMI *pn##_Create_PropertyMI(                   \
        const CMPIBroker *brkr, const CMPIContext *ctx, CMPIStatus *rc)     \
    {                                                                       \
        static CMPIPropertyMI mi = { NULL, &propMIFT__ };                   \
        (void)ctx;                                                          \
        (void)rc;                                                           \
        broker = brkr;                                                      \
        hook;                                                               \
        return &mi;                                                         \
    }

#define CMIndicationMIStub(pfx, pn, broker, hook)                           \
    static CMPIIndicationMIFT indMIFT__ = {                                 \
        CMPICurrentVersion, CMPICurrentVersion, "Indication" #pn,           \
        pfx##IndicationCleanup, pfx##AuthorizeFilter, pfx##MustPoll,        \
        pfx##ActivateFilter, pfx##DeActivateFilter,                         \
        pfx##EnableIndications, pfx##DisableIndications                     \
    };                                                                      \
    CMPI_EXTERN_C CMPIIndicationMI *pn##_Create_IndicationMI(               \
        const CMPIBroker *brkr, const CMPIContext *ctx, CMPIStatus *rc)     \
    {                                                                       \
        static CMPIIndicationMI mi = { NULL, &indMIFT__ };                  \
        (void)ctx;                                                          \
        (void)rc;                                                           \
        broker = brkr;                                                      \
        hook;                                                               \
        return &mi;                                                         \
    }

#endif /* _CMPIMACS_H_ */
