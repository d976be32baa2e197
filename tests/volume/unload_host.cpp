// SPDX-License-Identifier: MIT
//
// Appends a volume of each name that it is given ("-" for a null entry) to the list and ends. Each
// volume tells when it is destroyed and what the list holds by then.
#include <KtQtBase/VolumeDescriptor.h>

#include <cstdio>
#include <cstring>

namespace {

// The list's size is wider with Qt 6.
int count()
{
    return static_cast<int>(volumeList.size());
}

class LoggingVolume : public CRbUiVolumeDescriptor
{
public:
    explicit LoggingVolume(const char* name)
        : CRbUiVolumeDescriptor(CStdStr<wchar_t>(name, name + std::strlen(name))), m_name(name)
    {}
    ~LoggingVolume() override { std::printf("%s of %d\n", m_name, count()); }

    bool ValidateFilename(const CStdStr<wchar_t>*, bool) const override { return true; }
    bool ValidateSegment(const CStdStr<wchar_t>*, bool) const override { return true; }

private:
    const char* m_name;
};

} // namespace

int main(int argc, char** argv)
{
    for (int i = 1; i < argc; ++i)
        volumeList.append(std::strcmp(argv[i], "-") ? new LoggingVolume(argv[i]) : nullptr);
    std::printf("main ends with %d\n", count());
}
