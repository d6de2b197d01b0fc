/*
 * Expected x86-64 (LP64) layout of every CMPI data structure and function
 * table.  Included by several translation units that each define
 *
 *   CMPI_LAYOUT_SLOT(type, member, offset)   offsetof(type, member) == offset
 *   CMPI_LAYOUT_SIZE(type, size)             sizeof(type) == size
 *
 * before including it (no include guard on purpose).  A function table is
 * one CMPI_LAYOUT_SLOTS entry listing its slots in the standard's order
 * (cmpi_layout_slots.h turns it into one CMPI_LAYOUT_SLOT per slot); the C
 * checker names its checks after type and member.
 *
 * The numbers are written out by hand from the CMPI 2.0 member order, not
 * computed from the headers: a table slot is 8 bytes, a table headed by
 * "int ftVersion" puts slot i at 8 + 8*i, an MI table (ftVersion, miVersion,
 * miName) and CMPIBrokerFT (two unsigned ints, brokerName) put slot i at
 * 16 + 8*i.  Members that only exist from CMPI 2.0 on are checked when
 * the headers were configured for 2.0; the 1.0 sizes are checked otherwise,
 * so the same table also verifies the CMPI_VERSION=100 layout.
 *
 * Define CMPI_LAYOUT_IN_TREE when checking this repository's headers;
 * without it the table sticks to what every CMPI 2.0 header set agrees on
 * (OpenPegasus 2.14 lacks CMPIPropertyMIFT.setPropertyWithOrigin).
 */

#include "cmpi_layout_slots.h"

/* ---- scalar and value types ---------------------------------------- */
CMPI_LAYOUT_SIZE(CMPIBoolean, 1)
CMPI_LAYOUT_SIZE(CMPIChar16, 2)
CMPI_LAYOUT_SIZE(CMPIUint8, 1)
CMPI_LAYOUT_SIZE(CMPIUint16, 2)
CMPI_LAYOUT_SIZE(CMPIUint32, 4)
CMPI_LAYOUT_SIZE(CMPIUint64, 8)
CMPI_LAYOUT_SIZE(CMPISint8, 1)
CMPI_LAYOUT_SIZE(CMPISint16, 2)
CMPI_LAYOUT_SIZE(CMPISint32, 4)
CMPI_LAYOUT_SIZE(CMPISint64, 8)
CMPI_LAYOUT_SIZE(CMPIReal32, 4)
CMPI_LAYOUT_SIZE(CMPIReal64, 8)
CMPI_LAYOUT_SIZE(CMPICount, 4)
CMPI_LAYOUT_SIZE(CMPIType, 2)
CMPI_LAYOUT_SIZE(CMPIValueState, 2)
CMPI_LAYOUT_SIZE(CMPIFlags, 4)
CMPI_LAYOUT_SIZE(CMPIrc, 4)
CMPI_LAYOUT_SIZE(CMPIPredOp, 4)
CMPI_LAYOUT_SIZE(CMPISeverity, 4)
CMPI_LAYOUT_SIZE(CMPILevel, 4)

CMPI_LAYOUT_SLOT(CMPIValuePtr, ptr, 0)
CMPI_LAYOUT_SLOT(CMPIValuePtr, length, 8)
CMPI_LAYOUT_SIZE(CMPIValuePtr, 16)

CMPI_LAYOUT_SIZE(CMPIValue, 16)
CMPI_LAYOUT_SLOT(CMPIValue, uint64, 0)
CMPI_LAYOUT_SLOT(CMPIValue, uint32, 0)
CMPI_LAYOUT_SLOT(CMPIValue, uint16, 0)
CMPI_LAYOUT_SLOT(CMPIValue, boolean, 0)
CMPI_LAYOUT_SLOT(CMPIValue, real64, 0)
CMPI_LAYOUT_SLOT(CMPIValue, string, 0)
CMPI_LAYOUT_SLOT(CMPIValue, chars, 0)
CMPI_LAYOUT_SLOT(CMPIValue, ref, 0)
CMPI_LAYOUT_SLOT(CMPIValue, inst, 0)
CMPI_LAYOUT_SLOT(CMPIValue, array, 0)
CMPI_LAYOUT_SLOT(CMPIValue, dataPtr, 0)

CMPI_LAYOUT_SLOT(CMPIData, type, 0)
CMPI_LAYOUT_SLOT(CMPIData, state, 2)
CMPI_LAYOUT_SLOT(CMPIData, value, 8)
CMPI_LAYOUT_SIZE(CMPIData, 24)

