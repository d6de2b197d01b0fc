/*
 * Expected x86-64 (LP64) layout of every CMPI data structure and function
 * table.  Included by several translation units that each define
 *
 *   CMPI_LAYOUT_SLOT(type, member, offset)   offsetof(type, member) == offset
 *   CMPI_LAYOUT_SIZE(type, size)             sizeof(type) == size
 *
 * before including it (no include guard on purpose).  One entry per line:
 * the C checker builds its names from __LINE__.
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
CMPI_LAYOUT_SLOT(CMPIContext, hdl, 0)
CMPI_LAYOUT_SLOT(CMPIContext, ft, 8)
CMPI_LAYOUT_SIZE(CMPIContext, 16)
CMPI_LAYOUT_SLOT(CMPIResult, hdl, 0)
CMPI_LAYOUT_SLOT(CMPIResult, ft, 8)
CMPI_LAYOUT_SIZE(CMPIResult, 16)
CMPI_LAYOUT_SLOT(CMPIString, hdl, 0)
CMPI_LAYOUT_SLOT(CMPIString, ft, 8)
CMPI_LAYOUT_SIZE(CMPIString, 16)
CMPI_LAYOUT_SLOT(CMPIArray, hdl, 0)
CMPI_LAYOUT_SLOT(CMPIArray, ft, 8)
CMPI_LAYOUT_SIZE(CMPIArray, 16)
CMPI_LAYOUT_SLOT(CMPIEnumeration, hdl, 0)
CMPI_LAYOUT_SLOT(CMPIEnumeration, ft, 8)
CMPI_LAYOUT_SIZE(CMPIEnumeration, 16)
CMPI_LAYOUT_SLOT(CMPIInstance, hdl, 0)
CMPI_LAYOUT_SLOT(CMPIInstance, ft, 8)
CMPI_LAYOUT_SIZE(CMPIInstance, 16)
CMPI_LAYOUT_SLOT(CMPIObjectPath, hdl, 0)
CMPI_LAYOUT_SLOT(CMPIObjectPath, ft, 8)
CMPI_LAYOUT_SIZE(CMPIObjectPath, 16)
CMPI_LAYOUT_SLOT(CMPIArgs, hdl, 0)
CMPI_LAYOUT_SLOT(CMPIArgs, ft, 8)
CMPI_LAYOUT_SIZE(CMPIArgs, 16)
CMPI_LAYOUT_SLOT(CMPIDateTime, hdl, 0)
CMPI_LAYOUT_SLOT(CMPIDateTime, ft, 8)
CMPI_LAYOUT_SIZE(CMPIDateTime, 16)
CMPI_LAYOUT_SLOT(CMPISelectExp, hdl, 0)
CMPI_LAYOUT_SLOT(CMPISelectExp, ft, 8)
CMPI_LAYOUT_SIZE(CMPISelectExp, 16)
CMPI_LAYOUT_SLOT(CMPISelectCond, hdl, 0)
CMPI_LAYOUT_SLOT(CMPISelectCond, ft, 8)
CMPI_LAYOUT_SIZE(CMPISelectCond, 16)
CMPI_LAYOUT_SLOT(CMPISubCond, hdl, 0)
CMPI_LAYOUT_SLOT(CMPISubCond, ft, 8)
CMPI_LAYOUT_SIZE(CMPISubCond, 16)
CMPI_LAYOUT_SLOT(CMPIPredicate, hdl, 0)
CMPI_LAYOUT_SLOT(CMPIPredicate, ft, 8)
CMPI_LAYOUT_SIZE(CMPIPredicate, 16)
#ifdef CMPI_VER_200
CMPI_LAYOUT_SLOT(CMPIError, hdl, 0)
CMPI_LAYOUT_SLOT(CMPIError, ft, 8)
CMPI_LAYOUT_SIZE(CMPIError, 16)
#endif

/* ---- CMPIBroker ------------------------------------------------------ */
CMPI_LAYOUT_SLOT(CMPIBroker, hdl, 0)
CMPI_LAYOUT_SLOT(CMPIBroker, bft, 8)
CMPI_LAYOUT_SLOT(CMPIBroker, eft, 16)
CMPI_LAYOUT_SLOT(CMPIBroker, xft, 24)
#ifdef CMPI_VER_200
CMPI_LAYOUT_SLOT(CMPIBroker, mft, 32)
CMPI_LAYOUT_SIZE(CMPIBroker, 40)
#else
CMPI_LAYOUT_SIZE(CMPIBroker, 32)
#endif

