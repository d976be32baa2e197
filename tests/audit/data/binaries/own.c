/* SPDX-License-Identifier: MIT */
/* What an archive has itself, although Windows has a function of that name. */
int DeleteFile(void)
{
    return 0;
}

int Sleep(void);

int useBoth(void)
{
    return DeleteFile() + Sleep();
}