CMPI_LAYOUT_SLOT(CMPIStatus, rc, 0)
CMPI_LAYOUT_SLOT(CMPIStatus, msg, 8)
CMPI_LAYOUT_SIZE(CMPIStatus, 16)

#ifdef CMPI_VER_200
CMPI_LAYOUT_SIZE(CMPIMsgFileHandle, 8)
CMPI_LAYOUT_SIZE(CMPIErrorType, 4)
CMPI_LAYOUT_SIZE(CMPIErrorSeverity, 4)
CMPI_LAYOUT_SIZE(CMPIErrorProbableCause, 4)
CMPI_LAYOUT_SIZE(CMPIErrorSrcFormat, 4)
#endif

/* ---- encapsulated objects: { hdl, ft } ----------------------------- */
CMPI_LAYOUT_OBJECT(CMPIContext)
CMPI_LAYOUT_OBJECT(CMPIResult)
CMPI_LAYOUT_OBJECT(CMPIString)
CMPI_LAYOUT_OBJECT(CMPIArray)
CMPI_LAYOUT_OBJECT(CMPIEnumeration)
CMPI_LAYOUT_OBJECT(CMPIInstance)
CMPI_LAYOUT_OBJECT(CMPIObjectPath)
CMPI_LAYOUT_OBJECT(CMPIArgs)
CMPI_LAYOUT_OBJECT(CMPIDateTime)
CMPI_LAYOUT_OBJECT(CMPISelectExp)
CMPI_LAYOUT_OBJECT(CMPISelectCond)
CMPI_LAYOUT_OBJECT(CMPISubCond)
CMPI_LAYOUT_OBJECT(CMPIPredicate)
#ifdef CMPI_VER_200
CMPI_LAYOUT_OBJECT(CMPIError)
#endif

/* ---- CMPIBroker ------------------------------------------------------ */
CMPI_LAYOUT_SLOTS(CMPIBroker, 0, hdl, bft, eft, xft)
#ifdef CMPI_VER_200
CMPI_LAYOUT_SLOT(CMPIBroker, mft, 32)
CMPI_LAYOUT_SIZE(CMPIBroker, 40)
#else
CMPI_LAYOUT_SIZE(CMPIBroker, 32)
#endif

/* ---- CMPIBrokerFT ---------------------------------------------------- */
CMPI_LAYOUT_SLOT(CMPIBrokerFT, brokerCapabilities, 0)
CMPI_LAYOUT_SLOT(CMPIBrokerFT, brokerVersion, 4)
CMPI_LAYOUT_SLOTS(CMPIBrokerFT, 8, brokerName, prepareAttachThread, attachThread, detachThread,
    deliverIndication, enumerateInstanceNames, getInstance, createInstance, modifyInstance,
    deleteInstance, execQuery, enumerateInstances, associators, associatorNames, references,
    referenceNames, invokeMethod, setProperty, getProperty)
CMPI_LAYOUT_SIZE(CMPIBrokerFT, 160)

/* ---- CMPIBrokerEncFT ------------------------------------------------- */
CMPI_LAYOUT_SLOTS(CMPIBrokerEncFT, 0, ftVersion, newInstance, newObjectPath, newArgs, newString,
    newArray, newDateTime, newDateTimeFromBinary, newDateTimeFromChars, newSelectExp, classPathIsA,
    toString, isOfType, getType, getMessage, logMessage, trace)
#ifdef CMPI_VER_200
CMPI_LAYOUT_SLOTS(CMPIBrokerEncFT, 136, newCMPIError, openMessageFile, closeMessageFile,
    getMessage2)
CMPI_LAYOUT_SIZE(CMPIBrokerEncFT, 168)
#else
CMPI_LAYOUT_SIZE(CMPIBrokerEncFT, 136)
#endif

/* ---- CMPIBrokerExtFT ------------------------------------------------- */
CMPI_LAYOUT_SLOTS(CMPIBrokerExtFT, 0, ftVersion, resolveFileName, newThread, joinThread, exitThread,
    cancelThread, threadSleep, threadOnce, createThreadKey, destroyThreadKey, getThreadSpecific,
    setThreadSpecific, newMutex, destroyMutex, lockMutex, unlockMutex, newCondition,
    destroyCondition, condWait, timedCondWait, signalCondition)
CMPI_LAYOUT_SIZE(CMPIBrokerExtFT, 168)

/* ---- CMPIBrokerMemFT (2.0) ------------------------------------------- */
#ifdef CMPI_VER_200
CMPI_LAYOUT_SLOTS(CMPIBrokerMemFT, 0, ftVersion, mark, release, cmpiMalloc, cmpiCalloc, cmpiRealloc,
    cmpiStrDup, cmpiFree, freeInstance, freeObjectPath, freeArgs, freeString, freeArray,
    freeDateTime, freeSelectExp)
