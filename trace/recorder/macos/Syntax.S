/* SPDX-License-Identifier: MIT */
/*
 * How macOS' assemblers write what the trampolines are made of. The loader reads pairs of addresses
 * and binds programs to the first one of a pair in place of the second one; the recorder itself and
 * the library's own calls stay bound to the second one. Not yet run on a Mac.
 */
#define NAME(symbol) _##symbol

.macro begin_trampoline index, symbol
    .p2align 4
trampoline\index:
.endm

.macro end_trampoline index, symbol
    .section __DATA,__interpose,interposing
    .p2align 3
    .quad trampoline\index
    .quad _\symbol
    .section __DATA,__const
    .quad _\symbol
    .text
.endm

.macro begin_function symbol
    .p2align 4
\symbol:
.endm

.macro end_function symbol
.endm

#if defined(__aarch64__)
.macro address register, symbol
    adrp \register, \symbol@PAGE
    add \register, \register, \symbol@PAGEOFF
.endm
#endif

/* The second ones again, in the order of the list. */
.section __DATA,__const
.p2align 3
.globl _ktqtTraceOriginals
.private_extern _ktqtTraceOriginals
_ktqtTraceOriginals:
