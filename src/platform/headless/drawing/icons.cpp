// Icons and cursors: handles that stand for the system's own and for those of a module's resources.
// There is no picture behind one; DrawIcon records its handle.
#include <map>
#include <mutex>
#include <string>

#include "platform/headless/system/module_table.h"
#include "zxadlg/headless/functions.h"

namespace {

using namespace headless;

constexpr std::uintptr_t kSystemIcons = 0x30000;
constexpr std::uintptr_t kSystemCursors = 0x40000;
constexpr std::uintptr_t kOwnIcons = 0x50010;

struct IconTable {
    std::mutex mutex;
    // By entry, so that a second load gives the same handle, as for all that the platform shares.
    std::map<const ResourceEntry*, HICON> loaded;
    std::uintptr_t next = kOwnIcons;
};

IconTable& Icons() {
    static auto* table = new IconTable;
    return *table;
}

HICON Load(HINSTANCE instance, LPCSTR name, LPCSTR group, std::uintptr_t system, WORD first,
           WORD last) {
    if (name == nullptr) {
        SetLastError(ERROR_RESOURCE_NAME_NOT_FOUND);
        return nullptr;
    }
    if (instance == nullptr) {
        const ResourceName number = NameFromCaller(name);
        if (number.isNumber && number.number >= first && number.number <= last)
            return reinterpret_cast<HICON>(system + number.number * 2u);
        SetLastError(ERROR_RESOURCE_NAME_NOT_FOUND);
        return nullptr;
    }
    const ResourceEntry* entry = FindEntry(instance, NameFromCaller(group), NameFromCaller(name));
    if (entry == nullptr) {
        SetLastError(ERROR_RESOURCE_NAME_NOT_FOUND);
        return nullptr;
    }
    std::lock_guard lock(Icons().mutex);
    const auto [place, added] = Icons().loaded.try_emplace(entry, nullptr);
    if (added) {
        place->second = reinterpret_cast<HICON>(Icons().next);
        Icons().next += 2;
    }
    return place->second;
}

}  // namespace

HICON LoadIconA(HINSTANCE instance, LPCSTR name) {
    return Load(instance, name, RT_GROUP_ICON, kSystemIcons, 32512, 32518);
}

HCURSOR LoadCursorA(HINSTANCE instance, LPCSTR name) {
    return Load(instance, name, RT_GROUP_CURSOR, kSystemCursors, 32512, 32651);
}
