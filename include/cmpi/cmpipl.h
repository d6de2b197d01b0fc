/*
 * cmpipl.h - CMPI platform selection.
 *
 * The CMPI headers describe one CMPI_PLATFORM_<os>_<cpu>_<compiler> symbol
 * per supported platform; the other headers consult it for the few spots
 * where the binary interface differs between platforms (64-bit integer
 * spelling, thread key type, symbol export).
 *
 * A build may define the symbol itself (brokers traditionally pass
 * -DCMPI_PLATFORM_LINUX_GENERIC_GNU).  When nothing is defined we detect
 * the one platform this provider ships for: Linux with a GNU-compatible
 * compiler (GCC or Clang).
 */
#ifndef _CMPIPL_H_
#define _CMPIPL_H_

#if !defined(CMPI_PLATFORM_LINUX_GENERIC_GNU) &&   \
    !defined(CMPI_PLATFORM_HPUX_ACC) &&            \
    !defined(CMPI_PLATFORM_WIN32_IX86_MSVC) &&     \
    !defined(CMPI_PLATFORM_SOLARIS_SPARC_GNU) &&   \
    !defined(CMPI_PLATFORM_SOLARIS_SPARC_CC) &&    \
    !defined(CMPI_PLATFORM_AIX_RS_IBMCXX) &&       \
    !defined(CMPI_PLATFORM_ZOS_ZSERIES_IBM) &&     \
    !defined(CMPI_PLATFORM_TRU64_ALPHA_DECCXX) &&  \
    !defined(CMPI_PLATFORM_OS400_ISERIES_IBM) &&   \
    !defined(CMPI_PLATFORM_PASE_ISERIES_IBMCXX) && \
    !defined(CMPI_PLATFORM_DARWIN_PPC_GNU) &&      \
    !defined(CMPI_PLATFORM_DARWIN_IX86_GNU) &&     \
    !defined(CMPI_PLATFORM_VMS_ALPHA_DECCXX) &&    \
    !defined(CMPI_PLATFORM_VMS_IA64_DECCXX)
#  if defined(__linux__) && defined(__GNUC__)
#    define CMPI_PLATFORM_LINUX_GENERIC_GNU 1
#  else
#    error "cmpipl.h: unknown platform; define one CMPI_PLATFORM_* symbol"
#  endif
#endif

#endif /* _CMPIPL_H_ */
