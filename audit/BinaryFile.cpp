// SPDX-License-Identifier: MIT
#include "BinaryFile.h"
#include "LowerCase.h"
#include "TextFile.h"

#include <llvm/BinaryFormat/Magic.h>
#include <llvm/Object/Archive.h>
#include <llvm/Object/COFF.h>
#include <llvm/Object/COFFImportFile.h>
#include <llvm/Object/ELFObjectFile.h>
#include <llvm/Object/MachO.h>
#include <llvm/Object/MachOUniversal.h>

#include <algorithm>

namespace object = llvm::object;

namespace ktqtbase::audit {

namespace {

// None that anybody looks for is as long. Many names may share their bytes in a file, so that they
// may take more memory than the file.
constexpr std::size_t kLongestName = 4096;

// What is being read, and the symbol that is filled in for each of its names.
class Reader
{
public:
    explicit Reader(const BinaryVisitor& visitor) : m_visitor(visitor) {}

    void readFile(const object::Binary& binary);

private:
    void readArchive(const object::Archive& archive);
    void readChild(const object::Archive& archive, const object::Archive::Child& child);
    bool isMemberFile(const object::Archive::Child& child);
    void readMember(llvm::MemoryBufferRef buffer);
    void readUniversal(const object::MachOUniversalBinary& universal);
    void readSlice(const object::MachOUniversalBinary::ObjectForArch& slice);
    void readObject(const object::ObjectFile& file);
    void readSymbols(const object::ObjectFile& file);
    template<class Symbols>
    void readSymbols(const Symbols& symbols, std::size_t most);
    void readSymbol(const object::SymbolRef& symbol);
    void readImportMember(const object::COFFImportFile& member);
    void readCoffObject(const object::COFFObjectFile& file);
    bool hasWholeSections(const object::COFFObjectFile& file);
    void readImage(const object::COFFObjectFile& file);
    void readImports(const object::COFFObjectFile& file,
                     const object::ImportDirectoryEntryRef& dll);
    template<class Directory>
    bool readDllName(const Directory& directory);
    void readImportedNames(llvm::iterator_range<object::imported_symbol_iterator> imports);
    bool readImport(const object::ImportedSymbolRef& import);
    void tell(llvm::StringRef name);
    bool failed(llvm::Error error);

