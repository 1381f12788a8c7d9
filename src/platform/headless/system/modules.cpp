#include "zxadlg/headless/modules.h"

#include <dlfcn.h>
#include <elf.h>
#include <link.h>
#include <sys/auxv.h>

#include <algorithm>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <functional>
#include <list>
#include <mutex>

#include "platform/headless/system/module_table.h"
#include "platform/headless/system/system_modules.h"
#include "zxadlg/headless/diagnostics.h"
#include "zxadlg/headless/functions.h"

namespace headless {

namespace {

struct Added {
    const void* begin = nullptr;
    ResourceList list;
};

// One loaded object. Its address is its handle.
struct Module {
    void* base = nullptr;
    std::string path;
    std::list<Added> resources;
    void* library = nullptr;  // from dlopen
    int references = 0;
};

struct ModuleTable {
    std::recursive_mutex mutex;
    std::list<Module> modules;
};

ModuleTable& Table() {
    static auto* table = new ModuleTable;
    return *table;
}

HMODULE HandleOf(Module* module) {
    return reinterpret_cast<HMODULE>(module);
}

// --- The section of a module that has not said where its resources are -----------------------

bool ReadAt(std::ifstream& file, std::uint64_t at, void* target, std::size_t size) {
    file.clear();
    file.seekg(static_cast<std::streamoff>(at));
    file.read(static_cast<char*>(target), static_cast<std::streamsize>(size));
    return file.gcount() == static_cast<std::streamsize>(size);
}

// Where the section lies in the running image: its distance from the base, and its size.
bool FindSection(const std::string& path, const char* wanted, const void* base,
                 std::uint64_t& offset, std::uint64_t& size) {
    std::ifstream file(path, std::ios::binary);
    Elf64_Ehdr header{};
    if (!file || !ReadAt(file, 0, &header, sizeof header)) return false;
    if (std::memcmp(header.e_ident, ELFMAG, SELFMAG) != 0 ||
        header.e_ident[EI_CLASS] != ELFCLASS64 ||
        (header.e_type != ET_DYN && header.e_type != ET_EXEC) ||
        header.e_shentsize != sizeof(Elf64_Shdr) || header.e_shstrndx >= header.e_shnum)
        return false;
    std::vector<Elf64_Shdr> sections(header.e_shnum);
    if (!ReadAt(file, header.e_shoff, sections.data(), sections.size() * sizeof(Elf64_Shdr)))
        return false;
    const Elf64_Shdr& strings = sections[header.e_shstrndx];
    if (strings.sh_size > (1u << 20)) return false;
    std::string names(strings.sh_size, '\0');
    if (!ReadAt(file, strings.sh_offset, names.data(), names.size())) return false;
    for (const Elf64_Shdr& section : sections) {
        if (section.sh_name >= names.size() || (section.sh_flags & SHF_ALLOC) == 0) continue;
        if (std::strcmp(names.c_str() + section.sh_name, wanted) != 0) continue;
        // A program that is bound to its place has addresses instead of distances.
        offset = section.sh_addr;
        if (header.e_type == ET_EXEC) offset -= reinterpret_cast<std::uintptr_t>(base);
        size = section.sh_size;
        return true;
    }
    return false;
}

void AddBytes(Module& module, const void* begin, std::size_t size) {
    for (const Added& added : module.resources) {
        if (added.begin == begin) return;
    }
    ResourceList list = ReadResources(static_cast<const std::uint8_t*>(begin), size);
    if (!list.complete) ReportUnsupported("malformed resources in " + module.path);
    module.resources.push_back({begin, std::move(list)});
}

Module* ModuleAt(const void* address) {
    Dl_info info{};
    if (dladdr(address, &info) == 0 || info.dli_fbase == nullptr) return nullptr;
    for (Module& module : Table().modules) {
        if (module.base == info.dli_fbase) return &module;
    }
    Module& module = Table().modules.emplace_back();
    module.base = info.dli_fbase;
    module.path = info.dli_fname == nullptr ? "" : info.dli_fname;
    std::error_code error;
    // A program is known by the words that started it, which a change of folder makes wrong.
    Dl_info program{};
    if (dladdr(reinterpret_cast<const void*>(getauxval(AT_PHDR)), &program) != 0 &&
        program.dli_fbase == info.dli_fbase)
        module.path = "/proc/self/exe";
    const auto absolute = std::filesystem::canonical(module.path, error);
    if (!error) module.path = absolute.string();
    std::uint64_t offset = 0;
    std::uint64_t size = 0;
    if (FindSection(module.path, "zx_resources", module.base, offset, size))
        AddBytes(module, static_cast<const char*>(module.base) + offset, size);
    return &module;
}

// The caller holds the mutex.
Module* ModuleOf(HMODULE handle) {
    if (handle == nullptr) handle = ProgramModule();
    for (Module& module : Table().modules) {
        if (HandleOf(&module) == handle) return &module;
    }
    return nullptr;
}

const ResourceEntry* FindIn(const Module& module, const ResourceName& type,
                            const ResourceName& name) {
    for (const Added& added : module.resources) {
        for (const ResourceEntry& entry : added.list.entries) {
            if (SameResourceName(entry.type, type) && SameResourceName(entry.name, name))
                return &entry;
        }
    }
    return nullptr;
}

std::string Stem(const std::string& name) {
    const std::size_t slash = name.find_last_of("/\\");
    std::string stem = slash == std::string::npos ? name : name.substr(slash + 1);
    const std::size_t dot = stem.find_last_of('.');
    return dot == std::string::npos ? stem : stem.substr(0, dot);
}

// The files that a library's name may mean, in the order of trying.
std::vector<std::string> Candidates(const std::string& name) {
    std::string plain = name;
    std::replace(plain.begin(), plain.end(), '\\', '/');
    const std::string stem = Stem(plain);
    const std::size_t slash = plain.find_last_of('/');
    std::vector<std::string> folders;
    if (slash != std::string::npos) {
        folders.push_back(plain.substr(0, slash));
    } else {
        for (const HMODULE handle : {OwnModule(), ProgramModule()}) {
            const Module* module = ModuleOf(handle);
            if (module != nullptr)
                folders.push_back(std::filesystem::path(module->path).parent_path().string());
        }
    }
    std::vector<std::string> files;
    for (const std::string& folder : folders) {
        if (plain.ends_with(".so")) files.push_back(folder + "/" + plain.substr(slash + 1));
        files.push_back(folder + "/lib" + stem + ".so");
        files.push_back(folder + "/" + stem + ".so");
    }
    return files;
}

}  // namespace

HINSTANCE ProgramModule() {
    static const HINSTANCE program = [] {
        std::lock_guard lock(Table().mutex);
        const auto headers = getauxval(AT_PHDR);
        return HandleOf(ModuleAt(reinterpret_cast<const void*>(headers)));
    }();
    return program;
}

HINSTANCE OwnModule() {
    static const HINSTANCE own = [] {
        std::lock_guard lock(Table().mutex);
        return HandleOf(ModuleAt(reinterpret_cast<const void*>(&FindSection)));
    }();
    return own;
}

const ResourceEntry* FindEntry(HMODULE handle, const ResourceName& type, const ResourceName& name) {
    std::lock_guard lock(Table().mutex);
    const Module* module = ModuleOf(handle);
    return module == nullptr ? nullptr : FindIn(*module, type, name);
}

HMODULE RegisterModule(const void* begin, const void* end) {
    if (begin == nullptr || end < begin) return nullptr;
    const auto size =
        static_cast<std::size_t>(static_cast<const char*>(end) - static_cast<const char*>(begin));
    std::lock_guard lock(Table().mutex);
    if (!ReadResources(static_cast<const std::uint8_t*>(begin), size).complete) return nullptr;
    Module* module = ModuleAt(begin);
    if (module == nullptr) {
        // Bytes in memory of no module are a module of their own.
        module = &Table().modules.emplace_back();
        module->base = const_cast<void*>(begin);
        module->path = "resources";
    }
    AddBytes(*module, begin, size);
    return HandleOf(module);
}

void UnregisterModule(const void* begin) {
    std::lock_guard lock(Table().mutex);
    for (Module& module : Table().modules)
        module.resources.remove_if([begin](const Added& added) { return added.begin == begin; });
    Table().modules.remove_if(
        [begin](const Module& module) { return module.base == begin && module.resources.empty(); });
}

std::size_t BytesLeftInResource(const void* data) {
    const auto* at = static_cast<const std::uint8_t*>(data);
    std::lock_guard lock(Table().mutex);
    for (const Module& module : Table().modules) {
        for (const Added& added : module.resources) {
            for (const ResourceEntry& entry : added.list.entries) {
                if (at >= entry.data && at < entry.data + entry.size)
                    return static_cast<std::size_t>(entry.data + entry.size - at);
            }
        }
    }
    return 0;
}

}  // namespace headless