CMPI_LAYOUT_SIZE(CMPIBrokerMemFT, 120)
#endif

/* ---- CMPIContextFT --------------------------------------------------- */
CMPI_LAYOUT_SLOTS(CMPIContextFT, 0, ftVersion, release, clone, getEntry, getEntryAt, getEntryCount,
    addEntry)
CMPI_LAYOUT_SIZE(CMPIContextFT, 56)

/* ---- CMPIResultFT ---------------------------------------------------- */
CMPI_LAYOUT_SLOTS(CMPIResultFT, 0, ftVersion, release, clone, returnData, returnInstance,
    returnObjectPath, returnDone)
#ifdef CMPI_VER_200
CMPI_LAYOUT_SLOT(CMPIResultFT, returnError, 56)
CMPI_LAYOUT_SIZE(CMPIResultFT, 64)
#else
CMPI_LAYOUT_SIZE(CMPIResultFT, 56)
#endif

/* ---- CMPIErrorFT (2.0) ----------------------------------------------- */
#ifdef CMPI_VER_200
CMPI_LAYOUT_SLOTS(CMPIErrorFT, 0, ftVersion, release, clone, getErrorType, getOtherErrorType,
    getOwningEntity, getMessageID, getMessage, getPerceivedSeverity, getProbableCause,
    getProbableCauseDescription, getRecommendedActions, getErrorSource, getErrorSourceFormat,
    getOtherErrorSourceFormat, getCIMStatusCode, getCIMStatusCodeDescription, getMessageArguments,
    setErrorType, setOtherErrorType, setProbableCauseDescription, setRecommendedActions,
    setErrorSource, setErrorSourceFormat, setOtherErrorSourceFormat, setCIMStatusCodeDescription,
    setMessageArguments)
CMPI_LAYOUT_SIZE(CMPIErrorFT, 216)
#endif

/* ---- CMPIInstanceFT -------------------------------------------------- */
CMPI_LAYOUT_SLOTS(CMPIInstanceFT, 0, ftVersion, release, clone, getProperty, getPropertyAt,
    getPropertyCount, setProperty, getObjectPath, setPropertyFilter, setObjectPath)
#ifdef CMPI_VER_200
CMPI_LAYOUT_SLOT(CMPIInstanceFT, setPropertyWithOrigin, 80)
CMPI_LAYOUT_SIZE(CMPIInstanceFT, 88)
#else
CMPI_LAYOUT_SIZE(CMPIInstanceFT, 80)
#endif

/* ---- CMPIObjectPathFT ------------------------------------------------ */
CMPI_LAYOUT_SLOTS(CMPIObjectPathFT, 0, ftVersion, release, clone, setNameSpace, getNameSpace,
    setHostname, getHostname, setClassName, getClassName, addKey, getKey, getKeyAt, getKeyCount,
    setNameSpaceFromObjectPath, setHostAndNameSpaceFromObjectPath, getClassQualifier,
    getPropertyQualifier, getMethodQualifier, getParameterQualifier, toString)
CMPI_LAYOUT_SIZE(CMPIObjectPathFT, 160)

/* ---- CMPIArgsFT ------------------------------------------------------ */
CMPI_LAYOUT_SLOTS(CMPIArgsFT, 0, ftVersion, release, clone, addArg, getArg, getArgAt, getArgCount)
CMPI_LAYOUT_SIZE(CMPIArgsFT, 56)

/* ---- CMPIStringFT ---------------------------------------------------- */
CMPI_LAYOUT_SLOTS(CMPIStringFT, 0, ftVersion, release, clone, getCharPtr)
CMPI_LAYOUT_SIZE(CMPIStringFT, 32)

/* ---- CMPIArrayFT ----------------------------------------------------- */
CMPI_LAYOUT_SLOTS(CMPIArrayFT, 0, ftVersion, release, clone, getSize, getSimpleType, getElementAt,
    setElementAt)
CMPI_LAYOUT_SIZE(CMPIArrayFT, 56)

/* ---- CMPIEnumerationFT ----------------------------------------------- */
CMPI_LAYOUT_SLOTS(CMPIEnumerationFT, 0, ftVersion, release, clone, getNext, hasNext, toArray)
CMPI_LAYOUT_SIZE(CMPIEnumerationFT, 48)

/* ---- CMPIDateTimeFT -------------------------------------------------- */
CMPI_LAYOUT_SLOTS(CMPIDateTimeFT, 0, ftVersion, release, clone, getBinaryFormat, getStringFormat,
    isInterval)