/* ---- CMPIBrokerFT ---------------------------------------------------- */
CMPI_LAYOUT_SLOT(CMPIBrokerFT, brokerCapabilities, 0)
CMPI_LAYOUT_SLOT(CMPIBrokerFT, brokerVersion, 4)
CMPI_LAYOUT_SLOT(CMPIBrokerFT, brokerName, 8)
CMPI_LAYOUT_SLOT(CMPIBrokerFT, prepareAttachThread, 16)
CMPI_LAYOUT_SLOT(CMPIBrokerFT, attachThread, 24)
CMPI_LAYOUT_SLOT(CMPIBrokerFT, detachThread, 32)
CMPI_LAYOUT_SLOT(CMPIBrokerFT, deliverIndication, 40)
CMPI_LAYOUT_SLOT(CMPIBrokerFT, enumerateInstanceNames, 48)
CMPI_LAYOUT_SLOT(CMPIBrokerFT, getInstance, 56)
CMPI_LAYOUT_SLOT(CMPIBrokerFT, createInstance, 64)
CMPI_LAYOUT_SLOT(CMPIBrokerFT, modifyInstance, 72)
CMPI_LAYOUT_SLOT(CMPIBrokerFT, deleteInstance, 80)
CMPI_LAYOUT_SLOT(CMPIBrokerFT, execQuery, 88)
CMPI_LAYOUT_SLOT(CMPIBrokerFT, enumerateInstances, 96)
CMPI_LAYOUT_SLOT(CMPIBrokerFT, associators, 104)
CMPI_LAYOUT_SLOT(CMPIBrokerFT, associatorNames, 112)
CMPI_LAYOUT_SLOT(CMPIBrokerFT, references, 120)
CMPI_LAYOUT_SLOT(CMPIBrokerFT, referenceNames, 128)
CMPI_LAYOUT_SLOT(CMPIBrokerFT, invokeMethod, 136)
CMPI_LAYOUT_SLOT(CMPIBrokerFT, setProperty, 144)
CMPI_LAYOUT_SLOT(CMPIBrokerFT, getProperty, 152)
CMPI_LAYOUT_SIZE(CMPIBrokerFT, 160)

/* ---- CMPIBrokerEncFT ------------------------------------------------- */
CMPI_LAYOUT_SLOT(CMPIBrokerEncFT, ftVersion, 0)
CMPI_LAYOUT_SLOT(CMPIBrokerEncFT, newInstance, 8)
CMPI_LAYOUT_SLOT(CMPIBrokerEncFT, newObjectPath, 16)
CMPI_LAYOUT_SLOT(CMPIBrokerEncFT, newArgs, 24)
CMPI_LAYOUT_SLOT(CMPIBrokerEncFT, newString, 32)
CMPI_LAYOUT_SLOT(CMPIBrokerEncFT, newArray, 40)
CMPI_LAYOUT_SLOT(CMPIBrokerEncFT, newDateTime, 48)
CMPI_LAYOUT_SLOT(CMPIBrokerEncFT, newDateTimeFromBinary, 56)
CMPI_LAYOUT_SLOT(CMPIBrokerEncFT, newDateTimeFromChars, 64)
CMPI_LAYOUT_SLOT(CMPIBrokerEncFT, newSelectExp, 72)
CMPI_LAYOUT_SLOT(CMPIBrokerEncFT, classPathIsA, 80)
CMPI_LAYOUT_SLOT(CMPIBrokerEncFT, toString, 88)
CMPI_LAYOUT_SLOT(CMPIBrokerEncFT, isOfType, 96)
CMPI_LAYOUT_SLOT(CMPIBrokerEncFT, getType, 104)
CMPI_LAYOUT_SLOT(CMPIBrokerEncFT, getMessage, 112)
CMPI_LAYOUT_SLOT(CMPIBrokerEncFT, logMessage, 120)
CMPI_LAYOUT_SLOT(CMPIBrokerEncFT, trace, 128)
#ifdef CMPI_VER_200
CMPI_LAYOUT_SLOT(CMPIBrokerEncFT, newCMPIError, 136)
CMPI_LAYOUT_SLOT(CMPIBrokerEncFT, openMessageFile, 144)
CMPI_LAYOUT_SLOT(CMPIBrokerEncFT, closeMessageFile, 152)
CMPI_LAYOUT_SLOT(CMPIBrokerEncFT, getMessage2, 160)
CMPI_LAYOUT_SIZE(CMPIBrokerEncFT, 168)
#else
CMPI_LAYOUT_SIZE(CMPIBrokerEncFT, 136)
#endif

