// SPDX-License-Identifier: MIT
//
// The page that shows a report; report.html has its text.
#ifndef KTQTBASE_AUDIT_PAGE_H
#define KTQTBASE_AUDIT_PAGE_H

namespace ktqtbase::audit {

extern const char* const kPage;

} // namespace ktqtbase::audit

#endif
