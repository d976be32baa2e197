// SPDX-License-Identifier: MIT
//
// The names that must be macros: words that compile to nothing, and those that a host asks for by
// #if and #ifdef.
//
//     LRESULT CALLBACK PanelProc(HWND, UINT, WPARAM, LPARAM);
//     static const TCHAR kCaption[] = _T("Panel");
//
// Each gives way to a macro of the host that is defined before. After it, the same text again is
// allowed everywhere; where a host has another text, it switches the name off.
#ifndef KTQTBASE_PORTING_MACROS_H
#define KTQTBASE_PORTING_MACROS_H

#include <KtQtBase/windows/Scalars.h>

#include <cstddef>

// ---- Truth values -------------------------------------------------------------------------------

#if !defined(TRUE) && !defined(KTQTBASE_PORTING_NO_TRUE)
#define TRUE 1
#endif
#if !defined(FALSE) && !defined(KTQTBASE_PORTING_NO_FALSE)
#define FALSE 0
#endif

// ---- Texts of the program -----------------------------------------------------------------------

// All texts are wide, as in a Windows program that is compiled with UNICODE.
#if !defined(__T) && !defined(KTQTBASE_PORTING_NO___T)
#define __T(x) L##x
#endif
#if !defined(_T) && !defined(KTQTBASE_PORTING_NO__T)
#define _T(x) __T(x)
#endif
#if !defined(_TEXT) && !defined(KTQTBASE_PORTING_NO__TEXT)
#define _TEXT(x) __T(x)
#endif
#if !defined(__TEXT) && !defined(KTQTBASE_PORTING_NO___TEXT)
#define __TEXT(quote) L##quote
#endif
#if !defined(TEXT) && !defined(KTQTBASE_PORTING_NO_TEXT)
#define TEXT(quote) __TEXT(quote)
#endif

// ---- Calling conventions and distances ----------------------------------------------------------

// Nothing: a 64-bit processor has one way to call a function, and one kind of pointer.
#if !defined(WINAPI) && !defined(KTQTBASE_PORTING_NO_WINAPI)
#define WINAPI
#endif
#if !defined(CALLBACK) && !defined(KTQTBASE_PORTING_NO_CALLBACK)
#define CALLBACK
#endif
#if !defined(APIENTRY) && !defined(KTQTBASE_PORTING_NO_APIENTRY)
#define APIENTRY
#endif
#if !defined(APIPRIVATE) && !defined(KTQTBASE_PORTING_NO_APIPRIVATE)
#define APIPRIVATE
#endif
#if !defined(WINAPIV) && !defined(KTQTBASE_PORTING_NO_WINAPIV)
#define WINAPIV
#endif
#if !defined(PASCAL) && !defined(KTQTBASE_PORTING_NO_PASCAL)
#define PASCAL
#endif
#if !defined(FAR) && !defined(KTQTBASE_PORTING_NO_FAR)
#define FAR
#endif
#if !defined(NEAR) && !defined(KTQTBASE_PORTING_NO_NEAR)
#define NEAR
#endif
#if !defined(__cdecl) && !defined(KTQTBASE_PORTING_NO___cdecl)
#define __cdecl
#endif
#if !defined(__stdcall) && !defined(KTQTBASE_PORTING_NO___stdcall)
#define __stdcall
#endif
#if !defined(__fastcall) && !defined(KTQTBASE_PORTING_NO___fastcall)
#define __fastcall
#endif

// ---- Words of the language ----------------------------------------------------------------------

#if !defined(CONST) && !defined(KTQTBASE_PORTING_NO_CONST)
#define CONST const
#endif
#if !defined(__int64) && !defined(KTQTBASE_PORTING_NO___int64)
#define __int64 long long
#endif
#if !defined(EXTERN_C) && !defined(KTQTBASE_PORTING_NO_EXTERN_C)
#define EXTERN_C extern "C"
#endif
#if !defined(STDAPI) && !defined(KTQTBASE_PORTING_NO_STDAPI)
#define STDAPI extern "C" HRESULT
#endif
#if !defined(FORCEINLINE) && !defined(KTQTBASE_PORTING_NO_FORCEINLINE)
#define FORCEINLINE inline
#endif

// ---- Declarations and places --------------------------------------------------------------------

// A kind of handle, as the library's own are: no other kind converts into it.
#if !defined(DECLARE_HANDLE) && !defined(KTQTBASE_PORTING_NO_DECLARE_HANDLE)
// NOLINTNEXTLINE(bugprone-macro-parentheses): what is declared takes none
#define DECLARE_HANDLE(name) using name = struct name##__*
#endif

// Where a field begins in its record. It is an int, as on Windows.
#if !defined(FIELD_OFFSET) && !defined(KTQTBASE_PORTING_NO_FIELD_OFFSET)
#define FIELD_OFFSET(type, field) static_cast<int>(offsetof(type, field))
#endif

// ---- Notes for a reader or a tool ---------------------------------------------------------------

