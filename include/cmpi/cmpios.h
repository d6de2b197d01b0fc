/*
 * cmpios.h - operating-system bindings used by the CMPI function tables.
 *
 * These are the types that the broker's extended services
 * (CMPIBrokerExtFT: threads, mutexes, condition variables, thread keys)
 * traffic in, plus the linkage macro used on the exported MI factories.
 *
 * On Linux both SBLIM sfcb and OpenPegasus pass every thread, mutex and
 * condition handle as an opaque pointer and the thread key as a
 * pthread_key_t (an unsigned int); the definitions below match that.
 */
#ifndef _CMPIOS_H_
#define _CMPIOS_H_

#include "cmpipl.h"

#include <stddef.h> /* size_t, NULL */
#include <stdlib.h> /* historically pulled in through here; providers rely on it */

/* Handles handed out by CMPIBrokerExtFT. */
#define CMPI_THREAD_TYPE  void *
#define CMPI_MUTEX_TYPE   void *
#define CMPI_COND_TYPE    void *

#if defined(CMPI_PLATFORM_WIN32_IX86_MSVC)
#  define CMPI_THREAD_RETURN   unsigned
#  define CMPI_THREAD_CDECL    __stdcall
#  define CMPI_THREAD_KEY_TYPE unsigned int
#  ifndef HAVE_STRUCT_TIMESPEC
#    define HAVE_STRUCT_TIMESPEC
struct timespec {
    long tv_sec;
    long tv_nsec;
};
#  endif
#else
/* Thread start routines follow the POSIX shape: void *start(void *). */
#  define CMPI_THREAD_RETURN   void *
#  define CMPI_THREAD_CDECL
/* Same width and signedness as pthread_key_t on glibc. */
#  define CMPI_THREAD_KEY_TYPE unsigned int
#endif

/*
 * CMPI_EXPORT marks a symbol the broker must find with dlsym().  The
 * provider is built with -fvisibility=hidden, so the factories have to be
 * given default visibility explicitly.
 */
#if defined(CMPI_PLATFORM_WIN32_IX86_MSVC)
#  define CMPI_EXPORT __declspec(dllexport)
#  define CMPI_IMPORT __declspec(dllimport)
#elif defined(__GNUC__) && (__GNUC__ >= 4)
#  define CMPI_EXPORT __attribute__((visibility("default")))
#  define CMPI_IMPORT __attribute__((visibility("default")))
#else
#  define CMPI_EXPORT
#  define CMPI_IMPORT
#endif

/* Put in front of an MI factory definition: unmangled and exported. */
#ifdef __cplusplus
#  define CMPI_EXTERN_C extern "C" CMPI_EXPORT
#else
#  define CMPI_EXTERN_C CMPI_EXPORT
#endif

#endif /* _CMPIOS_H_ */