CMPI_LAYOUT_SIZE(CMPIDateTimeFT, 48)

/* ---- query objects --------------------------------------------------- */
CMPI_LAYOUT_SLOTS(CMPISelectExpFT, 0, ftVersion, release, clone, evaluate, getString, getDOC,
    getCOD, evaluateUsingAccessor)
CMPI_LAYOUT_SIZE(CMPISelectExpFT, 64)

CMPI_LAYOUT_SLOTS(CMPISelectCondFT, 0, ftVersion, release, clone, getCountAndType, getSubCondAt)
CMPI_LAYOUT_SIZE(CMPISelectCondFT, 40)

CMPI_LAYOUT_SLOTS(CMPISubCondFT, 0, ftVersion, release, clone, getCount, getPredicateAt,
    getPredicate)
CMPI_LAYOUT_SIZE(CMPISubCondFT, 48)

CMPI_LAYOUT_SLOTS(CMPIPredicateFT, 0, ftVersion, release, clone, getData, evaluateUsingAccessor)
CMPI_LAYOUT_SIZE(CMPIPredicateFT, 40)

/* ---- MI objects: { hdl, ft } ----------------------------------------- */
CMPI_LAYOUT_OBJECT(CMPIInstanceMI)
CMPI_LAYOUT_OBJECT(CMPIAssociationMI)
CMPI_LAYOUT_OBJECT(CMPIMethodMI)
CMPI_LAYOUT_OBJECT(CMPIPropertyMI)
CMPI_LAYOUT_OBJECT(CMPIIndicationMI)

/* ---- CMPIInstanceMIFT ------------------------------------------------ */
CMPI_LAYOUT_SLOT(CMPIInstanceMIFT, ftVersion, 0)
CMPI_LAYOUT_SLOT(CMPIInstanceMIFT, miVersion, 4)
CMPI_LAYOUT_SLOTS(CMPIInstanceMIFT, 8, miName, cleanup, enumerateInstanceNames, enumerateInstances,
    getInstance, createInstance, modifyInstance, deleteInstance, execQuery)
CMPI_LAYOUT_SIZE(CMPIInstanceMIFT, 80)

/* ---- CMPIAssociationMIFT --------------------------------------------- */
CMPI_LAYOUT_SLOT(CMPIAssociationMIFT, ftVersion, 0)
CMPI_LAYOUT_SLOT(CMPIAssociationMIFT, miVersion, 4)
CMPI_LAYOUT_SLOTS(CMPIAssociationMIFT, 8, miName, cleanup, associators, associatorNames, references,
    referenceNames)
CMPI_LAYOUT_SIZE(CMPIAssociationMIFT, 56)

/* ---- CMPIMethodMIFT -------------------------------------------------- */
CMPI_LAYOUT_SLOT(CMPIMethodMIFT, ftVersion, 0)
CMPI_LAYOUT_SLOT(CMPIMethodMIFT, miVersion, 4)
CMPI_LAYOUT_SLOTS(CMPIMethodMIFT, 8, miName, cleanup, invokeMethod)
CMPI_LAYOUT_SIZE(CMPIMethodMIFT, 32)

/* ---- CMPIPropertyMIFT ------------------------------------------------ */
CMPI_LAYOUT_SLOT(CMPIPropertyMIFT, ftVersion, 0)
CMPI_LAYOUT_SLOT(CMPIPropertyMIFT, miVersion, 4)
CMPI_LAYOUT_SLOTS(CMPIPropertyMIFT, 8, miName, cleanup, setProperty, getProperty)
#if defined(CMPI_LAYOUT_IN_TREE) && defined(CMPI_VER_200)
CMPI_LAYOUT_SLOT(CMPIPropertyMIFT, setPropertyWithOrigin, 40)
CMPI_LAYOUT_SIZE(CMPIPropertyMIFT, 48)
#elif defined(CMPI_LAYOUT_IN_TREE)
CMPI_LAYOUT_SIZE(CMPIPropertyMIFT, 40)
#endif

/* ---- CMPIIndicationMIFT ---------------------------------------------- */
CMPI_LAYOUT_SLOT(CMPIIndicationMIFT, ftVersion, 0)
CMPI_LAYOUT_SLOT(CMPIIndicationMIFT, miVersion, 4)
CMPI_LAYOUT_SLOTS(CMPIIndicationMIFT, 8, miName, cleanup, authorizeFilter, mustPoll, activateFilter,
    deActivateFilter, enableIndications, disableIndications)
CMPI_LAYOUT_SIZE(CMPIIndicationMIFT, 72)
