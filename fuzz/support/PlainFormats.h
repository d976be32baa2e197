// SPDX-License-Identifier: MIT
//
// Plain second readings of JSON and of RFC 4180's lines, in exactly the layout of nameinfo.
#ifndef KTQTBASE_FUZZ_SUPPORT_PLAINFORMATS_H
#define KTQTBASE_FUZZ_SUPPORT_PLAINFORMATS_H

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace ktqtbase::fuzz::plain {

using JsonObject = std::map<std::string, std::optional<std::wstring>>;
using CsvLine = std::vector<std::string>;

// An array of objects whose values are strings or null. Result: nothing if it is none.
std::optional<std::vector<JsonObject>> readJson(const std::string& text);

// Lines that end in CR LF. Result: nothing if a line or a cell has no end.
std::optional<std::vector<CsvLine>> readCsv(const std::string& text);

} // namespace ktqtbase::fuzz::plain

#endif
