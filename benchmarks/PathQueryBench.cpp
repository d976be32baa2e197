// SPDX-License-Identifier: MIT
//
// Queries and edits of a parsed name beside the same work written by hand on std::wstring. Edits
// are measured in pairs that end where they began, so that no call has to copy the name first.
#include "support/Fixture.h"
#include "support/HandWritten.h"
#include "support/Name.h"
#include "support/Rows.h"

#include <cstddef>
#include <memory>

namespace {

using bench::Row;

const std::size_t kLengths[] = {20, 60, 250};
const wchar_t* const kComponent = L"component";

std::string sizeOf(std::size_t length)
{
    return std::to_string(length);
}

// A parsed relative name of a length below the private folder.
std::shared_ptr<bench::Name> parsed(std::size_t length)
{
    CRbUiPathname base;
    base.ParseRelative(bench::wide(bench::folder()).c_str(), nullptr, false);
    auto path = std::make_shared<bench::Name>();
    path->ParseRelative(bench::wide(bench::relativeName(length)).c_str(), &base, false);
    return path;
}

// The same name as plain texts, which work on them keeps.
struct Plain
{
    explicit Plain(std::size_t length)
        : prefix(bench::wide(bench::folder())), work(bench::wide(bench::relativeName(length)))
    {}

    std::wstring prefix;
    std::wstring work;
    std::wstring out;
};

// A query that fills a string.
template<class Query, class Hand>
void addQuery(const char* work, std::size_t length, Query query, Hand hand)
{
    Row(work, sizeOf(length))
        .library([=] {
            return [path = parsed(length), out = CStdStr<wchar_t>(), query]() mutable {
                query(*path, out);
            };
        })
        .reference("std::wstring",
                   [=] { return [text = Plain(length), hand]() mutable { hand(text); }; });
}

void addQueries(std::size_t length)
{
    addQuery(
        "GetBasename", length, [](auto& path, auto& out) { path.GetBasename(out); },
        [](Plain& text) { hand::baseName(text.work, text.out); });
    addQuery(
        "GetExtension", length, [](auto& path, auto& out) { path.GetExtension(out); },
        [](Plain& text) { hand::extension(text.work, text.out); });
    addQuery(
        "GetFullPath", length, [](auto& path, auto& out) { path.GetFullPath(out); },
        [](Plain& text) { hand::fullPath(text.prefix, text.work, text.out); });
}

void addEdits(std::size_t length)
{
    addQuery(
        "AppendComponent, TrimComponent", length,
        [](auto& path, auto&) {
            path.AppendComponent(kComponent);
            path.TrimComponent();
        },
        [](Plain& text) {
            hand::appendComponent(text.work, kComponent);
            hand::trimComponent(text.work);
        });
    addQuery(
        "ReplaceExtensionAlways", length,
        [](auto& path, auto&) { path.ReplaceExtensionAlways(L"docx"); },
        [](Plain& text) { hand::replaceExtension(text.work, L"docx"); });
}

// The parent keeps two strings, so that the hand copies two.
// The library's own class, as hosts pass it: a derived one may watch itself being filled, which costs
// the strings that are freed first.
struct Parent
{
    CRbUiPathname name;
};

void addParent(std::size_t length)
{
    Row("GetParent", sizeOf(length))
        .library([=] {
            return [path = parsed(length), parent = std::make_shared<Parent>()] {
                path->GetParent(parent->name);
            };
        })
        .reference("std::wstring", [=] {
            return [text = Plain(length), prefix = std::wstring()]() mutable {
                hand::parent(text.prefix, text.work, prefix, text.out);
            };
        });
}

void addDisplayName(std::size_t length)
{
    const auto width = static_cast<int>(length - 6);
    addQuery(
        "GetDisplayName", length,
        [width](auto& path, auto& out) { path.GetDisplayName(out, width); },
        [width](Plain& text) { hand::displayName(text.work, width, text.out); });
}

void addMatch(std::size_t length)
{
    const auto other = [=] {
        const Plain text(length);
        return text.prefix + L'/' + text.work;
    };
    Row("PathMatch", sizeOf(length))
        .library([=] {
            return [path = parsed(length), other = other()] {
                benchmark::DoNotOptimize(path->PathMatch(other.c_str()));
            };
        })
        .reference("std::wstring", [=] {
            return [text = Plain(length), other = other()] {
                benchmark::DoNotOptimize(hand::pathMatch(text.prefix, text.work, other.c_str()));
            };
        });
}

} // namespace

void bench::addPathQueryRows()
{
    for (const std::size_t length : kLengths) {
        addQueries(length);
        addEdits(length);
        addParent(length);
        addDisplayName(length);
        addMatch(length);
    }
}
