// SPDX-License-Identifier: MIT
//
// Ends with 0 where all parts of the program have one library between them.
#include "part.h"

#include <dlfcn.h>

#include <cstdio>
#include <initializer_list>
#include <memory>

namespace {

bool hasTheSame(const Part& part, HINSTANCE resources)
{
    return part.volumes == &volumeList && part.resources == resources &&
           part.eventType == QKtMsgEvent::eventType();
}

bool getsItsMessage(const Part& sender)
{
    const std::unique_ptr<QEvent> event(sender.makeMessage());
    const auto* message = dynamic_cast<QKtMsgEvent*>(event.get());
    return message && message->lParam() == 3;
}

bool say(const char* what, bool holds)
{
    if (!holds)
        std::fprintf(stderr, "not true: %s\n", what);
    return holds;
}

bool workTogether(const Part& one, const Part& two, const Part& loaded, HINSTANCE resources)
{
    bool good = true;
    for (const Part* part : {&one, &two, &loaded}) {
        good &= say("a part sees the program's objects", hasTheSame(*part, resources));
        good &= say("a part's message is known by its type", getsItsMessage(*part));
    }
    good &= say("one deletes the other's name", two.appendAndDelete(one.makeName()));
    good &= say("the module deletes a name", loaded.appendAndDelete(two.makeName()));
    return good & say("a library deletes the module's", one.appendAndDelete(loaded.makeName()));
}

} // namespace

int main()
{
    int place = 0;
    const auto resources = reinterpret_cast<HINSTANCE>(&place);
    AfxSetResourceHandle(resources);
    void* const handle = dlopen(MODULE_FILE, RTLD_NOW | RTLD_LOCAL);
    void* const describe = handle ? dlsym(handle, "module") : nullptr;
    if (!say("the module is loaded", describe))
        return 1;
    Part one = {};
    Part two = {};
    Part loaded = {};
    first(&one);
    second(&two);
    reinterpret_cast<DescribePart>(describe)(&loaded);
    const bool good = workTogether(one, two, loaded, resources);
    dlclose(handle);
    const bool stays = one.appendAndDelete(two.makeName());
    return say("the others work without the module", stays) && good ? 0 : 1;
}
