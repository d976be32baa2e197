// SPDX-License-Identifier: MIT
//
// Finds the names in a C or C++ source, or in a resource script: never in comments, strings, names
// of headers or behind "#if 0".
#ifndef KTQTBASE_AUDIT_SOURCEFILE_H
#define KTQTBASE_AUDIT_SOURCEFILE_H

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

namespace ktqtbase::audit {

// A name in a source. It is valid only while it is told of.
struct SourceName
{
    std::string_view scope; // what stands before "::"
    std::string_view name;
    bool isMember = false; // behind "." or "->"
    bool isCalled = false; // before "("
    const char* place = nullptr;
};

using SourceVisitor = std::function<void(const SourceName&)>;

// Tells of each name. The text ends with a zero behind it.
void readSource(std::string_view text, const SourceVisitor& visitor);

struct SourcePlace
{
    std::uint32_t line;
    std::uint32_t column; // in characters, from 1 on
};

// Tells the line and column of places in a text, which are asked for from its beginning to its end.
class PlaceCounter
{
public:
    explicit PlaceCounter(std::string_view text);
    SourcePlace operator()(const char* place);

private:
    const char* m_place;
    std::uint32_t m_line = 1;
    std::uint32_t m_column = 1;
};

} // namespace ktqtbase::audit

#endif
