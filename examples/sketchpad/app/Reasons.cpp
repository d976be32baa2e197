// SPDX-License-Identifier: MIT
#include "Reasons.h"

#include "Narrow.h"

#include <KtQtBase/WindowsFunctions.h>

std::wstring ReasonOf(const std::error_code& error)
{
    return WidenForDisplay(error.message());
}

std::wstring LastErrorReason()
{
    const auto code = static_cast<int>(GetLastError()); // errno, not a Windows number
    return code ? ReasonOf({code, std::generic_category()}) : L"the disk did not take it";
}
