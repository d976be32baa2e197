// SPDX-License-Identifier: MIT
//
// The commands of a script.
#include "MainWindow.h"
#include "ScriptPlayer.h"
#include "app/Commands.h"
#include "app/FileNames.h"
#include "app/Narrow.h"
#include "app/ShapeText.h"

#include <QtGui/QClipboard>
#include <QtWidgets/QApplication>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <iterator>
#include <map>

namespace {

constexpr int kKilled = 3;

// The rest of a line, which may hold blanks.
std::string restOf(std::istream& arguments)
{
    std::string rest;
    std::getline(arguments, rest);
    return rest;
}

std::wstring nameIn(std::istream& arguments)
{
    return AbsoluteName(Widen(restOf(arguments)).value_or(std::wstring()));
}

// The position of a word in a list, or the list's length.
template<std::size_t N>
UINT indexOf(const std::string& word, const char* const (&words)[N])
{
    const auto found =
        std::find_if(std::begin(words), std::end(words), [&](auto text) { return word == text; });
    return static_cast<UINT>(found - std::begin(words));
}

bool readPoint(std::istream& arguments, POINT& point)
{
    char comma = 0;
    return arguments >> point.x >> comma >> point.y && comma == ',';
}

constexpr const char* kToolNames[] = {"select",  "freehand", "line", "rectangle",
                                      "ellipse", "text",     "star"};
constexpr const char* kStyleNames[] = {"solid", "dash", "dot", "dashdot", "dashdotdot", "none"};

} // namespace

ScriptPlayer::Handler ScriptPlayer::handlerOf(const std::string& command)
{
    static const std::map<std::string, Handler> handlers = {
        {"open", &ScriptPlayer::openFile},
        {"save", &ScriptPlayer::saveFile},
        {"copy", &ScriptPlayer::saveCopy},
        {"print", &ScriptPlayer::printFile},
        {"screenshot", &ScriptPlayer::screenshot},
        {"tool", &ScriptPlayer::tool},
        {"pen", &ScriptPlayer::pen},
        {"fill", &ScriptPlayer::fill},
        {"drag", &ScriptPlayer::drag},
        {"type", &ScriptPlayer::type},
        {"key", &ScriptPlayer::key},
        {"message", &ScriptPlayer::message},
        {"menu", &ScriptPlayer::command},
        {"answer", &ScriptPlayer::answer},
        {"choose", &ScriptPlayer::choose},
        {"expect", &ScriptPlayer::expect},
        {"paper", &ScriptPlayer::paper},
        {"clipboard", &ScriptPlayer::clipboard},
        {"resize", &ScriptPlayer::resize},
        {"autosave", &ScriptPlayer::autosave},
        {"recover", &ScriptPlayer::recover},
        {"die", &ScriptPlayer::die},
        {"copy-over", &ScriptPlayer::copyOver}};
    const auto found = handlers.find(command);
    return found == handlers.end() ? nullptr : found->second;
}

// What a box reports is no failure of the script: it is there to show that, too.
bool ScriptPlayer::openFile(std::istream& arguments)
{
    m_window.app().OpenFile(nameIn(arguments));
    return true;
}

bool ScriptPlayer::saveFile(std::istream& arguments)
{
    if (arguments.peek() == std::istream::traits_type::eof())
        return m_window.app().OnCommand(ID_FILE_SAVE);
    m_window.app().SaveFile(nameIn(arguments), false);
    return true;
}

bool ScriptPlayer::saveCopy(std::istream&)
{
    return m_window.app().SaveCopy();
}

bool ScriptPlayer::printFile(std::istream& arguments)
{
    m_window.app().PrintFile(nameIn(arguments), false);
    return true;
}

bool ScriptPlayer::screenshot(std::istream& arguments)
{
    return m_window.saveScreenshot(nameIn(arguments));
}

bool ScriptPlayer::tool(std::istream& arguments)
{
    const UINT index = indexOf(restOf(arguments), kToolNames);
    return index < TOOL_COUNT && m_window.app().OnCommand(ID_TOOL_FIRST + index);
}

bool ScriptPlayer::pen(std::istream& arguments)
{
    CPenInfo pen = m_window.app().GetView().GetPen();
    std::string style;
    std::string color;
    if (!(arguments >> style >> pen.width >> color) || !ColorFromText(color, pen.color))
        return false;
    pen.style = static_cast<int>(indexOf(style, kStyleNames));
    send(WM_SKETCH_SETPEN, 0, reinterpret_cast<LPARAM>(&pen));
    return pen.style <= PS_NULL;
}

bool ScriptPlayer::fill(std::istream& arguments)
{
    CPenInfo pen = m_window.app().GetView().GetPen();
    const std::string color = restOf(arguments);
    pen.filled = color != "none";
    const bool understood = !pen.filled || ColorFromText(color, pen.fill);
    send(WM_SKETCH_SETPEN, 0, reinterpret_cast<LPARAM>(&pen));
    return understood;
}

bool ScriptPlayer::drag(std::istream& arguments)
{
    POINT point = {};
    if (!readPoint(arguments, point))
        return false;
    send(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(point.x, point.y));
    while (readPoint(arguments, point))
        send(WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(point.x, point.y));
    send(WM_LBUTTONUP, 0, MAKELPARAM(point.x, point.y));
    return true;
}

