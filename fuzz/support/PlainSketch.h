// SPDX-License-Identifier: MIT
//
// A plain second reading of the sketchpad's documents: character by character, without streams.
#ifndef KTQTBASE_FUZZ_SUPPORT_PLAINSKETCH_H
#define KTQTBASE_FUZZ_SUPPORT_PLAINSKETCH_H

#include "examples/sketchpad/app/Shape.h"

#include <optional>
#include <string>
#include <vector>

namespace ktqtbase::fuzz::plain {

// Result: the document's shapes, or nothing if it is to be refused.
std::optional<std::vector<CShape>> readSketch(const std::string& content);

} // namespace ktqtbase::fuzz::plain

#endif
