/* SPDX-License-Identifier: MIT */
int Sleep(void)
{
    return 0;
}
int CreateThread(void);
int useThread(void)
{
    return CreateThread();
}
