// SPDX-License-Identifier: MIT
//
// Needs a method that the library's class of that name does not have.
class CRbUiPathname
{
public:
    CRbUiPathname();
    CRbUiPathname& operator=(const CRbUiPathname& other);
    void Open();
};

void use(CRbUiPathname& name)
{
    name = CRbUiPathname();
    name.Open();
}
