// SPDX-License-Identifier: MIT
#include "CompileCommands.h"
#include "JsonFile.h"
#include "TextFile.h"

#include <filesystem>
#include <stdexcept>

namespace json = llvm::json;
namespace fs = std::filesystem;

namespace ktqtbase::audit {

namespace {

std::string sourceOf(const json::Object& command, const fs::path& base)
{
    const auto folder = command.getString("directory");
    const auto file = command.getString("file");
    if (!file)
        throw std::runtime_error("no list of compile commands");
    const fs::path directory = folder ? base / folder->str() : base;
    return (directory / file->str()).lexically_normal();
}

} // namespace

std::vector<std::string> readCompileCommands(const std::string& path)
{
    const json::Value value = parseJson(readTextFile(path));
    const json::Array* const commands = value.getAsArray();
    if (!commands)
        throw std::runtime_error("no list of compile commands");
    std::vector<std::string> sources;
    for (const json::Value& command : *commands) {
        const json::Object* const object = command.getAsObject();
        sources.push_back(
            sourceOf(object ? *object : json::Object(), fs::path(path).parent_path()));
    }
    return sources;
}

} // namespace ktqtbase::audit