bool ScriptPlayer::type(std::istream& arguments)
{
    const auto text = Widen(restOf(arguments));
    if (!text)
        return false;
    for (wchar_t character : *text)
        send(WM_CHAR, static_cast<WPARAM>(character), 0);
    return true;
}

bool ScriptPlayer::key(std::istream& arguments)
{
    static const std::map<std::string, WPARAM> characters = {{"return", VK_RETURN},
                                                             {"backspace", VK_BACK}};
    static const std::map<std::string, WPARAM> keys = {
        {"delete", VK_DELETE}, {"escape", VK_ESCAPE}, {"left", VK_LEFT},  {"right", VK_RIGHT},
        {"up", VK_UP},         {"down", VK_DOWN},     {"home", kKeyHome}, {"end", kKeyEnd}};
    const std::string name = restOf(arguments);
    const auto character = characters.find(name);
    const auto key = keys.find(name);
    if (character != characters.end())
        send(WM_CHAR, character->second, 0);
    else if (key != keys.end())
        send(WM_KEYDOWN, key->second, 1);
    return character != characters.end() || key != keys.end();
}

bool ScriptPlayer::message(std::istream& arguments)
{
    UINT number = 0;
    WPARAM wParam = 0;
    if (!(arguments >> number >> wParam))
        return false;
    send(number, wParam, 0);
    return true;
}

bool ScriptPlayer::command(std::istream& arguments)
{
    static const std::map<std::string, UINT> commands = {{"new", ID_FILE_NEW},
                                                         {"open", ID_FILE_OPEN},
                                                         {"save-as", ID_FILE_SAVE_AS},
                                                         {"print", ID_FILE_PRINT_PDF},
                                                         {"recent", ID_FILE_MRU_FILE1},
                                                         {"undo", ID_EDIT_UNDO},
                                                         {"redo", ID_EDIT_REDO},
                                                         {"cut", ID_EDIT_CUT},
                                                         {"copy", ID_EDIT_COPY},
                                                         {"paste", ID_EDIT_PASTE},
                                                         {"delete", ID_EDIT_CLEAR},
                                                         {"select-all", ID_EDIT_SELECT_ALL},
                                                         {"select-next", ID_EDIT_SELECT_NEXT},
                                                         {"insert", ID_EDIT_INSERT},
                                                         {"zoom-in", ID_VIEW_ZOOM_IN},
                                                         {"zoom-out", ID_VIEW_ZOOM_OUT},
                                                         {"zoom-full", ID_VIEW_ZOOM_FULL},
                                                         {"zoom-fit", ID_VIEW_ZOOM_FIT},
                                                         {"red-pen", ID_PEN_COLOR_FIRST + 1},
                                                         {"blue-fill", ID_FILL_COLOR_FIRST + 3}};
    const auto found = commands.find(restOf(arguments));
    return found != commands.end() && m_window.app().OnCommand(found->second);
}

bool ScriptPlayer::answer(std::istream& arguments)
{
    m_answerer.answerNext(QString::fromStdString(restOf(arguments)));
    return true;
}

bool ScriptPlayer::paper(std::istream& arguments)
{
    return m_window.paperPrinter().printToFile(QString::fromStdWString(nameIn(arguments)));
}

bool ScriptPlayer::clipboard(std::istream& arguments)
{
    QApplication::clipboard()->setText(QString::fromStdString(restOf(arguments)));
    return true;
}

bool ScriptPlayer::resize(std::istream& arguments)
{
    POINT size = {};
    const bool understood = readPoint(arguments, size);
    m_window.resize(size.x, size.y);
    return understood;
}

bool ScriptPlayer::autosave(std::istream&)
{
    m_window.app().OnAutosave();
    return true;
}

bool ScriptPlayer::recover(std::istream&)
{
    m_window.app().OfferAutosaves();
    return true;
}

// What another program does to a file meanwhile. The time is set, since two files may be written
// within one tick of the file system's clock.
bool ScriptPlayer::copyOver(std::istream& arguments)
{
    std::string from;
    std::string to;
    std::error_code error;
    arguments >> from >> to;
    std::filesystem::copy_file(from, to, std::filesystem::copy_options::overwrite_existing, error);
    if (!error)
        std::filesystem::last_write_time(
            to, std::filesystem::file_time_type::clock::now() + std::chrono::hours(1), error);
    return !error;
}

// As if somebody killed the program.
bool ScriptPlayer::die(std::istream&)
{
    std::_Exit(kKilled);
}

bool ScriptPlayer::choose(std::istream& arguments)
{
    m_answerer.chooseNext(QString::fromStdWString(nameIn(arguments)));
    return true;
}

bool ScriptPlayer::expect(std::istream& arguments)
{
    std::string what;
    int number = -1;
    arguments >> what >> number;
    CSketchCounts counts;
    send(WM_SKETCH_GETCOUNTS, 0, reinterpret_cast<LPARAM>(&counts));
    return (what == "shapes" && counts.shapes == number) ||
           (what == "selected" && counts.selected == number) ||
           (what == "zoom" && m_window.app().GetView().GetZoom() == number);
}
