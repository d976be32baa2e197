/* SPDX-License-Identifier: MIT */
__declspec(dllimport) int _lopen(const char* name, int mode);

int start(void)
{
    return _lopen("a", 0);
}