    const BinaryVisitor& m_visitor;
    Symbol m_symbol;
    bool m_inArchive = false;
};

// Result: whether there was an error, which is told of.
bool Reader::failed(llvm::Error error)
{
    if (!error)
        return false;
    m_visitor.problem(m_symbol.member, llvm::toString(std::move(error)));
    return true;
}

void Reader::tell(llvm::StringRef name)
{
    if (name.empty() || name.size() > kLongestName)
        return;
    m_symbol.name = name.str();
    m_visitor.symbol(m_symbol);
}

void Reader::readFile(const object::Binary& binary)
{
    if (const auto* const archive = llvm::dyn_cast<object::Archive>(&binary))
        readArchive(*archive);
    else if (const auto* const slices = llvm::dyn_cast<object::MachOUniversalBinary>(&binary))
        readUniversal(*slices);
    else if (const auto* const import = llvm::dyn_cast<object::COFFImportFile>(&binary))
        readImportMember(*import);
    else if (const auto* const file = llvm::dyn_cast<object::ObjectFile>(&binary))
        readObject(*file);
    else
        m_visitor.problem(m_symbol.member, "no kind of file that is read here");
}

void Reader::readArchive(const object::Archive& archive)
{
    llvm::Error error = llvm::Error::success();
    const std::string outer = m_symbol.member;
    m_inArchive = true;
    for (const object::Archive::Child& child : archive.children(error)) {
        m_symbol.member = outer;
        readChild(archive, child);
    }
    m_symbol.member = outer;
    failed(std::move(error));
}

void Reader::readChild(const object::Archive& archive, const object::Archive::Child& child)
{
    llvm::Expected<llvm::StringRef> name = child.getName();
    if (failed(name.takeError()))
        return;
    m_symbol.member += (m_symbol.member.empty() ? "" : ", ") + name->str();
    if (archive.isThin() && !isMemberFile(child))
        return;
    llvm::Expected<llvm::MemoryBufferRef> buffer = child.getMemoryBufferRef();
    if (failed(buffer.takeError()))
        return;
    if (!archive.isThin() && buffer->getBufferEnd() > archive.getMemoryBufferRef().getBufferEnd())
        m_visitor.problem(m_symbol.member, "cut off");
    else
        readMember(*buffer);
}

// A thin archive names the files of its members.
bool Reader::isMemberFile(const object::Archive::Child& child)
{
    llvm::Expected<std::string> path = child.getFullName();
    if (failed(path.takeError()))
        return false;
    try {
        checkIsFile(*path);
        return true;
    } catch (const std::exception& error) {
        m_visitor.problem(m_symbol.member, error.what());
        return false;
    }
}

void Reader::readMember(llvm::MemoryBufferRef buffer)
{
    const llvm::StringRef bytes = buffer.getBuffer();
    if (!isBinary(std::string_view(bytes.data(), bytes.size())))
        return;
    llvm::Expected<std::unique_ptr<object::Binary>> binary = object::createBinary(buffer);
    if (!failed(binary.takeError()))
        readFile(**binary);
}

void Reader::readUniversal(const object::MachOUniversalBinary& universal)
{
    for (const object::MachOUniversalBinary::ObjectForArch& slice : universal.objects()) {
        m_symbol.member = slice.getArchFlagName();
        readSlice(slice);
    }
}

void Reader::readSlice(const object::MachOUniversalBinary::ObjectForArch& slice)
{
    llvm::Expected<std::unique_ptr<object::MachOObjectFile>> file = slice.getAsObjectFile();
    if (file) {
        readObject(**file);
        return;
    }
    llvm::Expected<std::unique_ptr<object::Archive>> archive = slice.getAsArchive();
    if (archive) {
        llvm::consumeError(file.takeError());
        readArchive(**archive);
        return;
    }
    llvm::consumeError(archive.takeError());
    failed(file.takeError());
}

void Reader::readObject(const object::ObjectFile& file)
{
    const auto* const coff = llvm::dyn_cast<object::COFFObjectFile>(&file);
    m_symbol.dll.clear();
    m_symbol.hasUnderscore =
        file.isMachO() || (coff && coff->getMachine() == llvm::COFF::IMAGE_FILE_MACHINE_I386);
    if (coff && coff->getDOSHeader())
        readImage(*coff);
    else if (coff)
        readCoffObject(*coff);
    else
        readSymbols(file);
}

void Reader::readSymbols(const object::ObjectFile& file)
{
    const std::size_t most = file.getData().size();
    readSymbols(file.symbols(), most);
    if (const auto* const elf = llvm::dyn_cast<object::ELFObjectFileBase>(&file))
        readSymbols(elf->getDynamicSymbolIterators(), most);
}

// A table with more symbols than the file has bytes goes round in a circle.
template<class Symbols>
void Reader::readSymbols(const Symbols& symbols, std::size_t most)
{
    std::size_t count = 0;
    for (const object::SymbolRef& symbol : symbols) {
        if (++count > most) {
            m_visitor.problem(m_symbol.member, "its table of symbols has no end");
            return;
        }
        readSymbol(symbol);
    }
}

void Reader::readSymbol(const object::SymbolRef& symbol)
{
    llvm::Expected<uint32_t> flags = symbol.getFlags();
    if (failed(flags.takeError()))
        return;
    m_symbol.isDefined = !(*flags & object::SymbolRef::SF_Undefined);
    if (*flags & object::SymbolRef::SF_FormatSpecific || (m_symbol.isDefined && !m_inArchive))
        return;
    llvm::Expected<llvm::StringRef> name = symbol.getName();
    if (!failed(name.takeError()))
        tell(*name);
}

// A file of Windows may have lost its end with the table of its symbols, which then has no address.
void Reader::readCoffObject(const object::COFFObjectFile& file)
{
    if (file.getNumberOfSymbols() == 0 && file.getPointerToSymbolTable() != 0)
        m_visitor.problem(m_symbol.member, "its table of symbols lies beyond its end");
    readSymbols(file);
}

// The name of the DLL stands behind that of the symbol.
void Reader::readImportMember(const object::COFFImportFile& member)
{
    const object::coff_import_header* const header = member.getCOFFImportHeader();
    const llvm::StringRef data = member.getMemoryBufferRef().getBuffer().drop_front(sizeof *header);
    const std::pair<llvm::StringRef, llvm::StringRef> names = data.split('\0');
    m_symbol.dll = lowerCase(names.second.split('\0').first.str());
    m_symbol.hasUnderscore = header->Machine == llvm::COFF::IMAGE_FILE_MACHINE_I386;
    m_symbol.isDefined = false;
    if (header->getNameType() == llvm::COFF::IMPORT_ORDINAL)
        tell("#" + std::to_string(header->OrdinalHint));
    else
        tell(names.first);
}

bool Reader::hasWholeSections(const object::COFFObjectFile& file)
{
    const auto sections = file.sections();
    return std::all_of(sections.begin(), sections.end(), [this](const object::SectionRef& section) {
        return !failed(section.getContents().takeError());
    });
}

void Reader::readImage(const object::COFFObjectFile& file)
{
    m_symbol.isDefined = false;
    m_symbol.hasUnderscore = false; // tables of imports have the names as they are
    if (!hasWholeSections(file))
        return;
    for (const object::ImportDirectoryEntryRef& dll : file.import_directories())
        readImports(file, dll);
    for (const object::DelayImportDirectoryEntryRef& dll : file.delay_import_directories()) {
        if (readDllName(dll))
            readImportedNames(dll.imported_symbols());
    }
}

// Where the linker left a table of names, the other table may hold addresses.
void Reader::readImports(const object::COFFObjectFile& file,
                         const object::ImportDirectoryEntryRef& dll)
{
    uint32_t names = 0;
    uint32_t addresses = 0;
    uintptr_t start = 0;
    if (!readDllName(dll) || failed(dll.getImportLookupTableRVA(names)) ||
        failed(dll.getImportAddressTableRVA(addresses)) ||
        failed(file.getRvaPtr(names ? names : addresses, start)))
        return;
    readImportedNames(names ? dll.lookup_table_symbols() : dll.imported_symbols());
}

template<class Directory>
bool Reader::readDllName(const Directory& directory)
{
    llvm::StringRef name;
    if (failed(directory.getName(name)))
        return false;
    m_symbol.dll = lowerCase(name.str());
    return true;
}

void Reader::readImportedNames(llvm::iterator_range<object::imported_symbol_iterator> imports)
{
    for (const object::ImportedSymbolRef& import : imports) {
        if (!readImport(import))
            return;
    }
}

bool Reader::readImport(const object::ImportedSymbolRef& import)
{
    bool hasNumber = false;
    uint16_t number = 0;
    llvm::StringRef name;
    if (failed(import.isOrdinal(hasNumber)))
        return false;
    if (failed(hasNumber ? import.getOrdinal(number) : import.getSymbolName(name)))
        return false;
    if (name.size() > kLongestName)
        m_visitor.problem(m_symbol.member,
                          "damaged: it imports a name of more than 4,096 characters");
    tell(hasNumber ? "#" + std::to_string(number) : name.str());
    return true;
}

// The reason for a file that only its own compiler can read, or null.
const char* whyUnreadable(llvm::StringRef bytes)
{
    switch (llvm::identify_magic(bytes)) {
    case llvm::file_magic::bitcode:
    case llvm::file_magic::coff_cl_gl_object:
        return "compiled for link-time optimisation, so that it has no table of names";
    default:
        return nullptr;
    }
}

bool isKnownKind(llvm::StringRef bytes)
{
    using Kind = llvm::file_magic::Impl;
    const Kind kind = llvm::identify_magic(bytes);
    const bool isElf = kind >= Kind::elf && kind <= Kind::elf_core;
    const bool isMachO = kind >= Kind::macho_object && kind <= Kind::macho_universal_binary;
    return isElf || isMachO || kind == Kind::archive || kind == Kind::coff_object ||
           kind == Kind::coff_import_library;
}

} // namespace

bool isBinary(std::string_view beginning)
{
    const llvm::StringRef bytes(beginning.data(), beginning.size());
    return beginning.substr(0, 2) == "MZ" || isKnownKind(bytes) || whyUnreadable(bytes);
}

void readBinary(std::string_view content, const std::string& path, const BinaryVisitor& visitor)
{
    const llvm::StringRef bytes(content.data(), content.size());
    if (const char* const reason = whyUnreadable(bytes)) {
        visitor.problem(std::string(), reason);
        return;
    }
    llvm::Expected<std::unique_ptr<object::Binary>> binary =
        object::createBinary(llvm::MemoryBufferRef(bytes, path));
    if (binary)
        Reader(visitor).readFile(**binary);
    else
        visitor.problem(std::string(), llvm::toString(binary.takeError()));
}

void readBinaryFile(const std::string& path, const BinaryVisitor& visitor)
{
    constexpr bool isText = false;
    constexpr bool endsInZero = false;
    const auto buffer = llvm::MemoryBuffer::getFile(path, isText, endsInZero);
    if (buffer)
        readBinary(std::string_view((*buffer)->getBufferStart(), (*buffer)->getBufferSize()), path,
                   visitor);
    else
        visitor.problem(std::string(), buffer.getError().message());
}

} // namespace ktqtbase::audit
