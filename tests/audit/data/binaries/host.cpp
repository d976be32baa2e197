// SPDX-License-Identifier: MIT
//
// A program that was moved from Windows, for ELF and Mach-O.
namespace KtKernel32 {
int CopyFile(const wchar_t* from, const wchar_t* to, int keep);
}
class CRbUiPathname
{
public:
    virtual ~CRbUiPathname();
    int Parse(const wchar_t* name, bool quiet);
};
int DeleteFile(const wchar_t* name);
extern "C" int EnterCriticalSection(void* section);
extern "C" int puts(const char* text);

int use(CRbUiPathname& name)
{
    CRbUiPathname own = name;
    puts("CreateThread");
    return own.Parse(L"", true) + KtKernel32::CopyFile(L"a", L"b", 0) + DeleteFile(L"a") +
           EnterCriticalSection(&own);
}
