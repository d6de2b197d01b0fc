/*
 * The CMPI headers configured for CMPI 1.0 (CMPI_VERSION=100), built as
 * C99: the 2.0 additions must disappear from the tables without moving any
 * of the 1.0 slots.  cmpi_layout_table.h switches to the 1.0 sizes when
 * CMPI_VER_200 is not defined.
 */
#define CMPI_VERSION 100

#include <stddef.h>

#include <cmpidt.h>
#include <cmpift.h>
#include <cmpimacs.h>

#include "layout_probe.h"

#if defined(CMPI_VER_200) || !defined(CMPI_VER_100) || CMPICurrentVersion != 100
#error "CMPI_VERSION=100 must select the CMPI 1.0 interface"
#endif

#define CMPI_LAYOUT_SLOT(type, member, offset) \
    typedef char layout_slot_##type##_##member[(offsetof(type, member) == (offset)) ? 1 : -1];
#define CMPI_LAYOUT_SIZE(type, size) \
    typedef char layout_size_##type[(sizeof(type) == (size)) ? 1 : -1];
#include "cmpi_layout_table.h"

int layout_v100_current_version(void)
{
    return CMPICurrentVersion;
}