using namespace headless;

HMODULE GetModuleHandleA(LPCSTR name) {
    const HMODULE program = ProgramModule();
    if (name == nullptr) return program;
    const std::string stem = Stem(name);
    std::lock_guard lock(Table().mutex);
    for (Module& module : Table().modules) {
        const std::string own = Stem(module.path);
        if (own == stem || own == "lib" + stem) return HandleOf(&module);
    }
    if (const HMODULE system = SystemModule(stem)) return system;
    SetLastError(ERROR_MOD_NOT_FOUND);
    return nullptr;
}

BOOL GetModuleHandleExA(DWORD flags, LPCSTR name, HMODULE* module) {
    if (module == nullptr) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return FALSE;
    }
    constexpr DWORD known =
        GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT;
    if ((flags & ~known) != 0) ReportUnsupported("GetModuleHandleExA flags");
    if ((flags & GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS) == 0) {
        *module = GetModuleHandleA(name);
    } else {
        std::lock_guard lock(Table().mutex);
        *module = HandleOf(ModuleAt(name));
    }
    if (*module == nullptr) SetLastError(ERROR_MOD_NOT_FOUND);
    return *module != nullptr;
}

DWORD GetModuleFileNameA(HMODULE handle, LPSTR buffer, DWORD size) {
    std::lock_guard lock(Table().mutex);
    const Module* module = ModuleOf(handle);
    if (module == nullptr || buffer == nullptr || size == 0) {
        SetLastError(ERROR_MOD_NOT_FOUND);
        return 0;
    }
    const auto length = std::min<std::size_t>(module->path.size(), size - 1);
    std::memcpy(buffer, module->path.data(), length);
    buffer[length] = '\0';
    if (length < module->path.size()) {
        SetLastError(ERROR_INSUFFICIENT_BUFFER);
        return size;
    }
    return static_cast<DWORD>(length);
}

