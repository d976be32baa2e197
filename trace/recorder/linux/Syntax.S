/* SPDX-License-Identifier: MIT */
/*
 * How Linux' assemblers write what the trampolines are made of. A trampoline has the name of its
 * function, so that programs are bound to it.
 */
#define NAME(symbol) symbol

.macro begin_trampoline index, symbol
    .globl \symbol
    begin_function \symbol
.endm

.macro end_trampoline index, symbol
    end_function \symbol
.endm

.macro begin_function symbol
    .type \symbol, @function
\symbol:
.endm

.macro end_function symbol
    .size \symbol, . - \symbol
.endm

#if defined(__aarch64__)
.macro address register, symbol
    adrp \register, \symbol
    add \register, \register, :lo12:\symbol
.endm
#endif

.hidden ktqtTraceCounters
.hidden ktqtTraceFunctions
.hidden ktqtTraceFirstCall
.section .note.GNU-stack, "", @progbits