/* ---- CMPIBrokerExtFT ------------------------------------------------- */
CMPI_LAYOUT_SLOT(CMPIBrokerExtFT, ftVersion, 0)
CMPI_LAYOUT_SLOT(CMPIBrokerExtFT, resolveFileName, 8)
CMPI_LAYOUT_SLOT(CMPIBrokerExtFT, newThread, 16)
CMPI_LAYOUT_SLOT(CMPIBrokerExtFT, joinThread, 24)
CMPI_LAYOUT_SLOT(CMPIBrokerExtFT, exitThread, 32)
CMPI_LAYOUT_SLOT(CMPIBrokerExtFT, cancelThread, 40)
CMPI_LAYOUT_SLOT(CMPIBrokerExtFT, threadSleep, 48)
CMPI_LAYOUT_SLOT(CMPIBrokerExtFT, threadOnce, 56)
CMPI_LAYOUT_SLOT(CMPIBrokerExtFT, createThreadKey, 64)
CMPI_LAYOUT_SLOT(CMPIBrokerExtFT, destroyThreadKey, 72)
CMPI_LAYOUT_SLOT(CMPIBrokerExtFT, getThreadSpecific, 80)
CMPI_LAYOUT_SLOT(CMPIBrokerExtFT, setThreadSpecific, 88)
CMPI_LAYOUT_SLOT(CMPIBrokerExtFT, newMutex, 96)
CMPI_LAYOUT_SLOT(CMPIBrokerExtFT, destroyMutex, 104)
CMPI_LAYOUT_SLOT(CMPIBrokerExtFT, lockMutex, 112)
CMPI_LAYOUT_SLOT(CMPIBrokerExtFT, unlockMutex, 120)
CMPI_LAYOUT_SLOT(CMPIBrokerExtFT, newCondition, 128)
CMPI_LAYOUT_SLOT(CMPIBrokerExtFT, destroyCondition, 136)
CMPI_LAYOUT_SLOT(CMPIBrokerExtFT, condWait, 144)
CMPI_LAYOUT_SLOT(CMPIBrokerExtFT, timedCondWait, 152)
CMPI_LAYOUT_SLOT(CMPIBrokerExtFT, signalCondition, 160)
CMPI_LAYOUT_SIZE(CMPIBrokerExtFT, 168)

/* ---- CMPIBrokerMemFT (2.0) ------------------------------------------- */
#ifdef CMPI_VER_200
CMPI_LAYOUT_SLOT(CMPIBrokerMemFT, ftVersion, 0)
CMPI_LAYOUT_SLOT(CMPIBrokerMemFT, mark, 8)
CMPI_LAYOUT_SLOT(CMPIBrokerMemFT, release, 16)
CMPI_LAYOUT_SLOT(CMPIBrokerMemFT, cmpiMalloc, 24)
CMPI_LAYOUT_SLOT(CMPIBrokerMemFT, cmpiCalloc, 32)
CMPI_LAYOUT_SLOT(CMPIBrokerMemFT, cmpiRealloc, 40)
CMPI_LAYOUT_SLOT(CMPIBrokerMemFT, cmpiStrDup, 48)
CMPI_LAYOUT_SLOT(CMPIBrokerMemFT, cmpiFree, 56)
CMPI_LAYOUT_SLOT(CMPIBrokerMemFT, freeInstance, 64)
CMPI_LAYOUT_SLOT(CMPIBrokerMemFT, freeObjectPath, 72)
CMPI_LAYOUT_SLOT(CMPIBrokerMemFT, freeArgs, 80)
CMPI_LAYOUT_SLOT(CMPIBrokerMemFT, freeString, 88)
CMPI_LAYOUT_SLOT(CMPIBrokerMemFT, freeArray, 96)
CMPI_LAYOUT_SLOT(CMPIBrokerMemFT, freeDateTime, 104)
CMPI_LAYOUT_SLOT(CMPIBrokerMemFT, freeSelectExp, 112)
CMPI_LAYOUT_SIZE(CMPIBrokerMemFT, 120)
#endif

/* ---- CMPIContextFT --------------------------------------------------- */
CMPI_LAYOUT_SLOT(CMPIContextFT, ftVersion, 0)
CMPI_LAYOUT_SLOT(CMPIContextFT, release, 8)
CMPI_LAYOUT_SLOT(CMPIContextFT, clone, 16)
CMPI_LAYOUT_SLOT(CMPIContextFT, getEntry, 24)
CMPI_LAYOUT_SLOT(CMPIContextFT, getEntryAt, 32)
CMPI_LAYOUT_SLOT(CMPIContextFT, getEntryCount, 40)
CMPI_LAYOUT_SLOT(CMPIContextFT, addEntry, 48)
CMPI_LAYOUT_SIZE(CMPIContextFT, 56)

/* ---- CMPIResultFT ---------------------------------------------------- */
CMPI_LAYOUT_SLOT(CMPIResultFT, ftVersion, 0)
CMPI_LAYOUT_SLOT(CMPIResultFT, release, 8)
CMPI_LAYOUT_SLOT(CMPIResultFT, clone, 16)
CMPI_LAYOUT_SLOT(CMPIResultFT, returnData, 24)
CMPI_LAYOUT_SLOT(CMPIResultFT, returnInstance, 32)
CMPI_LAYOUT_SLOT(CMPIResultFT, returnObjectPath, 40)
CMPI_LAYOUT_SLOT(CMPIResultFT, returnDone, 48)
#ifdef CMPI_VER_200
CMPI_LAYOUT_SLOT(CMPIResultFT, returnError, 56)
CMPI_LAYOUT_SIZE(CMPIResultFT, 64)
#else
CMPI_LAYOUT_SIZE(CMPIResultFT, 56)
#endif

/* ---- CMPIErrorFT (2.0) ----------------------------------------------- */
#ifdef CMPI_VER_200
CMPI_LAYOUT_SLOT(CMPIErrorFT, ftVersion, 0)
CMPI_LAYOUT_SLOT(CMPIErrorFT, release, 8)
CMPI_LAYOUT_SLOT(CMPIErrorFT, clone, 16)
CMPI_LAYOUT_SLOT(CMPIErrorFT, getErrorType, 24)
CMPI_LAYOUT_SLOT(CMPIErrorFT, getOtherErrorType, 32)
CMPI_LAYOUT_SLOT(CMPIErrorFT, getOwningEntity, 40)
CMPI_LAYOUT_SLOT(CMPIErrorFT, getMessageID, 48)
CMPI_LAYOUT_SLOT(CMPIErrorFT, getMessage, 56)
CMPI_LAYOUT_SLOT(CMPIErrorFT, getPerceivedSeverity, 64)
CMPI_LAYOUT_SLOT(CMPIErrorFT, getProbableCause, 72)
CMPI_LAYOUT_SLOT(CMPIErrorFT, getProbableCauseDescription, 80)
CMPI_LAYOUT_SLOT(CMPIErrorFT, getRecommendedActions, 88)
CMPI_LAYOUT_SLOT(CMPIErrorFT, getErrorSource, 96)
CMPI_LAYOUT_SLOT(CMPIErrorFT, getErrorSourceFormat, 104)
CMPI_LAYOUT_SLOT(CMPIErrorFT, getOtherErrorSourceFormat, 112)
CMPI_LAYOUT_SLOT(CMPIErrorFT, getCIMStatusCode, 120)
CMPI_LAYOUT_SLOT(CMPIErrorFT, getCIMStatusCodeDescription, 128)
CMPI_LAYOUT_SLOT(CMPIErrorFT, getMessageArguments, 136)
CMPI_LAYOUT_SLOT(CMPIErrorFT, setErrorType, 144)
CMPI_LAYOUT_SLOT(CMPIErrorFT, setOtherErrorType, 152)
CMPI_LAYOUT_SLOT(CMPIErrorFT, setProbableCauseDescription, 160)
CMPI_LAYOUT_SLOT(CMPIErrorFT, setRecommendedActions, 168)
CMPI_LAYOUT_SLOT(CMPIErrorFT, setErrorSource, 176)
CMPI_LAYOUT_SLOT(CMPIErrorFT, setErrorSourceFormat, 184)
CMPI_LAYOUT_SLOT(CMPIErrorFT, setOtherErrorSourceFormat, 192)
CMPI_LAYOUT_SLOT(CMPIErrorFT, setCIMStatusCodeDescription, 200)
CMPI_LAYOUT_SLOT(CMPIErrorFT, setMessageArguments, 208)
CMPI_LAYOUT_SIZE(CMPIErrorFT, 216)
#endif

