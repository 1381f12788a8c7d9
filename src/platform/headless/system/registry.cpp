// The registry functions, over keys that are kept in text files. Changes reach the files when a key
// that was open for writing is closed or flushed.
#include <cstring>
#include <memory>
#include <string>
#include <unordered_map>

#include "platform/headless/system/registry_store.h"
#include "zxadlg/headless/diagnostics.h"
#include "zxadlg/headless/names.h"

namespace {

using headless::RegistryNode;
using headless::RegistryStore;
using headless::RegistryValue;

constexpr LSTATUS kBadPathName = 161;  // a path that begins with a backslash

struct OpenKey {
    std::shared_ptr<RegistryNode> node;
    REGSAM access;
};

std::unordered_map<HKEY, OpenKey>& OpenKeys() {
    static std::unordered_map<HKEY, OpenKey> keys;
    return keys;
}

const char* RootName(HKEY key) {
    if (key == HKEY_CURRENT_USER) return "HKCU";
    if (key == HKEY_LOCAL_MACHINE) return "HKLM";
    if (key == HKEY_CLASSES_ROOT) return "HKCR";
    if (key == HKEY_USERS) return "HKU";
    return nullptr;
}

// The node of a handle. Returns the platform's error.
LSTATUS Resolve(HKEY key, OpenKey* result) {
    if (const char* root = RootName(key)) {
        RegistryStore::Get().Refresh(!OpenKeys().empty());
        *result = {RegistryStore::Get().Root(root), KEY_ALL_ACCESS};
        return ERROR_SUCCESS;
    }
    const auto found = OpenKeys().find(key);
    if (found == OpenKeys().end()) return ERROR_INVALID_HANDLE;
    *result = found->second;
    return result->node->deleted ? ERROR_KEY_DELETED : ERROR_SUCCESS;
}

HKEY MakeHandle(std::shared_ptr<RegistryNode> node, REGSAM access) {
    static std::uintptr_t next = 0x100;
    next += 4;
    const HKEY key = reinterpret_cast<HKEY>(next);
    OpenKeys()[key] = {std::move(node), access};
    return key;
}

LSTATUS SaveNow() {
    return RegistryStore::Get().Save() ? ERROR_SUCCESS : ERROR_ACCESS_DENIED;
}

// A change through a predefined root has no handle whose closing would save it.
LSTATUS SaveIfRoot(HKEY key) {
    return RootName(key) != nullptr ? SaveNow() : ERROR_SUCCESS;
}

LSTATUS OpenOrCreate(HKEY key, LPCSTR subKey, REGSAM access, bool create, HKEY* result,
                     bool* created) {
    if (result == nullptr) return ERROR_INVALID_PARAMETER;
    *result = nullptr;
    OpenKey base;
    const LSTATUS status = Resolve(key, &base);
    if (status != ERROR_SUCCESS) return status;
    const std::string path = subKey != nullptr ? subKey : "";
    if (!path.empty() && path[0] == '\\') return kBadPathName;
    RegistryStore& store = RegistryStore::Get();
    if (create && !store.IsWritable()) return ERROR_ACCESS_DENIED;
    bool broken = false;
    std::shared_ptr<RegistryNode> node = store.Open(base.node, path, create, created, &broken);
    if (broken) return ERROR_BAD_FORMAT;
    if (node == nullptr) return ERROR_FILE_NOT_FOUND;
    *result = MakeHandle(std::move(node), access);
    return ERROR_SUCCESS;
}

// Copies data into a caller's buffer, whose size is given and taken.
LSTATUS DeliverData(const RegistryValue& value, DWORD* type, BYTE* data, DWORD* size) {
    if (type != nullptr) *type = value.type;
    if (size == nullptr) return data == nullptr ? ERROR_SUCCESS : ERROR_INVALID_PARAMETER;
    // A text stored without a zero gets one.
    const bool text = value.type == REG_SZ || value.type == REG_EXPAND_SZ;
    const bool open = text && (value.data.empty() || value.data.back() != '\0');
    const DWORD room = *size;
    *size = static_cast<DWORD>(value.data.size()) + (open ? 1 : 0);
    if (data == nullptr) return ERROR_SUCCESS;
    if (room < *size) return ERROR_MORE_DATA;
    std::memcpy(data, value.data.data(), value.data.size());
    if (open) data[value.data.size()] = 0;
    return ERROR_SUCCESS;
}

LSTATUS DeliverName(const std::string& text, LPSTR name, DWORD* nameSize) {
    if (name == nullptr || nameSize == nullptr) return ERROR_INVALID_PARAMETER;
    if (*nameSize <= text.size()) return ERROR_MORE_DATA;
    std::memcpy(name, text.c_str(), text.size() + 1);
    *nameSize = static_cast<DWORD>(text.size());
    return ERROR_SUCCESS;
}

LSTATUS DeleteKey(HKEY key, LPCSTR subKey, bool withChildren) {
    OpenKey base;
    const LSTATUS status = Resolve(key, &base);
    if (status != ERROR_SUCCESS) return status;
    RegistryStore& store = RegistryStore::Get();
    bool created = false;
    bool broken = false;
    const std::shared_ptr<RegistryNode> node =
        store.Open(base.node, subKey, false, &created, &broken);
    if (broken) return ERROR_BAD_FORMAT;
    if (node == nullptr) return ERROR_FILE_NOT_FOUND;
    if (node->parent == nullptr || (!withChildren && !node->children.empty())) {
        return ERROR_ACCESS_DENIED;
    }
    store.Delete(node);
    return SaveIfRoot(key);
}

}  // namespace

