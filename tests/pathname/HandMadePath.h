// SPDX-License-Identifier: MIT
//
// Path names whose fields are set by hand, as a host may store them, and what a test reads of them.
#ifndef KTQTBASE_TESTS_PATHNAME_HANDMADEPATH_H
#define KTQTBASE_TESTS_PATHNAME_HANDMADEPATH_H

#include <KtQtBase/PathName.h>

#include <gtest/gtest.h>

#include <optional>
#include <ostream>
#include <string>
#include <tuple>

constexpr path_category kUnknownCategory = static_cast<path_category>(7);
constexpr path_type kTypeOfHost = static_cast<path_type>(5);
constexpr path_type kUnknownType = static_cast<path_type>(6);

// A name that no parse made; nothing is looked up for it.
class HandMadePath : public CRbUiPathname
{
public:
    HandMadePath(path_category category, const std::wstring& work, path_type type = PT_FILE)
    {
        m_category = category;
        m_type = type;
        m_pWork = new CStdStr<wchar_t>(work);
    }

    void setPrefix(const std::wstring& prefix) { m_pRelPath = new CStdStr<wchar_t>(prefix); }
};

// A volume whose own answer differs from the name that its base class keeps.
class RenamedVolume : public CRbUiNTFSVolumeDescriptor
{
public:
    RenamedVolume(const wchar_t* kept, const wchar_t* answered)
        : CRbUiNTFSVolumeDescriptor(CStdStr<wchar_t>(kept)), m_answered(answered)
    {}

    const CStdStr<wchar_t>* GetLocalName() const override { return &m_answered; }

private:
    CStdStr<wchar_t> m_answered;
};

// A name whose virtual functions count their calls, as those of a host's own class may.
template<class Base>
class CountingPath : public Base
{
public:
    using Base::AssignCopy;
    using Base::Parse;

    int Parse(const wchar_t* name, bool flag) override
    {
        parsed.push_back(name);
        return Base::Parse(name, flag);
    }

    void AssignCopy(const CRbUiPathname& other) override
    {
        ++copies;
        Base::AssignCopy(other);
    }

    std::vector<std::wstring> parsed;
    int copies = 0;
};

inline std::wstring workOf(const CRbUiPathname& name)
{
    return name.m_pWork ? std::wstring(*name.m_pWork) : L"(none)";
}

inline std::wstring prefixOf(const CRbUiPathname& name)
{
    return name.m_pRelPath ? std::wstring(*name.m_pRelPath) : L"(none)";
}

// All that a name holds.
inline auto fieldsOf(const CRbUiPathname& name)
{
    return std::make_tuple(workOf(name), prefixOf(name), static_cast<int>(name.m_type),
                           static_cast<int>(name.m_category), name.m_pVolume, name.m_separator,
                           name.m_bQualified);
}

inline void expectUnparsed(const CRbUiPathname& name)
{
    EXPECT_EQ(name.m_type, PT_NONE);
    EXPECT_EQ(name.m_pVolume, nullptr);
    EXPECT_EQ(workOf(name), L"(none)");
    EXPECT_EQ(prefixOf(name), L"(none)");
}

#endif