/* ---- CMPIInstanceFT -------------------------------------------------- */
CMPI_LAYOUT_SLOT(CMPIInstanceFT, ftVersion, 0)
CMPI_LAYOUT_SLOT(CMPIInstanceFT, release, 8)
CMPI_LAYOUT_SLOT(CMPIInstanceFT, clone, 16)
CMPI_LAYOUT_SLOT(CMPIInstanceFT, getProperty, 24)
CMPI_LAYOUT_SLOT(CMPIInstanceFT, getPropertyAt, 32)
CMPI_LAYOUT_SLOT(CMPIInstanceFT, getPropertyCount, 40)
CMPI_LAYOUT_SLOT(CMPIInstanceFT, setProperty, 48)
CMPI_LAYOUT_SLOT(CMPIInstanceFT, getObjectPath, 56)
CMPI_LAYOUT_SLOT(CMPIInstanceFT, setPropertyFilter, 64)
CMPI_LAYOUT_SLOT(CMPIInstanceFT, setObjectPath, 72)
#ifdef CMPI_VER_200
CMPI_LAYOUT_SLOT(CMPIInstanceFT, setPropertyWithOrigin, 80)
CMPI_LAYOUT_SIZE(CMPIInstanceFT, 88)
#else
CMPI_LAYOUT_SIZE(CMPIInstanceFT, 80)
#endif

/* ---- CMPIObjectPathFT ------------------------------------------------ */
CMPI_LAYOUT_SLOT(CMPIObjectPathFT, ftVersion, 0)
CMPI_LAYOUT_SLOT(CMPIObjectPathFT, release, 8)
CMPI_LAYOUT_SLOT(CMPIObjectPathFT, clone, 16)
CMPI_LAYOUT_SLOT(CMPIObjectPathFT, setNameSpace, 24)
CMPI_LAYOUT_SLOT(CMPIObjectPathFT, getNameSpace, 32)
CMPI_LAYOUT_SLOT(CMPIObjectPathFT, setHostname, 40)
CMPI_LAYOUT_SLOT(CMPIObjectPathFT, getHostname, 48)
CMPI_LAYOUT_SLOT(CMPIObjectPathFT, setClassName, 56)
CMPI_LAYOUT_SLOT(CMPIObjectPathFT, getClassName, 64)
CMPI_LAYOUT_SLOT(CMPIObjectPathFT, addKey, 72)
CMPI_LAYOUT_SLOT(CMPIObjectPathFT, getKey, 80)
CMPI_LAYOUT_SLOT(CMPIObjectPathFT, getKeyAt, 88)
CMPI_LAYOUT_SLOT(CMPIObjectPathFT, getKeyCount, 96)
CMPI_LAYOUT_SLOT(CMPIObjectPathFT, setNameSpaceFromObjectPath, 104)
CMPI_LAYOUT_SLOT(CMPIObjectPathFT, setHostAndNameSpaceFromObjectPath, 112)
CMPI_LAYOUT_SLOT(CMPIObjectPathFT, getClassQualifier, 120)
CMPI_LAYOUT_SLOT(CMPIObjectPathFT, getPropertyQualifier, 128)
CMPI_LAYOUT_SLOT(CMPIObjectPathFT, getMethodQualifier, 136)
CMPI_LAYOUT_SLOT(CMPIObjectPathFT, getParameterQualifier, 144)
CMPI_LAYOUT_SLOT(CMPIObjectPathFT, toString, 152)
CMPI_LAYOUT_SIZE(CMPIObjectPathFT, 160)

