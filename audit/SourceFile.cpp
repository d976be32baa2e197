// SPDX-License-Identifier: MIT
#include "SourceFile.h"
#include "SourceText.h"

#include <clang/Basic/IdentifierTable.h>
#include <clang/Basic/LangOptions.h>
#include <clang/Lex/Lexer.h>
#include <llvm/Config/llvm-config.h>

#include <algorithm>
#include <cstring>
#include <deque>

namespace tok = clang::tok;

namespace ktqtbase::audit {

namespace {

clang::LangOptions cppOptions()
{
    clang::LangOptions options;
    options.LineComment = true;
    options.CPlusPlus = true;
    options.CPlusPlus11 = true;
    options.CPlusPlus14 = true;
    options.CPlusPlus17 = true;
#if LLVM_VERSION_MAJOR >= 20
    options.RawStringLiterals = true;
#endif
    return options;
}

// An identifier may be cut by a backslash at the end of a line.
std::string joined(llvm::StringRef text)
{
    std::string name;
    for (const char* place = text.begin(); place < text.end();) {
        const char* const next = behindContinuedLine(place);
        if (next == place)
            name += *place++;
        else
            place = next;
    }
    return name;
}

// Lines that are continued may stand before a name, and belong to it for the lexer.
const char* behindContinuedLines(const char* place)
{
    for (const char* next = behindContinuedLine(place); next != place;
         next = behindContinuedLine(place))
        place = next;
    return place;
}

bool startsCharacter(char ch)
{
    return (static_cast<unsigned char>(ch) & 0xC0) != 0x80;
}

class SourceReader
{
public:
    SourceReader(std::string_view text, const clang::LangOptions& options,
                 const SourceVisitor& visitor)
        : m_lexer(clang::SourceLocation(), options, text.data(), text.data(),
                  text.data() + text.size()),
          m_visitor(visitor)
    {
        next();
    }

    void read();

private:
    void next();
    bool isName() const { return m_token.is(tok::raw_identifier); }
    bool isDirective() const { return m_token.is(tok::hash) && m_token.isAtStartOfLine(); }
    bool isInLine() const { return m_token.isNot(tok::eof) && !m_token.isAtStartOfLine(); }
    llvm::StringRef takeDirective();
    void readDirective();
    void skipLine();
    bool takesZero();
    void skipDeadCode();
    void readToken();
    void readName();
    void readOther();
    llvm::StringRef scopeBefore() const;

    clang::Lexer m_lexer;
    const SourceVisitor& m_visitor;
    clang::Token m_token;
    const char* m_place = nullptr; // of m_token, if it is a name
    llvm::StringRef m_text;        // the same, in one piece
    std::deque<std::string> m_joined;
    llvm::StringRef m_nameBefore; // the name that stands right before m_token
    llvm::StringRef m_scope;      // the name that stands before the "::" before m_token
    tok::TokenKind m_before = tok::unknown;
};

void SourceReader::next()
{
    m_lexer.LexFromRawLexer(m_token);
    if (!isName())
        return;
    m_text = m_token.getRawIdentifier();
    m_place = behindContinuedLines(m_text.data());
    if (m_token.needsCleaning())
        m_text = m_joined.emplace_back(joined(m_text));
}

void SourceReader::read()
{
    while (m_token.isNot(tok::eof)) {
        if (isDirective())
            readDirective();
        else
            readToken();
    }
}

// Result: the directive's word; empty if there is none.
llvm::StringRef SourceReader::takeDirective()
{
    next();
    if (!isName() || m_token.isAtStartOfLine())
        return llvm::StringRef();
    const llvm::StringRef word = m_text;
    next();
    return word;
}

// Names of headers are no names, nor are the words of a message.
void SourceReader::readDirective()
{
    const llvm::StringRef word = takeDirective();
    if (word == "include" || word == "import" || word == "error" || word == "warning")
        skipLine();
    else if (word == "if" && takesZero())
        skipDeadCode();
    m_before = tok::unknown;
    m_scope = m_nameBefore = llvm::StringRef();
}

void SourceReader::skipLine()
{
    while (isInLine())
        next();
}

// Whether the line goes on with a zero and nothing else.
bool SourceReader::takesZero()
{
    if (!isInLine() || m_token.isNot(tok::numeric_constant) || m_token.getLength() != 1 ||
        *m_token.getLiteralData() != '0')
        return false;
    next();
    return !isInLine();
}

void SourceReader::skipDeadCode()
{
    int depth = 1;
    while (depth > 0 && m_token.isNot(tok::eof)) {
        if (!isDirective()) {
            next();
            continue;
        }
        const llvm::StringRef word = takeDirective();
        if (word == "if" || word == "ifdef" || word == "ifndef")
            ++depth;
        else if (word == "endif" || (depth == 1 && (word == "else" || word == "elif")))
            --depth;
    }
    skipLine();
}

void SourceReader::readToken()
{
    if (isName())
        readName();
    else
        readOther();
}

void SourceReader::readName()
{
    SourceName name;
    name.scope = std::string_view(m_scope.data(), m_scope.size());
    name.name = std::string_view(m_text.data(), m_text.size());
    name.isMember = m_before == tok::period || m_before == tok::arrow;
    name.place = m_place;
    m_nameBefore = m_text;
    m_scope = llvm::StringRef();
    m_before = tok::raw_identifier;
    next();
    name.isCalled = m_token.is(tok::l_paren);
    m_visitor(name);
}

// What stands before "::" is a name, the end of template arguments, or nothing of a scope, such as
// the word "return" or, with a blank behind it, the sign for "greater than".
llvm::StringRef SourceReader::scopeBefore() const
{
    static const clang::IdentifierTable words(cppOptions());
    const auto word = words.find(m_nameBefore);
    const bool isKeyword = word != words.end() && word->second->getTokenID() != tok::identifier;
    if (isKeyword)
        return llvm::StringRef();
    const bool isRightBehind = !m_token.hasLeadingSpace() && !m_token.isAtStartOfLine();
    return m_before == tok::greater && isRightBehind ? llvm::StringRef(">") : m_nameBefore;
}

void SourceReader::readOther()
{
    m_scope = llvm::StringRef();
    if (m_token.is(tok::coloncolon))
        m_scope = scopeBefore();
    m_nameBefore = llvm::StringRef();
    m_before = m_token.getKind();
    next();
}

} // namespace

void readSource(std::string_view text, const SourceVisitor& visitor)
{
    static const clang::LangOptions options = cppOptions();
    SourceReader(text, options, visitor).read();
}

PlaceCounter::PlaceCounter(std::string_view text) : m_place(text.data()) {}

SourcePlace PlaceCounter::operator()(const char* place)
{
    while (const void* const end =
               std::memchr(m_place, '\n', static_cast<std::size_t>(place - m_place))) {
        m_place = static_cast<const char*>(end) + 1;
        m_column = 1;
        ++m_line;
    }
    m_column += static_cast<std::uint32_t>(std::count_if(m_place, place, startsCharacter));
    m_place = place;
    return {m_line, m_column};
}

} // namespace ktqtbase::audit