// Nothing: they say how an argument or a result is used, or that a function is called by a message
// map.
#if !defined(IN) && !defined(KTQTBASE_PORTING_NO_IN)
#define IN
#endif
#if !defined(OUT) && !defined(KTQTBASE_PORTING_NO_OUT)
#define OUT
#endif
#if !defined(OPTIONAL) && !defined(KTQTBASE_PORTING_NO_OPTIONAL)
#define OPTIONAL
#endif
#if !defined(_In_) && !defined(KTQTBASE_PORTING_NO__In_)
#define _In_
#endif
#if !defined(_In_opt_) && !defined(KTQTBASE_PORTING_NO__In_opt_)
#define _In_opt_
#endif
#if !defined(_In_z_) && !defined(KTQTBASE_PORTING_NO__In_z_)
#define _In_z_
#endif
#if !defined(_In_opt_z_) && !defined(KTQTBASE_PORTING_NO__In_opt_z_)
#define _In_opt_z_
#endif
#if !defined(_In_reads_) && !defined(KTQTBASE_PORTING_NO__In_reads_)
#define _In_reads_(size)
#endif
#if !defined(_In_reads_opt_) && !defined(KTQTBASE_PORTING_NO__In_reads_opt_)
#define _In_reads_opt_(size)
#endif
#if !defined(_In_reads_bytes_) && !defined(KTQTBASE_PORTING_NO__In_reads_bytes_)
#define _In_reads_bytes_(size)
#endif
#if !defined(_In_range_) && !defined(KTQTBASE_PORTING_NO__In_range_)
#define _In_range_(low, high)
#endif
#if !defined(_Out_) && !defined(KTQTBASE_PORTING_NO__Out_)
#define _Out_
#endif
#if !defined(_Out_opt_) && !defined(KTQTBASE_PORTING_NO__Out_opt_)
#define _Out_opt_
#endif
#if !defined(_Out_writes_) && !defined(KTQTBASE_PORTING_NO__Out_writes_)
#define _Out_writes_(size)
#endif
#if !defined(_Out_writes_opt_) && !defined(KTQTBASE_PORTING_NO__Out_writes_opt_)
#define _Out_writes_opt_(size)
#endif
#if !defined(_Out_writes_z_) && !defined(KTQTBASE_PORTING_NO__Out_writes_z_)
#define _Out_writes_z_(size)
#endif
#if !defined(_Out_writes_to_) && !defined(KTQTBASE_PORTING_NO__Out_writes_to_)
#define _Out_writes_to_(size, count)
#endif
#if !defined(_Out_writes_bytes_) && !defined(KTQTBASE_PORTING_NO__Out_writes_bytes_)
#define _Out_writes_bytes_(size)
#endif
#if !defined(_Outptr_) && !defined(KTQTBASE_PORTING_NO__Outptr_)
#define _Outptr_
#endif
#if !defined(_Outptr_opt_) && !defined(KTQTBASE_PORTING_NO__Outptr_opt_)
#define _Outptr_opt_
#endif
#if !defined(_COM_Outptr_) && !defined(KTQTBASE_PORTING_NO__COM_Outptr_)
#define _COM_Outptr_
#endif
#if !defined(_Inout_) && !defined(KTQTBASE_PORTING_NO__Inout_)
#define _Inout_
#endif
#if !defined(_Inout_opt_) && !defined(KTQTBASE_PORTING_NO__Inout_opt_)
#define _Inout_opt_
#endif
#if !defined(_Inout_updates_) && !defined(KTQTBASE_PORTING_NO__Inout_updates_)
#define _Inout_updates_(size)
#endif
#if !defined(_Inout_updates_bytes_) && !defined(KTQTBASE_PORTING_NO__Inout_updates_bytes_)
#define _Inout_updates_bytes_(size)
#endif
#if !defined(_Frees_ptr_opt_) && !defined(KTQTBASE_PORTING_NO__Frees_ptr_opt_)
#define _Frees_ptr_opt_
#endif
#if !defined(_Reserved_) && !defined(KTQTBASE_PORTING_NO__Reserved_)
#define _Reserved_
#endif
#if !defined(_Printf_format_string_) && !defined(KTQTBASE_PORTING_NO__Printf_format_string_)
#define _Printf_format_string_
#endif
#if !defined(_Ret_maybenull_) && !defined(KTQTBASE_PORTING_NO__Ret_maybenull_)
#define _Ret_maybenull_
#endif
#if !defined(_Ret_notnull_) && !defined(KTQTBASE_PORTING_NO__Ret_notnull_)
#define _Ret_notnull_
#endif
#if !defined(_Success_) && !defined(KTQTBASE_PORTING_NO__Success_)
#define _Success_(condition)
#endif
#if !defined(_Check_return_) && !defined(KTQTBASE_PORTING_NO__Check_return_)
#define _Check_return_
#endif
#if !defined(_Must_inspect_result_) && !defined(KTQTBASE_PORTING_NO__Must_inspect_result_)
#define _Must_inspect_result_
#endif
#if !defined(_Use_decl_annotations_) && !defined(KTQTBASE_PORTING_NO__Use_decl_annotations_)
#define _Use_decl_annotations_
#endif
#if !defined(afx_msg) && !defined(KTQTBASE_PORTING_NO_afx_msg)
#define afx_msg
#endif

#endif