/* ---- CMPIArgsFT ------------------------------------------------------ */
CMPI_LAYOUT_SLOT(CMPIArgsFT, ftVersion, 0)
CMPI_LAYOUT_SLOT(CMPIArgsFT, release, 8)
CMPI_LAYOUT_SLOT(CMPIArgsFT, clone, 16)
CMPI_LAYOUT_SLOT(CMPIArgsFT, addArg, 24)
CMPI_LAYOUT_SLOT(CMPIArgsFT, getArg, 32)
CMPI_LAYOUT_SLOT(CMPIArgsFT, getArgAt, 40)
CMPI_LAYOUT_SLOT(CMPIArgsFT, getArgCount, 48)
CMPI_LAYOUT_SIZE(CMPIArgsFT, 56)

/* ---- CMPIStringFT ---------------------------------------------------- */
CMPI_LAYOUT_SLOT(CMPIStringFT, ftVersion, 0)
CMPI_LAYOUT_SLOT(CMPIStringFT, release, 8)
CMPI_LAYOUT_SLOT(CMPIStringFT, clone, 16)
CMPI_LAYOUT_SLOT(CMPIStringFT, getCharPtr, 24)
CMPI_LAYOUT_SIZE(CMPIStringFT, 32)

/* ---- CMPIArrayFT ----------------------------------------------------- */
CMPI_LAYOUT_SLOT(CMPIArrayFT, ftVersion, 0)
CMPI_LAYOUT_SLOT(CMPIArrayFT, release, 8)
CMPI_LAYOUT_SLOT(CMPIArrayFT, clone, 16)
CMPI_LAYOUT_SLOT(CMPIArrayFT, getSize, 24)
CMPI_LAYOUT_SLOT(CMPIArrayFT, getSimpleType, 32)
CMPI_LAYOUT_SLOT(CMPIArrayFT, getElementAt, 40)
CMPI_LAYOUT_SLOT(CMPIArrayFT, setElementAt, 48)
CMPI_LAYOUT_SIZE(CMPIArrayFT, 56)

/* ---- CMPIEnumerationFT ----------------------------------------------- */
CMPI_LAYOUT_SLOT(CMPIEnumerationFT, ftVersion, 0)
CMPI_LAYOUT_SLOT(CMPIEnumerationFT, release, 8)
CMPI_LAYOUT_SLOT(CMPIEnumerationFT, clone, 16)
CMPI_LAYOUT_SLOT(CMPIEnumerationFT, getNext, 24)
CMPI_LAYOUT_SLOT(CMPIEnumerationFT, hasNext, 32)
CMPI_LAYOUT_SLOT(CMPIEnumerationFT, toArray, 40)
CMPI_LAYOUT_SIZE(CMPIEnumerationFT, 48)

/* ---- CMPIDateTimeFT -------------------------------------------------- */
CMPI_LAYOUT_SLOT(CMPIDateTimeFT, ftVersion, 0)
CMPI_LAYOUT_SLOT(CMPIDateTimeFT, release, 8)
CMPI_LAYOUT_SLOT(CMPIDateTimeFT, clone, 16)
CMPI_LAYOUT_SLOT(CMPIDateTimeFT, getBinaryFormat, 24)
CMPI_LAYOUT_SLOT(CMPIDateTimeFT, getStringFormat, 32)
CMPI_LAYOUT_SLOT(CMPIDateTimeFT, isInterval, 40)
CMPI_LAYOUT_SIZE(CMPIDateTimeFT, 48)

/* ---- query objects --------------------------------------------------- */
CMPI_LAYOUT_SLOT(CMPISelectExpFT, ftVersion, 0)
CMPI_LAYOUT_SLOT(CMPISelectExpFT, release, 8)
CMPI_LAYOUT_SLOT(CMPISelectExpFT, clone, 16)
CMPI_LAYOUT_SLOT(CMPISelectExpFT, evaluate, 24)
CMPI_LAYOUT_SLOT(CMPISelectExpFT, getString, 32)
CMPI_LAYOUT_SLOT(CMPISelectExpFT, getDOC, 40)
CMPI_LAYOUT_SLOT(CMPISelectExpFT, getCOD, 48)
CMPI_LAYOUT_SLOT(CMPISelectExpFT, evaluateUsingAccessor, 56)
CMPI_LAYOUT_SIZE(CMPISelectExpFT, 64)

