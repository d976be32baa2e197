// SPDX-License-Identifier: MIT
#include "pathname/NoRttiPath.h"

#if defined(__GXX_RTTI)
#error "This source stands for a host's that is compiled with -fno-rtti."
#endif

namespace {

class NoRttiPath : public CRbUiPathname
{
public:
    void AssignCopy(const CRbUiPathname& other) override
    {
        ++m_copies;
        CRbUiPathname::AssignCopy(other);
    }

    NoRttiResult result() const { return {m_pWork ? *m_pWork : L"(none)", m_type, m_copies}; }

private:
    int m_copies = 0;
};

} // namespace

NoRttiResult parentInNoRttiPath(const CRbUiPathname& name)
{
    NoRttiPath parent;
    name.GetParent(parent);
    return parent.result();
}

NoRttiResult parentOfNoRttiPathInItself(const CRbUiPathname& name)
{
    NoRttiPath path;
    path.CRbUiPathname::AssignCopy(name);
    path.GetParent(path);
    return path.result();
}

NoRttiResult uniqueNameInNoRttiPath(const CRbUiPathname& name)
{
    NoRttiPath unique;
    name.GetUniqueName(unique, false);
    return unique.result();
}