LSTATUS RegOpenKeyExA(HKEY key, LPCSTR subKey, DWORD, REGSAM access, HKEY* result) {
    bool created = false;
    return OpenOrCreate(key, subKey, access, false, result, &created);
}

LSTATUS RegCreateKeyExA(HKEY key, LPCSTR subKey, DWORD, LPSTR, DWORD options, REGSAM access, void*,
                        HKEY* result, DWORD* disposition) {
    if (options != REG_OPTION_NON_VOLATILE) {
        headless::ReportUnsupported("RegCreateKeyExA options " + std::to_string(options));
        return ERROR_INVALID_PARAMETER;
    }
    bool created = false;
    const LSTATUS status = OpenOrCreate(key, subKey, access, true, result, &created);
    if (status == ERROR_SUCCESS && disposition != nullptr) {
        *disposition = created ? REG_CREATED_NEW_KEY : REG_OPENED_EXISTING_KEY;
    }
    return status;
}

LSTATUS RegCloseKey(HKEY key) {
    if (RootName(key) != nullptr) return ERROR_SUCCESS;
    if (OpenKeys().erase(key) == 0) return ERROR_INVALID_HANDLE;
    return SaveNow();
}

LSTATUS RegFlushKey(HKEY key) {
    OpenKey open;
    const LSTATUS status = Resolve(key, &open);
    return status != ERROR_SUCCESS ? status : SaveNow();
}

LSTATUS RegDeleteKeyA(HKEY key, LPCSTR subKey) {
    if (subKey == nullptr) return ERROR_INVALID_PARAMETER;
    return DeleteKey(key, subKey, false);
}

LSTATUS RegDeleteTreeA(HKEY key, LPCSTR subKey) {
    if (subKey != nullptr && *subKey != '\0') return DeleteKey(key, subKey, true);
    OpenKey open;
    const LSTATUS status = Resolve(key, &open);
    if (status != ERROR_SUCCESS) return status;
    RegistryStore& store = RegistryStore::Get();
    while (!open.node->children.empty()) {
        const std::shared_ptr<RegistryNode> child = open.node->children.begin()->second;
        store.Delete(child);
    }
    open.node->values.clear();
    open.node->valueIndex.clear();
    store.Touch(open.node.get());
    return SaveIfRoot(key);
}

LSTATUS RegDeleteValueA(HKEY key, LPCSTR name) {
    OpenKey open;
    const LSTATUS status = Resolve(key, &open);
    if (status != ERROR_SUCCESS) return status;
    if ((open.access & KEY_SET_VALUE) == 0) return ERROR_ACCESS_DENIED;
    if (!open.node->Remove(name != nullptr ? name : "")) return ERROR_FILE_NOT_FOUND;
    RegistryStore::Get().Touch(open.node.get());
    return SaveIfRoot(key);
}

LSTATUS RegSetValueExA(HKEY key, LPCSTR name, DWORD, DWORD type, const BYTE* data, DWORD size) {
    OpenKey open;
    const LSTATUS status = Resolve(key, &open);
    if (status != ERROR_SUCCESS) return status;
    if ((open.access & KEY_SET_VALUE) == 0) return ERROR_ACCESS_DENIED;
    if (data == nullptr && size != 0) return ERROR_INVALID_PARAMETER;
    open.node->Set(name != nullptr ? name : "", type,
                   std::string_view(reinterpret_cast<const char*>(data), size));
    RegistryStore::Get().Touch(open.node.get());
    return SaveIfRoot(key);
}

LSTATUS RegQueryValueExA(HKEY key, LPCSTR name, DWORD*, DWORD* type, BYTE* data, DWORD* size) {
    OpenKey open;
    const LSTATUS status = Resolve(key, &open);
    if (status != ERROR_SUCCESS) return status;
    if ((open.access & KEY_QUERY_VALUE) == 0) return ERROR_ACCESS_DENIED;
    const RegistryValue* value = open.node->Find(name != nullptr ? name : "");
    if (value == nullptr) return ERROR_FILE_NOT_FOUND;
    return DeliverData(*value, type, data, size);
}

LSTATUS RegEnumKeyExA(HKEY key, DWORD index, LPSTR name, DWORD* nameSize, DWORD*, LPSTR, DWORD*,
                      void*) {
    OpenKey open;
    const LSTATUS status = Resolve(key, &open);
    if (status != ERROR_SUCCESS) return status;
    if (index >= open.node->children.size()) return ERROR_NO_MORE_ITEMS;
    return DeliverName(std::next(open.node->children.begin(), index)->second->name, name, nameSize);
}

LSTATUS RegEnumValueA(HKEY key, DWORD index, LPSTR name, DWORD* nameSize, DWORD*, DWORD* type,
                      BYTE* data, DWORD* dataSize) {
    OpenKey open;
    LSTATUS status = Resolve(key, &open);
    if (status != ERROR_SUCCESS) return status;
    if (index >= open.node->values.size()) return ERROR_NO_MORE_ITEMS;
    const RegistryValue& value = open.node->values[index];
    status = DeliverName(value.name, name, nameSize);
    return status != ERROR_SUCCESS ? status : DeliverData(value, type, data, dataSize);
}
