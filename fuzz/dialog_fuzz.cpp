// SPDX-License-Identifier: MIT
//
// What the file dialog reads from its block and from a selection, without a window: programs of
// blocks, of selections and of walks over them, beside a plain reading of each.
#include "support/Expect.h"
#include "support/Input.h"

#include <KtQtBase/FileDialog.h>

#include <algorithm>
#include <cstring>
#include <vector>

using namespace ktqtbase::fuzz;

namespace {

constexpr int kLongestProgram = 12;
constexpr unsigned int kMostFiles = 5;
constexpr int kPoison = 0x5A;

using Wide = std::wstring;

// ---- A plain reading ---------------------------------------------------------------------------

QString read(const wchar_t* text)
{
    return text ? QString::fromUcs4(reinterpret_cast<const char32_t*>(text)) : QString();
}

Wide wide(const QString& text)
{
    Wide result;
    for (const uint ch : text.toUcs4()) {
        if (ch == 0)
            break;
        result += static_cast<wchar_t>(ch);
    }
    return result;
}

QString slashed(const QString& path)
{
    QString result;
    for (const QChar ch : path)
        result += ch == '\\' ? QChar('/') : ch;
    return result;
}

// The entries between pairs of semicolons, taken from the left.
std::vector<QString> entriesOf(const QString& filter)
{
    std::vector<QString> entries(1);
    for (int at = 0; at < filter.size(); ++at) {
        if (filter[at] == ';' && at + 1 < filter.size() && filter[at + 1] == ';') {
            entries.emplace_back();
            ++at;
        } else {
            entries.back() += filter[at];
        }
    }
    return entries;
}

// What follows the last one of a character, or the whole text if there is none.
QString behindLast(QChar mark, const QString& text)
{
    int from = text.size();
    while (from > 0 && text[from - 1] != mark)
        --from;
    return text.mid(from);
}

QString extensionOf(const QString& name)
{
    return name.contains('.') ? behindLast('.', name) : QString();
}

unsigned int numberOf(const QString& entry, const std::vector<QString>& entries)
{
    for (unsigned int i = 0; i < entries.size(); ++i) {
        if (entries[i] == entry)
            return i + 1;
    }
    return 0;
}

// ---- What the dialog is given ------------------------------------------------------------------

// A text of the exact size, so that the sanitizer sees each character too many; or null. Behind its
// first NUL there may be more, as in a list of Windows.
class Text
{
public:
    explicit Text(Input& input) : m_isNull(input.oneIn(16))
    {
        const Wide text = input.text();
        m_content.assign(text.begin(), text.end());
        m_content.insert(m_content.end(), 2, L'\0');
        m_former = m_content;
    }

    wchar_t* get() { return m_isNull ? nullptr : m_content.data(); }
    void expectUntouched() const { expect("a text of the block stays", m_content == m_former); }

private:
    bool m_isNull;
    std::vector<wchar_t> m_content;
    std::vector<wchar_t> m_former;
};

// The block's texts. All else in it holds a pattern.
struct Block
{
    explicit Block(Input& input)
        : title(input), folder(input), filter(input), file(input), index(drawIndex(input))
    {}

    void fill(OPENFILENAMEW& block)
    {
        std::memset(&block, kPoison, sizeof block);
        block.lpstrTitle = title.get();
        block.lpstrInitialDir = folder.get();
        block.lpstrFilter = filter.get();
        block.lpstrFile = file.get();
        block.nFilterIndex = index;
    }

    void expectUntouched() const
    {
        for (const Text* text : {&title, &folder, &filter, &file})
            text->expectUntouched();
    }

    Text title;
    Text folder;
    Text filter;
    Text file;
    unsigned int index;

private:
    static unsigned int drawIndex(Input& input)
    {
        const unsigned int drawn = input.byte();
        return drawn < 0xF0 ? drawn % 8 : input.number();
    }
};

// Any units of UTF-16, also halves of a pair and NULs.
QString drawQtText(Input& input)
{
    return QString::fromUcs4(reinterpret_cast<const char32_t*>(input.text().c_str()));
}

QStringList drawFiles(Input& input)
{
    QStringList files;
    for (unsigned int left = input.below(kMostFiles); left > 0; --left) {
        const Wide text = input.text();
        QString file;
        for (const wchar_t ch : text)
            file += QChar(static_cast<ushort>(ch));
        files += file;
    }
    return files;
}

// ---- Programs ----------------------------------------------------------------------------------

class Program
{
public:
    explicit Program(Input& input)
        : m_input(input), m_extension(input), m_name(input), m_filter(input),
          m_opens(input.oneIn(2)),
          m_dialog(m_opens, m_extension.get(), m_name.get(), input.number(), m_filter.get())
    {
        expect("default extension", m_dialog.m_attri.m_strDefaultExt == read(m_extension.get()));
        expect("file name", m_dialog.m_attri.m_strFileName == read(m_name.get()));
        expect("filter", m_dialog.m_strFilter == read(m_filter.get()));
        expectSame("accept mode", m_dialog.m_attri.m_nAcceptMode, m_opens ? 0 : 1);
        expectSame("file mode", m_dialog.m_attri.m_nFileMode, m_opens ? 3 : 0);
    }

