// SPDX-License-Identifier: MIT
//
// Lists of extensions, and programs of edits by them, on names of every category and type.
#include "support/Input.h"
#include "support/PathPair.h"

using namespace ktqtbase::fuzz;

namespace {

constexpr std::size_t kLongestWork = 1100;
constexpr int kLongestProgram = 16;

class Program
{
public:
    explicit Program(Input& input) : m_input(input)
    {
        slow::Name& name = m_path.plain.name;
        name.type = static_cast<int>(input.below(7));
        name.category = static_cast<int>(input.below(5));
        const unsigned int separator = input.byte();
        m_path.setSeparator(separator <= 0x80 ? L'/' : static_cast<wchar_t>(separator - 0x80));
        if (name.type != slow::None)
            name.work = input.text();
        m_path.real.m_type = static_cast<path_type>(name.type);
        m_path.real.m_category = static_cast<path_category>(name.category);
        if (name.type != slow::None)
            m_path.real.m_pWork = new CStdStr<wchar_t>(name.work);
    }

    void run()
    {
        for (int step = 0; step < kLongestProgram && !m_input.atEnd(); ++step) {
            const unsigned int kind = m_input.below(8);
            const OptionalText text = m_input.optionalName();
            if (kind == 7)
                runOnOwnText();
            else
                runStep(kind, pointerTo(text), text);
            expectSameFields(m_path);
            if (m_path.plain.name.work.size() > kLongestWork)
                break;
        }
        expectSameAnswers(m_path);
    }

private:
    // The texts of a call may lie in the work string that it edits.
    void runOnOwnText()
    {
        const CStdStr<wchar_t>* const own = m_path.real.m_pWork;
        if (!own)
            return;
        const wchar_t* const given = own->c_str() + m_input.byte() % (own->size() + 1);
        runStep(m_input.below(7), given, std::wstring(given));
    }

    void runStep(unsigned int kind, const wchar_t* given, const OptionalText& text)
    {
        CRbUiPathname& real = m_path.real;
        PlainPath& plain = m_path.plain;
        switch (kind) {
        case 0:
            return expectSame("replaced", real.ReplaceExtensionAlways(given),
                              plain.replaceExtension(text));
        case 1:
            return expectSame("replaced unless in", real.ReplaceExtensionIfNoMatch(given),
                              plain.replaceExtensionIfNoMatch(text));
        case 2:
            return expectSame("added", real.AddExtensionAlways(given), plain.addExtension(text));
        case 3:
            return expectSame("added unless in", real.AddExtensionIfNoMatch(given),
                              plain.addExtensionIfNoMatch(text));
        case 4:
            real.RemoveExtensionAlways();
            return plain.removeExtension();
        case 5:
            real.RemoveExtensionIfMatch(given);
            return plain.removeExtensionIfMatch(text);
        default:
            return ask(given, text);
        }
    }

    void ask(const wchar_t* given, const OptionalText& text) const
    {
        expectSame("verified", m_path.real.VerifyExtension(given),
                   m_path.plain.hasExtensionOf(text));
        CStdStr<wchar_t> first(L"before");
        m_path.real.GetFirstExtInList(given, first);
        expectSame<std::wstring>("first item", first, firstItem(text));
    }

    Input& m_input;
    PathPair m_path;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    Input input(bytes, size);
    Program(input).run();
    return 0;
}
