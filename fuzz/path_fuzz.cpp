// SPDX-License-Identifier: MIT
//
// Parses and programs of edits on a path object, with base, separator, volumes, locales and what the
// disk has drawn from the input, beside a plain reading of the same.
#include "support/DrawnDisk.h"
#include "support/DrawnVolumes.h"
#include "support/Input.h"
#include "support/Locales.h"
#include "support/PathPair.h"

#include <algorithm>
#include <cstdlib>
#include <stdexcept>

using namespace ktqtbase::fuzz;

namespace {

// Texts double where a name is appended to itself.
constexpr std::size_t kLongestWork = 1100;
constexpr int kLongestProgram = 16;

// What the library makes of a call that may raise std::out_of_range. Result: false where it does.
template<class Call>
bool finishes(const Call& call)
{
    try {
        call();
    } catch (const std::out_of_range&) {
        return false;
    }
    return true;
}

class Program
{
public:
    explicit Program(Input& input) : m_input(input), m_volumes(input)
    {
        const unsigned int locales = input.byte();
        useCtype(locales & 1);
        useGlobalLocale((locales & 6) == 2);
        drawnDisk().renameResult = locales & 8 ? -1 : 0;
        drawnDisk().isFull = locales & 16;
        drawSeparator(m_base);
        drawSeparator(m_path);
        drawPrefix();
        parse(m_base, nullptr);
    }

    void run()
    {
        for (int step = 0; step < kLongestProgram && !m_input.atEnd(); ++step) {
            runStep();
            expectSameFields(m_path);
            if (m_path.plain.name.work.size() > kLongestWork)
                break;
        }
        expectSameAnswers(m_path);
    }

private:
    // Any but NUL, which ends a text.
    void drawSeparator(PathPair& pair)
    {
        static const std::wstring separators = L"////\\:.X\"";
        const unsigned int drawn = m_input.byte();
        if (drawn < 0xF0)
            pair.setSeparator(separators[drawn % separators.size()]);
        else
            pair.setSeparator(static_cast<wchar_t>(std::max(m_input.number(), 1u)));
    }

    // The folder of relative names, which all objects of the class have in common.
    void drawPrefix()
    {
        drawnDisk().currentDirectory = m_input.name().substr(0, 1023);
        m_prefix.empty();
        bool expected = false;
        if (!drawnDisk().currentDirectory.empty()) {
            expected = m_prefix.parse(drawnDisk().currentDirectory, nullptr) == 0;
            m_prefix.appendSlash();
        }
        expectSame("prefix set", ktuiSetCurrentDirPrefix(), expected);
    }

    void parse(PathPair& pair, const PathPair* base)
    {
        const OptionalText text = m_input.optionalName();
        const int result = pair.real.ParseRelative(pointerTo(text), base ? &base->real : nullptr,
                                                   m_input.oneIn(2));
        expectSame("parse", result, pair.plain.parse(text, base ? &base->plain : nullptr));
    }

    // A text of the object's own, from some place on; the real object is given the place itself.
    const wchar_t* ownText()
    {
        const CStdStr<wchar_t>* own = m_path.real.m_pWork;
        if (m_path.real.m_pRelPath && m_input.oneIn(3))
            own = m_path.real.m_pRelPath;
        return own ? own->c_str() + m_input.byte() % (own->size() + 1) : nullptr;
    }

    // An edit that takes a text, which may be null or one of the object's own.
    void edit(const char* what, int (CRbUiPathname::*real)(const wchar_t*),
              int (PlainPath::*plain)(const OptionalText&))
    {
        OptionalText text = m_input.optionalName();
        const wchar_t* given = pointerTo(text);
        if (text && *text == L"\x01") {
            given = ownText();
            text = given ? OptionalText(given) : std::nullopt;
        }
        const int result = (m_path.real.*real)(given);
        expectSame(what, result, (m_path.plain.*plain)(text));
    }

    void cut(const char* what, int (CRbUiPathname::*real)(), int (*plain)(slow::Name&))
    {
        const int result = (m_path.real.*real)();
        expectSame(what, result, m_path.plain.cut(plain));
    }

    void parseOwn()
    {
        const wchar_t* given = ownText();
        if (!given)
            return;
        const std::wstring text(given);
        const int result = m_path.real.ParseRelative(given, &m_base.real, false);
        expectSame("parse of an own text", result, m_path.plain.parse(text, &m_base.plain));
    }

    void parseAsApplication()
    {
        const OptionalText text = m_input.optionalName();
        const int result = m_path.real.Parse(pointerTo(text), false);
        expectSame("parse by the prefix", result, m_path.plain.parse(text, &m_prefix));
    }

    void parseInDirectory()
    {
        const OptionalText text = m_input.optionalName();
        const int result = m_path.real.CRbUiPathname::Parse(pointerTo(text), false);
        expectSame("parse in the directory", result, m_path.plain.parseInCurrentDirectory(text));
    }