HMODULE LoadLibraryA(LPCSTR name) {
    return LoadLibraryExA(name, nullptr, 0);
}

HMODULE LoadLibraryExA(LPCSTR name, HANDLE, DWORD flags) {
    if (name == nullptr || *name == '\0') {
        SetLastError(ERROR_INVALID_PARAMETER);
        return nullptr;
    }
    if ((flags & ~static_cast<DWORD>(LOAD_WITH_ALTERED_SEARCH_PATH)) != 0)
        ReportUnsupported("LoadLibraryExA flags");
    std::vector<std::string> files;
    {
        std::lock_guard lock(Table().mutex);
        files = Candidates(name);
    }
    for (const std::string& file : files) {
        std::error_code error;
        if (!std::filesystem::is_regular_file(file, error)) continue;
        // Start-up code of the library may use modules: the table is free meanwhile.
        void* library = dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL);
        if (library == nullptr) {
            SetLastError(ERROR_BAD_FORMAT);
            return nullptr;
        }
        std::lock_guard lock(Table().mutex);
        link_map* map = nullptr;
        Module* module =
            dlinfo(library, RTLD_DI_LINKMAP, &map) == 0 ? ModuleAt(map->l_ld) : nullptr;
        if (module == nullptr) {
            dlclose(library);
            SetLastError(ERROR_BAD_FORMAT);
            return nullptr;
        }
        module->library = library;
        ++module->references;
        return HandleOf(module);
    }
    SetLastError(ERROR_MOD_NOT_FOUND);
    return nullptr;
}

BOOL FreeLibrary(HMODULE handle) {
    void* library = nullptr;
    {
        std::lock_guard lock(Table().mutex);
        Module* module = handle == nullptr ? nullptr : ModuleOf(handle);
        if (module == nullptr || module->references == 0) {
            SetLastError(ERROR_INVALID_HANDLE);
            return FALSE;
        }
        library = module->library;
        if (--module->references == 0)
            Table().modules.remove_if([module](const Module& m) { return &m == module; });
    }
    dlclose(library);
    return TRUE;
}

