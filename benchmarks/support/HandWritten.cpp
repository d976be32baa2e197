// SPDX-License-Identifier: MIT
#include "support/HandWritten.h"

#include <cwchar>

namespace {

std::size_t afterLastSeparator(const std::wstring& path)
{
    std::size_t at = path.rfind(L'/');
    if (at == path.npos)
        at = path.rfind(L':');
    return at == path.npos ? 0 : at + 1;
}

wchar_t folded(wchar_t ch)
{
    return ch >= L'A' && ch <= L'Z' ? ch + (L'a' - L'A') : ch;
}

bool endsWithSlash(const std::wstring& path)
{
    return !path.empty() && path.back() == L'/';
}

bool equalFolded(const std::wstring& a, const wchar_t* b, std::size_t length)
{
    if (a.size() != length)
        return false;
    for (std::size_t i = 0; i < length; ++i) {
        if (folded(a[i]) != folded(b[i]))
            return false;
    }
    return true;
}

void shortenBase(const std::wstring& path, std::size_t base, std::size_t room, std::wstring& out)
{
    const std::size_t dot = path.rfind(L'.');
    const bool hasExtension = dot != path.npos && dot > base && room >= path.size() - dot + 2;
    const std::size_t tail = hasExtension ? path.size() - dot : 1;
    out.assign(path, base, room - 1 - tail).push_back(L'~');
    if (hasExtension)
        out.append(path, dot, path.npos);
}

void shortenFolders(const std::wstring& path, std::size_t room, std::wstring& out)
{
    std::size_t at = 0;
    while (path.size() - at + 4 > room) {
        const std::size_t next = path.find(L'/', at + 1);
        if (next == path.npos)
            break;
        at = next;
    }
    out.assign(L"...").append(path, at, path.npos);
}

} // namespace

void hand::baseName(const std::wstring& path, std::wstring& out)
{
    out.assign(path, afterLastSeparator(path), path.npos);
}

void hand::extension(const std::wstring& path, std::wstring& out)
{
    const std::size_t dot = path.rfind(L'.');
    if (dot != path.npos && dot >= afterLastSeparator(path))
        out.assign(path, dot + 1, path.npos);
}

void hand::fullPath(const std::wstring& prefix, const std::wstring& path, std::wstring& out)
{
    out = prefix;
    if (!endsWithSlash(out) && !out.empty())
        out.push_back(L'/');
    out += path;
}

void hand::appendComponent(std::wstring& path, const wchar_t* text)
{
    if (!endsWithSlash(path))
        path.push_back(L'/');
    path += text;
}

bool hand::trimComponent(std::wstring& path)
{
    const std::size_t at = path.rfind(L'/');
    if (at == path.npos)
        return false;
    path.resize(at == 0 ? 1 : at);
    return true;
}

void hand::replaceExtension(std::wstring& path, const wchar_t* extension)
{
    const std::size_t dot = path.rfind(L'.');
    if (dot != path.npos && dot >= afterLastSeparator(path))
        path.resize(dot);
    if (*extension != L'.')
        path.push_back(L'.');
    path += extension;
}

void hand::parent(const std::wstring& prefix, const std::wstring& path, std::wstring& outPrefix,
                  std::wstring& out)
{
    out = path;
    if (out.size() > 1 && out.back() == L'/')
        out.pop_back();
    const std::size_t length = afterLastSeparator(out);
    if (length > 0) {
        out.resize(length);
        outPrefix = prefix;
    } else {
        out = prefix;
        outPrefix.clear();
    }
}

void hand::displayName(const std::wstring& path, int width, std::wstring& out)
{
    const auto room = static_cast<std::size_t>(width);
    const std::size_t base = afterLastSeparator(path);
    if (path.size() <= room)
        out = path;
    else if (room < path.size() - base)
        shortenBase(path, base, room, out);
    else if (room < path.size() - base + 4)
        out.assign(path, base, path.npos);
    else
        shortenFolders(path, room, out);
}

bool hand::pathMatch(const std::wstring& prefix, const std::wstring& path, const wchar_t* other)
{
    std::wstring full;
    fullPath(prefix, path, full);
    std::size_t length = std::wcslen(other);
    if (length > 0 && other[length - 1] == L'/' && !endsWithSlash(full))
        --length;
    else if (endsWithSlash(full) && (length == 0 || other[length - 1] != L'/'))
        full.pop_back();
    return equalFolded(full, other, length);
}
