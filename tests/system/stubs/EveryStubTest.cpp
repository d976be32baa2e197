// SPDX-License-Identifier: MIT
//
// Every function that does nothing, under each of its names. The rows are made from the headers and
// the catalogue by make-stub-rows.py, so that no inert name is without one.
#include "support/GuardedMemory.h"
#include "support/RowName.h"

#include <KtQtBase/KtQtBase.h>
#include <KtQtBase/Porting.h>

#include <gtest/gtest.h>

#include <cerrno>
#include <cstring>
#include <functional>
#include <limits>
#include <string>
#include <tuple>
#include <type_traits>
#include <vector>

namespace {

using ktqtbase::test::Guard;
using ktqtbase::test::GuardedMemory;
using ktqtbase::test::RowName;

// ---- Arguments ---------------------------------------------------------------------------------

// What the arguments of a call are: null and zero; memory that shows a write, and the least values;
// memory that nobody may even read, and the greatest values.
enum class Pass
{
    Null,
    Poisoned,
    Forbidden
};

template<class T>
T scalarFor(Pass pass)
{
    if constexpr (std::is_class_v<T>)
        return T(L"text");
    else if (pass == Pass::Null)
        return T();
    else
        return pass == Pass::Poisoned ? std::numeric_limits<T>::lowest()
                                      : std::numeric_limits<T>::max();
}

template<class T>
class Argument
{
public:
    explicit Argument(Pass pass) : m_value(scalarFor<T>(pass)) {}

    T value() const { return m_value; }
    bool isUntouched() const { return true; }

private:
    T m_value;
};

template<class T>
class Argument<T*>
{
public:
    explicit Argument(Pass pass) : m_pass(pass) {}

    T* value() const
    {
        if (m_pass == Pass::Null)
            return nullptr;
        return static_cast<T*>(m_pass == Pass::Poisoned ? m_memory.data() : m_memory.forbidden());
    }
    bool isUntouched() const { return m_memory.isUntouchedBut(0); }

private:
    Pass m_pass;
    GuardedMemory m_memory{1024, Guard::Behind};
};

template<class T>
class Argument<T&>
{
public:
    explicit Argument(Pass pass)
        : m_value(scalarFor<std::remove_const_t<T>>(pass)), m_before(m_value)
    {}

    T& value() { return m_value; }
    bool isUntouched() const { return m_value == m_before; }

private:
    std::remove_const_t<T> m_value;
    std::remove_const_t<T> m_before;
};

// ---- Calls -------------------------------------------------------------------------------------

// errno before a call, which is the last error of every function here, too.
constexpr int kErrors[] = {0, ENOENT, std::numeric_limits<int>::max()};

template<class Result>
std::string wordFor(Result result)
{
    if constexpr (std::is_pointer_v<Result>)
        return result ? "a pointer" : "null";
    else if constexpr (std::is_same_v<Result, bool>)
        return result ? "true" : "false";
    else
        return std::to_string(result);
}

// Calls, and looks at errno at once. Result: the word for what was returned.
template<class Call>
std::string wordOf(const Call& call, int error)
{
    std::string word = "nothing";
    errno = error;
    if constexpr (std::is_void_v<decltype(call())>) {
        call();
        EXPECT_EQ(errno, error);
    } else {
        const auto result = call();
        EXPECT_EQ(errno, error);
        word = wordFor(result);
    }
    return word;
}

template<class... Arguments, class Function>
std::string wordOfCall(const Function& function, Pass pass, int error)
{
    std::tuple<Argument<Arguments>...> arguments(((void)sizeof(Argument<Arguments>), pass)...);
    return std::apply(
        [&](auto&... each) {
            const auto call = [&] { return function(each.value()...); };
            const std::string word = wordOf(call, error);
            EXPECT_TRUE((each.isUntouched() && ...));
            return word;
        },
        arguments);
}

// ---- Objects -----------------------------------------------------------------------------------

template<class Object>
Object newObject()
{
    if constexpr (std::is_default_constructible_v<Object>)
        return Object();
    else
        return Object(nullptr);
}

template<class Object>
std::vector<unsigned char> bytesOf(const Object& object)
{
    std::vector<unsigned char> bytes(sizeof object);
    std::memcpy(bytes.data(), static_cast<const void*>(&object), sizeof object);
    return bytes;
}

// ---- Rows --------------------------------------------------------------------------------------

using Stub = std::function<std::string(Pass, int)>;

// A function that is known by its parameters, as an overloaded one has to be.
template<class... Arguments>
struct With
{
    template<class Result>
    static Stub choose(Result (*function)(Arguments...))
    {
        return
            [=](Pass pass, int error) { return wordOfCall<Arguments...>(function, pass, error); };
    }

    template<class Result, class Object>
    static Stub choose(Result (Object::*method)(Arguments...))
    {
        return ofMethod<Object>(method);
    }

    template<class Result, class Object>
    static Stub choose(Result (Object::*method)(Arguments...) const)
    {
        return ofMethod<Object>(method);
    }

private:
    template<class Object, class Method>
    static Stub ofMethod(Method method)
    {
        return [=](Pass pass, int error) {
            auto object = newObject<Object>();
            const auto before = bytesOf(object);
            const auto function = [&](auto&&... each) -> decltype(auto) {
                return (object.*method)(std::forward<decltype(each)>(each)...);
            };
            const std::string word = wordOfCall<Arguments...>(function, pass, error);
            EXPECT_EQ(bytesOf(object), before);
            return word;
        };
    }
};

struct StubRow
{
    const char* name;
    Stub stub;
    const char* result;
};

StubRow row(const char* name, Stub stub, const char* result)
{
    return {name, std::move(stub), result};
}

const StubRow kStubs[] = {
#include "StubRows.inc"
};

class EveryStub : public testing::TestWithParam<StubRow>
{};

TEST_P(EveryStub, GivesItsResultAndTouchesNothing)
{
    for (const Pass pass : {Pass::Null, Pass::Poisoned, Pass::Forbidden}) {
        for (const int error : kErrors)
            EXPECT_EQ(GetParam().stub(pass, error), GetParam().result)
                << "pass " << static_cast<int>(pass) << ", errno " << error;
    }
}

INSTANTIATE_TEST_SUITE_P(Names, EveryStub, testing::ValuesIn(kStubs), RowName());

// ---- The last error ----------------------------------------------------------------------------

TEST(EveryStub, HasErrnoForItsLastErrorUnderEachName)
{
    for (const int error : kErrors) {
        errno = error;
        EXPECT_EQ(GetLastError(), static_cast<unsigned int>(error));
        EXPECT_EQ(KtKernel32::GetLastError(), static_cast<unsigned int>(error));
    }
}

} // namespace
