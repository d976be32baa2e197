// SPDX-License-Identifier: MIT
//
// Lists of texts as one text, for a pipe. The texts may hold any bytes.
#ifndef KTQTBASE_AUDIT_RECORDS_H
#define KTQTBASE_AUDIT_RECORDS_H

#include <string>
#include <string_view>
#include <vector>

namespace ktqtbase::audit {

using Record = std::vector<std::string>;

void addRecord(std::string& bytes, const Record& record);

// The records up to the first one that is not complete. None is empty.
std::vector<Record> readRecords(std::string_view bytes);

} // namespace ktqtbase::audit

#endif
