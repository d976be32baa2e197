// SPDX-License-Identifier: MIT
#include "Records.h"

#include <cstdint>
#include <cstring>

namespace ktqtbase::audit {

namespace {

void addNumber(std::string& bytes, std::size_t value)
{
    const auto number = static_cast<std::uint32_t>(value);
    bytes.append(reinterpret_cast<const char*>(&number), sizeof number);
}

bool takeText(std::string_view& bytes, std::size_t size, std::string_view& text)
{
    if (bytes.size() < size)
        return false;
    text = bytes.substr(0, size);
    bytes.remove_prefix(size);
    return true;
}

bool takeNumber(std::string_view& bytes, std::uint32_t& number)
{
    std::string_view text;
    if (!takeText(bytes, sizeof number, text))
        return false;
    std::memcpy(&number, text.data(), sizeof number);
    return true;
}

bool takeRecord(std::string_view& bytes, Record& record)
{
    std::uint32_t count = 0;
    if (!takeNumber(bytes, count))
        return false;
    for (std::uint32_t i = 0; i < count; ++i) {
        std::uint32_t size = 0;
        std::string_view text;
        if (!takeNumber(bytes, size) || !takeText(bytes, size, text))
            return false;
        record.emplace_back(text);
    }
    return count > 0;
}

} // namespace

void addRecord(std::string& bytes, const Record& record)
{
    addNumber(bytes, record.size());
    for (const std::string& text : record) {
        addNumber(bytes, text.size());
        bytes += text;
    }
}

std::vector<Record> readRecords(std::string_view bytes)
{
    std::vector<Record> records;
    for (Record record; takeRecord(bytes, record); record.clear())
        records.push_back(record);
    return records;
}

} // namespace ktqtbase::audit
