/* SPDX-License-Identifier: MIT */
/*
 * One small function for each function that is counted. It adds one to the count and jumps to the
 * library's function, with every argument where the caller put it and the caller's return address:
 * results, exceptions and stack traces are those of a direct call.
 *
 * It changes registers only that every function may change and that hold no argument. Vectors of
 * more than 16 bytes would not survive a first call; no function of the library takes one.
 */
#include "Offsets.h"
#include "Syntax.S"

#define TRACED(index, symbol, name, status, result) trampoline index, symbol

    .text

#if defined(__x86_64__)

.macro trampoline index, symbol
    begin_trampoline \index, \symbol
    .cfi_startproc
    movq NAME(ktqtTraceCounters)(%rip), %r11
    cmpq $0, (\index * COUNTER_SIZE + COUNTER_CALLER)(%r11)
    je 1f
    lock
    incq (\index * COUNTER_SIZE)(%r11)
    jmpq *(NAME(ktqtTraceFunctions) + \index * 8)(%rip)
1:  movl $\index, %r11d
    jmp ask
    .cfi_endproc
    end_trampoline \index, \symbol
.endm

    begin_function ask
    .cfi_startproc
    pushq %rax
    pushq %rdi
    pushq %rsi
    pushq %rdx
    pushq %rcx
    pushq %r8
    pushq %r9
    pushq %r10
    subq $136, %rsp
    .cfi_adjust_cfa_offset 200
    movups %xmm0, (%rsp)
    movups %xmm1, 16(%rsp)
    movups %xmm2, 32(%rsp)
    movups %xmm3, 48(%rsp)
    movups %xmm4, 64(%rsp)
    movups %xmm5, 80(%rsp)
    movups %xmm6, 96(%rsp)
    movups %xmm7, 112(%rsp)
    movl %r11d, %edi
    movq 200(%rsp), %rsi
    call NAME(ktqtTraceFirstCall)
    movq %rax, %r11
    movups (%rsp), %xmm0
    movups 16(%rsp), %xmm1
    movups 32(%rsp), %xmm2
    movups 48(%rsp), %xmm3
    movups 64(%rsp), %xmm4
    movups 80(%rsp), %xmm5
    movups 96(%rsp), %xmm6
    movups 112(%rsp), %xmm7
    addq $136, %rsp
    popq %r10
    popq %r9
    popq %r8
    popq %rcx
    popq %rdx
    popq %rsi
    popq %rdi
    popq %rax
    .cfi_adjust_cfa_offset -200
    jmpq *%r11
    .cfi_endproc
    end_function ask

#elif defined(__aarch64__)

.macro trampoline index, symbol
    begin_trampoline \index, \symbol
    .cfi_startproc
    address x16, NAME(ktqtTraceCounters)
    ldar x16, [x16]
    mov x17, #(\index * COUNTER_SIZE)
    add x16, x16, x17
    ldr x17, [x16, #COUNTER_CALLER]
    cbz x17, 2f
1:  ldxr x17, [x16]
    add x17, x17, #1
    stxr w15, x17, [x16]
    cbnz w15, 1b
    address x16, NAME(ktqtTraceFunctions)
    ldr x16, [x16, #(\index * 8)]
    br x16
2:  mov w16, #\index
    b ask
    .cfi_endproc
    end_trampoline \index, \symbol
.endm

    begin_function ask
    .cfi_startproc
    stp x29, x30, [sp, #-224]!
    .cfi_def_cfa_offset 224
    .cfi_offset x29, -224
    .cfi_offset x30, -216
    stp x0, x1, [sp, #16]
    stp x2, x3, [sp, #32]
    stp x4, x5, [sp, #48]
    stp x6, x7, [sp, #64]
    str x8, [sp, #80]
    stp q0, q1, [sp, #96]
    stp q2, q3, [sp, #128]
    stp q4, q5, [sp, #160]
    stp q6, q7, [sp, #192]
    mov w0, w16
    mov x1, x30
    bl NAME(ktqtTraceFirstCall)
    mov x16, x0
    ldp q0, q1, [sp, #96]
    ldp q2, q3, [sp, #128]
    ldp q4, q5, [sp, #160]
    ldp q6, q7, [sp, #192]
    ldp x0, x1, [sp, #16]
    ldp x2, x3, [sp, #32]
    ldp x4, x5, [sp, #48]
    ldp x6, x7, [sp, #64]
    ldr x8, [sp, #80]
    ldp x29, x30, [sp], #224
    .cfi_def_cfa_offset 0
    .cfi_restore x29
    .cfi_restore x30
    br x16
    .cfi_endproc
    end_function ask

#else
#error "The trampolines are written for x86-64 and AArch64."
#endif

#include "TracedFunctions.inc"