    void run()
    {
        for (int step = 0; step < kLongestProgram && !m_input.atEnd(); ++step) {
            const unsigned int drawn = m_input.below(3);
            if (drawn == 0)
                runBlock();
            else if (drawn == 1)
                runSelection();
            else
                walk();
            expectAnswers();
        }
    }

private:
    void runBlock()
    {
        Block block(m_input);
        OPENFILENAMEW& ofn = m_dialog.GetOFN();
        block.fill(ofn);
        const OPENFILENAMEW former = ofn;
        expectSame("DoModal", m_dialog.DoModal(), IDCANCEL);
        expect("the block stays", std::memcmp(&ofn, &former, sizeof ofn) == 0);
        block.expectUntouched();
        expectRead(block);
    }

    void expectRead(Block& block)
    {
        const KtQFileDialgAttri& attri = m_dialog.m_attri;
        m_entries = entriesOf(read(block.filter.get()));
        expect("caption", m_dialog.m_strCaption == read(block.title.get()));
        expect("directory", m_dialog.m_strDirectory == slashed(read(block.folder.get())));
        expect("name filter", attri.m_strNameFilter == read(block.filter.get()));
        expect("selected file", attri.m_strSelectFile == read(block.file.get()));
        expect("filter list",
               std::equal(m_entries.begin(), m_entries.end(), attri.m_listNameFilter.begin(),
                          attri.m_listNameFilter.end()));
        const bool isInList = block.index >= 1 && block.index <= m_entries.size();
        expect("initial filter",
               attri.m_strInitNameFilter == (isInList ? m_entries[block.index - 1] : QString()));
    }

    // What an accepted run leaves, and what is made of it.
    void runSelection()
    {
        const QStringList files = drawFiles(m_input);
        const unsigned int entry = m_input.below(8);
        m_dialog.m_listSelectedFiles = files;
        m_dialog.m_nSelectedCount = static_cast<std::uintptr_t>(files.size());
        m_dialog.m_strSelectedNameFilter =
            entry < m_entries.size() ? m_entries[entry] : drawQtText(m_input);
        OPENFILENAMEW expected = m_dialog.m_ofn;
        m_dialog.PraseFileInfo();
        if (!files.isEmpty()) {
            m_path = wide(files[0]);
            m_file = wide(behindLast('/', files[0]));
            m_suffix = wide(extensionOf(behindLast('/', files[0])));
            expected.nFilterIndex = numberOf(m_dialog.m_strSelectedNameFilter, m_entries);
        }
        expectSame("filter index", m_dialog.m_ofn.nFilterIndex, expected.nFilterIndex);
        expect("the rest of the block stays",
               std::memcmp(&m_dialog.m_ofn, &expected, sizeof expected) == 0);
    }

    // From the start, or from a position of another selection.
    void walk()
    {
        const QStringList& files = m_dialog.m_listSelectedFiles;
        auto left = static_cast<std::uintptr_t>(files.size());
        if (m_input.oneIn(4))
            left = m_input.oneIn(2) ? m_input.below(8) : ~std::uintptr_t(0) - m_input.byte();
        else
            expect("start", m_dialog.GetStartPosition() == reinterpret_cast<POSITION>(left));
        auto position = reinterpret_cast<POSITION>(left);
        for (unsigned int i = 0; i < 2 * kMostFiles; ++i) {
            const auto count = static_cast<std::uintptr_t>(files.size());
            const bool names = left >= 1 && left <= count;
            expectSame<Wide>("next path", m_dialog.GetNextPathName(position),
                             names ? wide(files[static_cast<int>(count - left)]) : Wide());
            left -= left > 0 && count > 0 ? 1 : 0;
            expect("position", position == reinterpret_cast<POSITION>(left));
        }
    }

    void expectAnswers() const
    {
        expectSame<Wide>("path", m_dialog.GetPathName(), m_path);
        expectSame<Wide>("file name", m_dialog.GetFileName(), m_file);
        expectSame<Wide>("extension", m_dialog.GetFileExt(), m_suffix);
    }

    Input& m_input;
    Text m_extension;
    Text m_name;
    Text m_filter;
    bool m_opens;
    KtQtFileDialog m_dialog;
    std::vector<QString> m_entries;
    Wide m_path;
    Wide m_file;
    Wide m_suffix;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Input input(data, size);
    Program(input).run();
    return 0;
}
