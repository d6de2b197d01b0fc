/*
 * CMPI_LAYOUT_SLOTS(type, first, m1, m2, ...): a run of pointer-sized
 * members (the slots of a function table) one after the other, m1 at offset
 * `first`, each next one 8 bytes further.  Expands to one CMPI_LAYOUT_SLOT
 * per member, so every slot keeps its own check and message.
 * CMPI_LAYOUT_OBJECT(type): an encapsulated object { hdl, ft }.
 */
#ifndef CMPI_LAYOUT_SLOTS_H
#define CMPI_LAYOUT_SLOTS_H

#define CMPI_LS1(t, o, m) CMPI_LAYOUT_SLOT(t, m, o)
#define CMPI_LS2(t, o, m, ...) CMPI_LAYOUT_SLOT(t, m, o) CMPI_LS1(t, (o) + 8, __VA_ARGS__)
#define CMPI_LS3(t, o, m, ...) CMPI_LAYOUT_SLOT(t, m, o) CMPI_LS2(t, (o) + 8, __VA_ARGS__)
#define CMPI_LS4(t, o, m, ...) CMPI_LAYOUT_SLOT(t, m, o) CMPI_LS3(t, (o) + 8, __VA_ARGS__)
#define CMPI_LS5(t, o, m, ...) CMPI_LAYOUT_SLOT(t, m, o) CMPI_LS4(t, (o) + 8, __VA_ARGS__)
#define CMPI_LS6(t, o, m, ...) CMPI_LAYOUT_SLOT(t, m, o) CMPI_LS5(t, (o) + 8, __VA_ARGS__)
#define CMPI_LS7(t, o, m, ...) CMPI_LAYOUT_SLOT(t, m, o) CMPI_LS6(t, (o) + 8, __VA_ARGS__)
#define CMPI_LS8(t, o, m, ...) CMPI_LAYOUT_SLOT(t, m, o) CMPI_LS7(t, (o) + 8, __VA_ARGS__)
#define CMPI_LS9(t, o, m, ...) CMPI_LAYOUT_SLOT(t, m, o) CMPI_LS8(t, (o) + 8, __VA_ARGS__)
#define CMPI_LS10(t, o, m, ...) CMPI_LAYOUT_SLOT(t, m, o) CMPI_LS9(t, (o) + 8, __VA_ARGS__)
#define CMPI_LS11(t, o, m, ...) CMPI_LAYOUT_SLOT(t, m, o) CMPI_LS10(t, (o) + 8, __VA_ARGS__)
#define CMPI_LS12(t, o, m, ...) CMPI_LAYOUT_SLOT(t, m, o) CMPI_LS11(t, (o) + 8, __VA_ARGS__)
#define CMPI_LS13(t, o, m, ...) CMPI_LAYOUT_SLOT(t, m, o) CMPI_LS12(t, (o) + 8, __VA_ARGS__)
#define CMPI_LS14(t, o, m, ...) CMPI_LAYOUT_SLOT(t, m, o) CMPI_LS13(t, (o) + 8, __VA_ARGS__)
#define CMPI_LS15(t, o, m, ...) CMPI_LAYOUT_SLOT(t, m, o) CMPI_LS14(t, (o) + 8, __VA_ARGS__)
#define CMPI_LS16(t, o, m, ...) CMPI_LAYOUT_SLOT(t, m, o) CMPI_LS15(t, (o) + 8, __VA_ARGS__)
#define CMPI_LS17(t, o, m, ...) CMPI_LAYOUT_SLOT(t, m, o) CMPI_LS16(t, (o) + 8, __VA_ARGS__)
#define CMPI_LS18(t, o, m, ...) CMPI_LAYOUT_SLOT(t, m, o) CMPI_LS17(t, (o) + 8, __VA_ARGS__)
#define CMPI_LS19(t, o, m, ...) CMPI_LAYOUT_SLOT(t, m, o) CMPI_LS18(t, (o) + 8, __VA_ARGS__)
#define CMPI_LS20(t, o, m, ...) CMPI_LAYOUT_SLOT(t, m, o) CMPI_LS19(t, (o) + 8, __VA_ARGS__)
#define CMPI_LS21(t, o, m, ...) CMPI_LAYOUT_SLOT(t, m, o) CMPI_LS20(t, (o) + 8, __VA_ARGS__)
#define CMPI_LS22(t, o, m, ...) CMPI_LAYOUT_SLOT(t, m, o) CMPI_LS21(t, (o) + 8, __VA_ARGS__)
#define CMPI_LS23(t, o, m, ...) CMPI_LAYOUT_SLOT(t, m, o) CMPI_LS22(t, (o) + 8, __VA_ARGS__)
#define CMPI_LS24(t, o, m, ...) CMPI_LAYOUT_SLOT(t, m, o) CMPI_LS23(t, (o) + 8, __VA_ARGS__)
#define CMPI_LS25(t, o, m, ...) CMPI_LAYOUT_SLOT(t, m, o) CMPI_LS24(t, (o) + 8, __VA_ARGS__)
#define CMPI_LS26(t, o, m, ...) CMPI_LAYOUT_SLOT(t, m, o) CMPI_LS25(t, (o) + 8, __VA_ARGS__)
#define CMPI_LS27(t, o, m, ...) CMPI_LAYOUT_SLOT(t, m, o) CMPI_LS26(t, (o) + 8, __VA_ARGS__)
#define CMPI_LS28(t, o, m, ...) CMPI_LAYOUT_SLOT(t, m, o) CMPI_LS27(t, (o) + 8, __VA_ARGS__)
#define CMPI_LAYOUT_PICK( \
    _1, _2, _3, _4, _5, _6, _7, _8, _9, _10, _11, _12, _13, _14, _15, _16, _17, _18, _19, \
    _20, _21, _22, _23, _24, _25, _26, _27, _28, n, ...) n
#define CMPI_LAYOUT_SLOTS(t, o, ...) \
    CMPI_LAYOUT_PICK(__VA_ARGS__, CMPI_LS28, CMPI_LS27, CMPI_LS26, CMPI_LS25, CMPI_LS24, \
    CMPI_LS23, CMPI_LS22, CMPI_LS21, CMPI_LS20, CMPI_LS19, CMPI_LS18, CMPI_LS17, CMPI_LS16, \
    CMPI_LS15, CMPI_LS14, CMPI_LS13, CMPI_LS12, CMPI_LS11, CMPI_LS10, CMPI_LS9, CMPI_LS8, \
    CMPI_LS7, CMPI_LS6, CMPI_LS5, CMPI_LS4, CMPI_LS3, CMPI_LS2, CMPI_LS1)(t, o, __VA_ARGS__)
#define CMPI_LAYOUT_OBJECT(t) \
    CMPI_LAYOUT_SLOT(t, hdl, 0) CMPI_LAYOUT_SLOT(t, ft, 8) CMPI_LAYOUT_SIZE(t, 16)

#endif /* CMPI_LAYOUT_SLOTS_H */
