// SPDX-License-Identifier: MIT
//
// Objective-C's headers before the library's.
#import <Foundation/Foundation.h>

#include <KtQtBase/KtQtBase.h>
#include <KtQtBase/Porting.h>

bool objectiveCFirst()
{
    NSAutoreleasePool* const pool = [[NSAutoreleasePool alloc] init];
    NSString* const text = [NSString stringWithUTF8String:"/nowhere/report.txt"];
    const std::wstring wide = QString::fromUtf8([text UTF8String]).toStdWString();
    [pool drain];
    CStdStr<wchar_t> base;
    CRnUiPathname name;
    const BOOL parsed = name.Parse(wide.c_str(), FALSE) == 0;
    name.GetBasename(base);
    return parsed == TRUE && base == L"report.txt";
}