CMPI_LAYOUT_SLOT(CMPISelectCondFT, ftVersion, 0)
CMPI_LAYOUT_SLOT(CMPISelectCondFT, release, 8)
CMPI_LAYOUT_SLOT(CMPISelectCondFT, clone, 16)
CMPI_LAYOUT_SLOT(CMPISelectCondFT, getCountAndType, 24)
CMPI_LAYOUT_SLOT(CMPISelectCondFT, getSubCondAt, 32)
CMPI_LAYOUT_SIZE(CMPISelectCondFT, 40)

CMPI_LAYOUT_SLOT(CMPISubCondFT, ftVersion, 0)
CMPI_LAYOUT_SLOT(CMPISubCondFT, release, 8)
CMPI_LAYOUT_SLOT(CMPISubCondFT, clone, 16)
CMPI_LAYOUT_SLOT(CMPISubCondFT, getCount, 24)
CMPI_LAYOUT_SLOT(CMPISubCondFT, getPredicateAt, 32)
CMPI_LAYOUT_SLOT(CMPISubCondFT, getPredicate, 40)
CMPI_LAYOUT_SIZE(CMPISubCondFT, 48)

CMPI_LAYOUT_SLOT(CMPIPredicateFT, ftVersion, 0)
CMPI_LAYOUT_SLOT(CMPIPredicateFT, release, 8)
CMPI_LAYOUT_SLOT(CMPIPredicateFT, clone, 16)
CMPI_LAYOUT_SLOT(CMPIPredicateFT, getData, 24)
CMPI_LAYOUT_SLOT(CMPIPredicateFT, evaluateUsingAccessor, 32)
CMPI_LAYOUT_SIZE(CMPIPredicateFT, 40)

/* ---- MI objects: { hdl, ft } ----------------------------------------- */
CMPI_LAYOUT_SLOT(CMPIInstanceMI, hdl, 0)
CMPI_LAYOUT_SLOT(CMPIInstanceMI, ft, 8)
CMPI_LAYOUT_SIZE(CMPIInstanceMI, 16)
CMPI_LAYOUT_SLOT(CMPIAssociationMI, hdl, 0)
CMPI_LAYOUT_SLOT(CMPIAssociationMI, ft, 8)
CMPI_LAYOUT_SIZE(CMPIAssociationMI, 16)
CMPI_LAYOUT_SLOT(CMPIMethodMI, hdl, 0)
CMPI_LAYOUT_SLOT(CMPIMethodMI, ft, 8)
CMPI_LAYOUT_SIZE(CMPIMethodMI, 16)
CMPI_LAYOUT_SLOT(CMPIPropertyMI, hdl, 0)
CMPI_LAYOUT_SLOT(CMPIPropertyMI, ft, 8)
CMPI_LAYOUT_SIZE(CMPIPropertyMI, 16)
CMPI_LAYOUT_SLOT(CMPIIndicationMI, hdl, 0)
CMPI_LAYOUT_SLOT(CMPIIndicationMI, ft, 8)
CMPI_LAYOUT_SIZE(CMPIIndicationMI, 16)

/* ---- CMPIInstanceMIFT ------------------------------------------------ */
CMPI_LAYOUT_SLOT(CMPIInstanceMIFT, ftVersion, 0)
CMPI_LAYOUT_SLOT(CMPIInstanceMIFT, miVersion, 4)
CMPI_LAYOUT_SLOT(CMPIInstanceMIFT, miName, 8)
CMPI_LAYOUT_SLOT(CMPIInstanceMIFT, cleanup, 16)
CMPI_LAYOUT_SLOT(CMPIInstanceMIFT, enumerateInstanceNames, 24)
CMPI_LAYOUT_SLOT(CMPIInstanceMIFT, enumerateInstances, 32)
CMPI_LAYOUT_SLOT(CMPIInstanceMIFT, getInstance, 40)
CMPI_LAYOUT_SLOT(CMPIInstanceMIFT, createInstance, 48)
CMPI_LAYOUT_SLOT(CMPIInstanceMIFT, modifyInstance, 56)
CMPI_LAYOUT_SLOT(CMPIInstanceMIFT, deleteInstance, 64)
CMPI_LAYOUT_SLOT(CMPIInstanceMIFT, execQuery, 72)
CMPI_LAYOUT_SIZE(CMPIInstanceMIFT, 80)

