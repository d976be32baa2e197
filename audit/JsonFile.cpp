// SPDX-License-Identifier: MIT
#include "JsonFile.h"

#include <stdexcept>

namespace json = llvm::json;

namespace ktqtbase::audit {

namespace {

constexpr int kDeepest = 500;

// Follows the brackets outside texts.
class Depth
{
public:
    // Result: the depth behind a character.
    int operator()(char ch)
    {
        if (m_isInText)
            follow(ch);
        else if (ch == '"')
            m_isInText = true;
        else
            m_depth += step(ch);
        return m_depth;
    }

private:
    static int step(char ch)
    {
        return ch == '[' || ch == '{' ? 1 : ch == ']' || ch == '}' ? -1 : 0;
    }

    void follow(char ch)
    {
        m_isInText = m_isEscaped || ch != '"';
        m_isEscaped = ch == '\\' && !m_isEscaped;
    }

    int m_depth = 0;
    bool m_isInText = false;
    bool m_isEscaped = false;
};

} // namespace

json::Value parseJson(const std::string& text)
{
    Depth depth;
    for (const char ch : text) {
        if (depth(ch) > kDeepest)
            throw std::runtime_error("nested more than 500 levels deep");
    }
    llvm::Expected<json::Value> value = json::parse(text);
    if (!value)
        throw std::runtime_error(llvm::toString(value.takeError()));
    return std::move(*value);
}

} // namespace ktqtbase::audit
