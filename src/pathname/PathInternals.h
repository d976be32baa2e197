// SPDX-License-Identifier: MIT
//
// What the sources of the path family share.
#ifndef KTQTBASE_PATHNAME_PATHINTERNALS_H
#define KTQTBASE_PATHNAME_PATHINTERNALS_H

#include <KtQtBase/PathName.h>

#include <functional>

namespace ktqtbase {

// Whether a type is one that a parse gives, PT_NOT_FOUND to PT_DIRECTORY.
inline bool isParsed(path_type type)
{
    return static_cast<unsigned int>(type) - 1 < 4;
}

// Whether an object holds a name that can be edited.
inline bool isParsed(const CRbUiPathname& name)
{
    return isParsed(name.m_type) && name.m_pWork;
}

// Whether a category is one of the four; a host may have stored another.
inline bool isKnown(path_category category)
{
    return static_cast<unsigned int>(category) <= PC_RELATIVE;
}

// Where the last component of a work string begins.
inline std::size_t lastComponent(const CStdStr<wchar_t>& work, wchar_t separator)
{
    std::size_t position = work.rfind(separator);
    if (position == work.npos)
        position = work.rfind(kColon);
    return position + 1;
}

// The length of the local name of a name's volume, 0 without a volume.
inline std::size_t volumeNameLength(const CRbUiPathname& name)
{
    const CStdStr<wchar_t>* localName = name.m_pVolume ? name.m_pVolume->GetLocalName() : nullptr;
    return localName ? localName->size() : 0;
}

// Whether a text lies in a string's own characters, which an edit of the string moves or
// overwrites.
inline bool liesIn(const CStdStr<wchar_t>& s, const wchar_t* text)
{
    const std::less_equal<const wchar_t*> notAfter;
    return notAfter(s.data(), text) && notAfter(text, s.data() + s.size());
}

// Makes an owned string a copy of another one, or null. Overwriting keeps the storage, which costs
// more to free and to get again than to fill.
inline void copyString(CStdStr<wchar_t>*& own, const CStdStr<wchar_t>* other)
{
    if (!other)
        ReleaseCStrPtr(&own);
    else if (own)
        own->assign(*other);
    else
        own = new CStdStr<wchar_t>(*other);
}

// Copies what a name holds besides its strings.
inline void copyState(CRbUiPathname& name, const CRbUiPathname& other)
{
    name.m_type = other.m_type;
    name.m_pVolume = other.m_pVolume;
    name.m_category = other.m_category;
    name.m_separator = other.m_separator;
    name.m_bQualified = other.m_bQualified;
}

// Empties a path name that was begun and not finished, so that no host meets half of a name.
class EmptyUnlessFinished
{
public:
    explicit EmptyUnlessFinished(CRbUiPathname& name) : m_name(&name) {}
    EmptyUnlessFinished(const EmptyUnlessFinished&) = delete;
    EmptyUnlessFinished& operator=(const EmptyUnlessFinished&) = delete;
    ~EmptyUnlessFinished()
    {
        if (m_name)
            m_name->Empty();
    }

    void finished() { m_name = nullptr; }

private:
    CRbUiPathname* m_name;
};

} // namespace ktqtbase

#endif
