// SPDX-License-Identifier: MIT
//
// The library's headers before Objective-C's.
#include <KtQtBase/KtQtBase.h>

#import <Foundation/Foundation.h>

std::size_t libraryFirst()
{
    const BOOL answer = [NSString class] == nil ? NO : YES;
    return answer == YES ? sizeof(BOOL) : 0;
}
