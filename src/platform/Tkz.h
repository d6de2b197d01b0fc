/*
 * Tkz portability and logging layer.
 *
 * Plain C functions that give the rest of the provider operating-system
 * services and the provider's log file. Every function is exported from the
 * provider's shared object under its unmangled name. Unless a function returns
 * a handle or a value, it returns 0 for success.
 *
 * Handles are opaque: the layer allocates and frees the objects behind them.
 */
#ifndef VEX_PLATFORM_TKZ_H
#define VEX_PLATFORM_TKZ_H

#include <stddef.h>
#include <time.h>

#define TKZ_API __attribute__((visibility("default")))

#ifdef __cplusplus
extern "C" {
#endif

typedef void *TKZ_MUTEX;  /* recursive mutex */
typedef void *TKZ_EVENT;  /* counting semaphore */
typedef void *TKZ_RWLOCK; /* read-write lock */
typedef void *TKZ_THREAD; /* holder of a thread */
typedef void *TKZ_LIBRARY;
typedef void *(*TKZ_THREAD_FUNC)(void *);

/* Log levels of TkzLogMsg. Any other value is written as information. */
enum {
    TKZ_LOG_FATAL = 1,
    TKZ_LOG_ERROR = 2,
    TKZ_LOG_WARN = 3,
    TKZ_LOG_DEBUG = 4,
    TKZ_LOG_INFO = 5
};

/* Broken-down local time with the fraction of the second. */
typedef struct TkzSystemTime {
    unsigned int microsecond; /* 0..999999 */
    unsigned int second;
    unsigned int minute;
    unsigned int hour;
    unsigned int day;       /* day of the month, 1..31 */
    unsigned int dayOfWeek; /* 0 = Sunday */
    unsigned int month;     /* 1..12 */
    unsigned int year;      /* four digits */
} TkzSystemTime;

/* ---- logging and tracing ------------------------------------------------ */

/* Once per process: the log file becomes <log dir>/<component>.txt.
   1: mutex creation failed, 2: out of memory, 3: null component. */
TKZ_API int TkzLogInit(const char *component);
TKZ_API void TkzLogUninit(void);
/* One log line; written only while the log file exists and is small enough. */
TKZ_API int TkzLogMsg(int level, const char *format, ...) __attribute__((format(printf, 2, 3)));
/* One trace line with the given text (never used as a format). */
TKZ_API int TkzTrace(const char *text);

/* ---- time ---------------------------------------------------------------- */

/* Functions that fill a buffer write at most size bytes, always terminated; they
   return non-zero for a null or empty buffer and when the result does not fit. */
TKZ_API int TkzGetLocalTime(char *buffer, size_t size);    /* "m/d/yyyy hh:mm:ss", month and day unpadded */
TKZ_API int TkzGetFormatedTime(char *buffer, size_t size); /* "%m/%d/%Y %H:%M:%S" */
TKZ_API int TkzGetTimeInTM(struct tm *out);
TKZ_API int TkzGetSystemTime(TkzSystemTime *out);
TKZ_API int TkzGetTimeZone(char *buffer, size_t size); /* "%+04d" minutes east of UTC */

/* ---- files, processes, host ---------------------------------------------- */

/* 1 when the file exists (its size stored through size, which may be null), else 0. */
TKZ_API int TkzFileExists(const char *path, unsigned long long *size);
TKZ_API unsigned long TkzGetCurrentThreadId(void);
TKZ_API int TkzGetHostName(char *buffer, size_t size);
TKZ_API int TkzGetProcessId(void);
TKZ_API int TkzGetHostIPAddress(char *buffer, size_t size);
TKZ_API int TkzGetOSInfo(char *buffer, size_t size);
TKZ_API int TkzGetProductVersion(char *buffer, size_t size); /* first line, without its end */
TKZ_API int TkzGetenv(const char *name, char *buffer, size_t size);
TKZ_API void TkzSleep(unsigned int seconds);
TKZ_API void TkzMilliSleep(unsigned int milliseconds);

/* ---- synchronisation ----------------------------------------------------- */

TKZ_API TKZ_MUTEX TkzMutexInit(void);
TKZ_API int TkzMutexLock(TKZ_MUTEX mutex);
TKZ_API int TkzMutexUnlock(TKZ_MUTEX mutex);
TKZ_API int TkzMutexDelete(TKZ_MUTEX *mutex);

TKZ_API TKZ_EVENT TkzCreateEvent(void);
TKZ_API int TkzSetEvent(TKZ_EVENT event);
TKZ_API int TkzWaitOnEvent(TKZ_EVENT event);
TKZ_API int TkzDestroyEvent(TKZ_EVENT *event);

TKZ_API TKZ_RWLOCK TkzReadWriteLockInit(void);
TKZ_API int TkzReadWriteLock_ReadLock(TKZ_RWLOCK lock);
TKZ_API int TkzReadWriteLock_ReadUnLock(TKZ_RWLOCK lock);
TKZ_API int TkzReadWriteLock_WriteLock(TKZ_RWLOCK lock);
TKZ_API int TkzReadWriteLock_WriteUnLock(TKZ_RWLOCK lock);
TKZ_API int TkzReadWriteLockDestroy(TKZ_RWLOCK *lock);

/* ---- threads --------------------------------------------------------------- */

/* Starts func(arg) on a thread with a 10 MiB stack; null on failure. */
TKZ_API TKZ_THREAD TkzThreadCreate(TKZ_THREAD_FUNC func, void *arg);
/* A thread handle ends one of two ways, never both: the thread itself calls
   TkzThreadExit with its own handle (the thread is detached and the handle
   freed), or another thread calls TkzWaitForThreadTerminate (joins, then frees). */
TKZ_API void TkzThreadExit(TKZ_THREAD thread);
TKZ_API int TkzWaitForThreadTerminate(TKZ_THREAD thread);
TKZ_API int TkzCancelThreadSyncIO(TKZ_THREAD thread);
TKZ_API int TkzRegisterCBorSigHndl(void (*handler)(int));
TKZ_API void TkzThreadSetPriority(TKZ_THREAD thread, int priority);

/* ---- dynamic libraries ----------------------------------------------------- */

TKZ_API TKZ_LIBRARY TkzLoadLibrary(const char *path);
TKZ_API int TkzUnloadLibrary(TKZ_LIBRARY library);
TKZ_API void *TkzGetFuncAddress(TKZ_LIBRARY library, const char *name);

/* ---- installation paths and configuration ---------------------------------- */

/* The installation directory from the "tidalDS" environment variable, completed
   to "/log", "/conf", "/bin", "/loginfo" or "/gui/conf"; 3 when the variable is
   not set or empty. */
TKZ_API int TkzGetLogPath(char *buffer, size_t size);
TKZ_API int TkzGetConfPath(char *buffer, size_t size);
TKZ_API int TkzGetBinPath(char *buffer, size_t size);
TKZ_API int TkzGetLogInfoPath(char *buffer, size_t size);
TKZ_API int TkzGetGUIConfPath(char *buffer, size_t size);
/* The refresh interval from the provider's configuration file; 1 when it cannot be read. */
TKZ_API int TkzGetRefreshInterval(int *interval);

#ifdef __cplusplus
}
#endif

#endif /* VEX_PLATFORM_TKZ_H */