FARPROC GetProcAddress(HMODULE handle, LPCSTR name) {
    if (IsSystemModule(handle)) return SystemFunction(handle, name);
    std::lock_guard lock(Table().mutex);
    const Module* module = ModuleOf(handle);
    if (module == nullptr) {
        SetLastError(ERROR_INVALID_HANDLE);
        return nullptr;
    }
    const std::string symbol =
        IS_INTRESOURCE(name) ? "Ordinal" + std::to_string(LOWORD(reinterpret_cast<ULONG_PTR>(name)))
                             : name;
    void* library = module->library;
    // A module that was not loaded by name: the program itself or one that it was linked with.
    void* opened = nullptr;
    if (library == nullptr) {
        opened = handle == ProgramModule() ? dlopen(nullptr, RTLD_NOW)
                                           : dlopen(module->path.c_str(), RTLD_NOW | RTLD_NOLOAD);
        library = opened;
    }
    void* found = library == nullptr ? nullptr : dlsym(library, symbol.c_str());
    // Here a name with an at sign is a name with a version.
    if (const auto at = symbol.find('@');
        library != nullptr && found == nullptr && at != std::string::npos && at > 0) {
        found = dlvsym(library, symbol.substr(0, at).c_str(), symbol.c_str() + at + 1);
    }
    if (opened != nullptr) dlclose(opened);
    if (found == nullptr) SetLastError(ERROR_PROC_NOT_FOUND);
    return reinterpret_cast<FARPROC>(found);
}

// --- Resources -------------------------------------------------------------------------------

HRSRC FindResourceA(HMODULE module, LPCSTR name, LPCSTR type) {
    const ResourceName wantedType = NameFromCaller(type);
    const ResourceEntry* entry = FindEntry(module, wantedType, NameFromCaller(name));
    if (entry == nullptr) SetLastError(ERROR_RESOURCE_NAME_NOT_FOUND);
    return reinterpret_cast<HRSRC>(const_cast<ResourceEntry*>(entry));
}

namespace {

// Handles of resources are looked up again: a wrong one is refused.
const ResourceEntry* EntryOf(HRSRC resource) {
    std::lock_guard lock(Table().mutex);
    for (const Module& module : Table().modules) {
        for (const Added& added : module.resources) {
            const auto& entries = added.list.entries;
            const auto* entry = reinterpret_cast<const ResourceEntry*>(resource);
            const std::less<const ResourceEntry*> before;
            if (!entries.empty() && !before(entry, entries.data()) &&
                before(entry, entries.data() + entries.size()))
                return entry;
        }
    }
    SetLastError(ERROR_INVALID_HANDLE);
    return nullptr;
}

}  // namespace

HGLOBAL LoadResource(HMODULE, HRSRC resource) {
    const ResourceEntry* entry = EntryOf(resource);
    return entry == nullptr ? nullptr : const_cast<std::uint8_t*>(entry->data);
}

LPVOID LockResource(HGLOBAL resource) {
    return resource;
}

DWORD SizeofResource(HMODULE, HRSRC resource) {
    const ResourceEntry* entry = EntryOf(resource);
    return entry == nullptr ? 0 : static_cast<DWORD>(entry->size);
}

BOOL EnumResourceNamesA(HMODULE handle, LPCSTR type, ENUMRESNAMEPROCA proc, LONG_PTR param) {
    if (proc == nullptr) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return FALSE;
    }
    const ResourceName wanted = NameFromCaller(type);
    std::vector<ResourceName> names;
    {
        std::lock_guard lock(Table().mutex);
        const Module* module = ModuleOf(handle);
        if (module == nullptr) return FALSE;
        for (const Added& added : module->resources) {
            for (const ResourceEntry& entry : added.list.entries) {
                if (SameResourceName(entry.type, wanted)) names.push_back(entry.name);
            }
        }
    }
    if (names.empty()) {
        SetLastError(ERROR_RESOURCE_TYPE_NOT_FOUND);
        return FALSE;
    }
    for (ResourceName& name : names) {
        const LPSTR given = name.isNumber ? MAKEINTRESOURCEA(name.number) : name.text.data();
        if (!proc(handle, type, given, param)) return FALSE;
    }
    return TRUE;
}

int LoadStringA(HINSTANCE instance, UINT id, LPSTR buffer, int size) {
    if (buffer == nullptr || size < 0) return 0;
    if (size > 0) buffer[0] = '\0';
    ResourceName block;
    block.number = static_cast<WORD>(((id & 0xFFFF) >> 4) + 1);
    const ResourceEntry* entry = FindEntry(instance, NameFromCaller(RT_STRING), block);
    std::string text;
    if (entry == nullptr || !StringInBlock(entry->data, entry->size, id & 15, text) ||
        text.empty()) {
        SetLastError(ERROR_RESOURCE_NAME_NOT_FOUND);
        return 0;
    }
    if (size == 0) return 0;
    const auto length = std::min<std::size_t>(text.size(), static_cast<std::size_t>(size) - 1);
    std::memcpy(buffer, text.data(), length);
    buffer[length] = '\0';
    return static_cast<int>(length);
}