/* ---- CMPIAssociationMIFT --------------------------------------------- */
CMPI_LAYOUT_SLOT(CMPIAssociationMIFT, ftVersion, 0)
CMPI_LAYOUT_SLOT(CMPIAssociationMIFT, miVersion, 4)
CMPI_LAYOUT_SLOT(CMPIAssociationMIFT, miName, 8)
CMPI_LAYOUT_SLOT(CMPIAssociationMIFT, cleanup, 16)
CMPI_LAYOUT_SLOT(CMPIAssociationMIFT, associators, 24)
CMPI_LAYOUT_SLOT(CMPIAssociationMIFT, associatorNames, 32)
CMPI_LAYOUT_SLOT(CMPIAssociationMIFT, references, 40)
CMPI_LAYOUT_SLOT(CMPIAssociationMIFT, referenceNames, 48)
CMPI_LAYOUT_SIZE(CMPIAssociationMIFT, 56)

/* ---- CMPIMethodMIFT -------------------------------------------------- */
CMPI_LAYOUT_SLOT(CMPIMethodMIFT, ftVersion, 0)
CMPI_LAYOUT_SLOT(CMPIMethodMIFT, miVersion, 4)
CMPI_LAYOUT_SLOT(CMPIMethodMIFT, miName, 8)
CMPI_LAYOUT_SLOT(CMPIMethodMIFT, cleanup, 16)
CMPI_LAYOUT_SLOT(CMPIMethodMIFT, invokeMethod, 24)
CMPI_LAYOUT_SIZE(CMPIMethodMIFT, 32)

/* ---- CMPIPropertyMIFT ------------------------------------------------ */
CMPI_LAYOUT_SLOT(CMPIPropertyMIFT, ftVersion, 0)
CMPI_LAYOUT_SLOT(CMPIPropertyMIFT, miVersion, 4)
CMPI_LAYOUT_SLOT(CMPIPropertyMIFT, miName, 8)
CMPI_LAYOUT_SLOT(CMPIPropertyMIFT, cleanup, 16)
CMPI_LAYOUT_SLOT(CMPIPropertyMIFT, setProperty, 24)
CMPI_LAYOUT_SLOT(CMPIPropertyMIFT, getProperty, 32)
#if defined(CMPI_LAYOUT_IN_TREE) && defined(CMPI_VER_200)
CMPI_LAYOUT_SLOT(CMPIPropertyMIFT, setPropertyWithOrigin, 40)
CMPI_LAYOUT_SIZE(CMPIPropertyMIFT, 48)
#elif defined(CMPI_LAYOUT_IN_TREE)
CMPI_LAYOUT_SIZE(CMPIPropertyMIFT, 40)
#endif

/* ---- CMPIIndicationMIFT ---------------------------------------------- */
CMPI_LAYOUT_SLOT(CMPIIndicationMIFT, ftVersion, 0)
CMPI_LAYOUT_SLOT(CMPIIndicationMIFT, miVersion, 4)
CMPI_LAYOUT_SLOT(CMPIIndicationMIFT, miName, 8)
CMPI_LAYOUT_SLOT(CMPIIndicationMIFT, cleanup, 16)
CMPI_LAYOUT_SLOT(CMPIIndicationMIFT, authorizeFilter, 24)
CMPI_LAYOUT_SLOT(CMPIIndicationMIFT, mustPoll, 32)
CMPI_LAYOUT_SLOT(CMPIIndicationMIFT, activateFilter, 40)
CMPI_LAYOUT_SLOT(CMPIIndicationMIFT, deActivateFilter, 48)
CMPI_LAYOUT_SLOT(CMPIIndicationMIFT, enableIndications, 56)
CMPI_LAYOUT_SLOT(CMPIIndicationMIFT, disableIndications, 64)
CMPI_LAYOUT_SIZE(CMPIIndicationMIFT, 72)
