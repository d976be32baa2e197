// SPDX-License-Identifier: MIT
#include "HtmlReport.h"
#include "JsonReport.h"
#include "Page.h"

namespace ktqtbase::audit {

namespace {

constexpr std::string_view kMark = "{\"report\": null}";

// The data stands in a script element, which nothing in it may end.
void writeEscaped(std::string_view json, llvm::raw_ostream& out)
{
    for (const char ch : json) {
        if (ch == '<')
            out << "\\u003c";
        else
            out << ch;
    }
}

} // namespace

void writeHtmlReport(const Report& report, llvm::raw_ostream& out)
{
    const std::string_view page = kPage;
    const std::size_t mark = page.find(kMark);
    std::string json;
    llvm::raw_string_ostream stream(json);
    writeJsonReport(report, stream, 0);
    stream.flush();
    out.write(page.data(), mark);
    writeEscaped(json, out);
    out.write(page.data() + mark + kMark.size(), page.size() - mark - kMark.size());
}

} // namespace ktqtbase::audit