    void takeParent(bool intoItself)
    {
        PathPair other;
        PathPair& parent = intoItself ? m_path : other;
        const bool finished = finishes([&] { m_path.real.GetParent(parent.real); });
        expectSame("parent", finished, m_path.plain.parent(parent.plain));
        expectSameFields(parent);
    }

    void takeUniqueName(bool intoItself)
    {
        PathPair other;
        PathPair& unique = intoItself ? m_path : other;
        const bool force = m_input.oneIn(2);
        const unsigned int seed = m_input.byte();
        std::srand(seed);
        const bool result = m_path.real.GetUniqueName(unique.real, force);
        const int next = std::rand();
        std::srand(seed);
        expectSame("unique name", result, m_path.plain.uniqueName(unique.plain, force));
        expectSame("number behind those that were taken", next, std::rand());
        expectSameFields(unique);
    }

    void rename()
    {
        const OptionalText text = m_input.optionalName();
        const std::wstring from = m_path.plain.name.work.c_str();
        const bool result = m_path.real.Rename(pointerTo(text));
        if (result)
            expectSame("renamed", drawnDisk().renamed, from + L" => " + text.value_or(L"(null)"));
        expectSame("rename", result, m_path.plain.rename(text, drawnDisk().renameResult));
    }

    void askStatus()
    {
        if (!slow::parentOf(m_path.plain.name).raised || !m_path.plain.isParsed())
            expectSame("status", m_path.real.Status(), m_path.plain.status(m_prefix));
    }

    // What only a host sets.
    void setByHost()
    {
        const unsigned int kind = m_input.below(7);
        if (m_path.plain.name.type == slow::None)
            return;
        if (kind < 6)
            m_path.plain.name.category = static_cast<int>(kind);
        else
            m_path.plain.name.type = 5;
        m_path.real.m_category = static_cast<path_category>(m_path.plain.name.category);
        m_path.real.m_type = static_cast<path_type>(m_path.plain.name.type);
    }

    void exchange()
    {
        const CRnUiPathname copy(m_path.real);
        m_path.real.AssignCopy(m_base.real);
        m_base.real.AssignCopy(static_cast<const CRbUiPathname&>(copy));
        std::swap(m_path.plain, m_base.plain);
        expectSameFields(m_base);
    }

    void trimSlash() { cut("TrimSlash", &CRbUiPathname::TrimSlash, slow::trimSlash); }
    void trim() { cut("Trim", &CRbUiPathname::Trim, slow::trim); }
    void trimComponent()
    {
        cut("TrimComponent", &CRbUiPathname::TrimComponent, slow::trimComponent);
    }
    void append() { edit("Append", &CRbUiPathname::Append, &PlainPath::append); }
    void appendComponent()
    {
        edit("AppendComponent", &CRbUiPathname::AppendComponent, &PlainPath::appendComponent);
    }
    void replaceExtension()
    {
        edit("ReplaceExtensionAlways", &CRbUiPathname::ReplaceExtensionAlways,
             &PlainPath::replaceExtension);
    }
    void appendSlash()
    {
        const int result = m_path.real.AppendSlash();
        expectSame("AppendSlash", result, m_path.plain.appendSlash());
    }
    void removeSpaces()
    {
        m_path.real.RemoveSpaces();
        m_path.plain.removeSpaces();
    }
    void baseToUpper()
    {
        m_path.real.BaseToUpper();
        m_path.plain.changeCase(true);
    }
    void baseToLower()
    {
        m_path.real.BaseToLower();
        m_path.plain.changeCase(false);
    }
    void becomeParent() { takeParent(true); }
    void askParent() { takeParent(false); }
    void becomeUnique() { takeUniqueName(true); }
    void askUnique() { takeUniqueName(false); }
    void askExists()
    {
        const bool result = m_path.real.Exists();
        expectSame("Exists", result, m_path.plain.exists());
    }
    void parseOverBase() { parse(m_path, &m_base); }

    void runStep();

    Input& m_input;
    DrawnVolumes m_volumes;
    PathPair m_base;
    PathPair m_path;
    PlainPath m_prefix;
};

void Program::runStep()
{
    static void (Program::*const steps[])() = {
        &Program::trimSlash,        &Program::trim,
        &Program::trimComponent,    &Program::append,
        &Program::appendComponent,  &Program::appendSlash,
        &Program::removeSpaces,     &Program::baseToUpper,
        &Program::baseToLower,      &Program::becomeParent,
        &Program::askParent,        &Program::becomeUnique,
        &Program::askUnique,        &Program::askExists,
        &Program::rename,           &Program::askStatus,
        &Program::setByHost,        &Program::exchange,
        &Program::parseOwn,         &Program::parseAsApplication,
        &Program::parseInDirectory, &Program::replaceExtension,
        &Program::parseOverBase,    &Program::parseOverBase};
    (this->*steps[m_input.below(24)])();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    Input input(bytes, size);
    Program(input).run();
    g_CurrentDirPrefix.Empty();
    return 0;
}
