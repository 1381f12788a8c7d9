#include "platform/headless/system/registry_store.h"

#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>

#include "platform/headless/system/paths.h"

namespace headless {
namespace {

constexpr int kAppLevel = 3;  // keys from this level on share their application's file

std::string Folder() {
    return Home() + "/registry";
}

std::string PathOf(const RegistryNode* node) {
    if (node->parent == nullptr) return node->name;
    return PathOf(node->parent) + "\\" + node->name;
}

// The path of the file's own key: the root and at most three levels.
std::string UnitOf(const std::string& path) {
    std::size_t end = 0;
    for (int level = 0; level <= kAppLevel; ++level) {
        end = path.find('\\', end);
        if (end == std::string::npos) return path;
        if (level < kAppLevel) ++end;
    }
    return path.substr(0, end);
}

int LevelOf(const std::string& path) {
    int level = 0;
    for (const char ch : path) level += ch == '\\';
    return level;
}

// A file name of letters, digits and the few other signs that every system takes.
std::string FileOf(const std::string& unit) {
    std::string name;
    for (const char ch : FoldName(unit)) {
        const bool plain =
            (ch >= 'a' && ch <= 'z') || (ch >= '0' && ch <= '9') || ch == '-' || ch == '_';
        if (plain) {
            name += ch;
        } else {
            name += '%';
            name += "0123456789abcdef"[static_cast<unsigned char>(ch) >> 4];
            name += "0123456789abcdef"[static_cast<unsigned char>(ch) & 15];
        }
    }
    return Folder() + "/" + name + ".txt";
}

// The path for which FileOf made a name.
std::string UnitOfFile(const std::string& name) {
    std::string unit;
    for (std::size_t i = 0; i < name.size(); ++i) {
        if (name[i] != '%' || i + 2 >= name.size()) {
            unit += name[i];
            continue;
        }
        const auto digit = [](char ch) { return ch <= '9' ? ch - '0' : ch - 'a' + 10; };
        unit += static_cast<char>(digit(name[i + 1]) << 4 | digit(name[i + 2]));
        i += 2;
    }
    return unit;
}

void Collect(const RegistryNode& node, const std::string& path, bool below,
             std::vector<RegistryFileKey>* keys) {
    keys->push_back({path, node.values});
    if (!below) return;
    for (const auto& [name, child] : node.children) {
        Collect(*child, path + "\\" + child->name, true, keys);
    }
}

void MarkDeleted(RegistryNode& node) {
    node.deleted = true;
    for (const auto& [name, child] : node.children) MarkDeleted(*child);
}

}  // namespace

std::string FoldName(std::string_view name) {
    std::string folded(name);
    for (char& ch : folded) {
        if (ch >= 'A' && ch <= 'Z') ch = static_cast<char>(ch + ('a' - 'A'));
    }
    return folded;
}

RegistryValue* RegistryNode::Find(std::string_view valueName) {
    const auto found = valueIndex.find(FoldName(valueName));
    return found != valueIndex.end() ? &values[found->second] : nullptr;
}

void RegistryNode::Set(std::string_view valueName, std::uint32_t type, std::string_view data) {
    const auto [place, added] = valueIndex.try_emplace(FoldName(valueName), values.size());
    if (added) values.push_back({std::string(valueName), 0, {}});
    RegistryValue& value = values[place->second];
    value.type = type;
    value.data = data;
}

bool RegistryNode::Remove(std::string_view valueName) {
    const auto found = valueIndex.find(FoldName(valueName));
    if (found == valueIndex.end()) return false;
    const std::size_t place = found->second;
    values.erase(values.begin() + static_cast<std::ptrdiff_t>(place));
    valueIndex.erase(found);
    for (auto& [folded, index] : valueIndex) {
        if (index > place) --index;
    }
    return true;
}

RegistryStore& RegistryStore::Get() {
    static RegistryStore store;
    return store;
}

RegistryStore::Stamp RegistryStore::Look() const {
    Stamp stamp;
    stamp.home = Home();
    struct stat state = {};
    if (stat(Folder().c_str(), &state) == 0) {
        stamp.seconds = state.st_mtim.tv_sec;
        stamp.nanoseconds = state.st_mtim.tv_nsec;
    }
    return stamp;
}

void RegistryStore::Refresh(bool openHandles) {
    if (m_loaded && (openHandles || !m_dirty.empty() || m_stamp == Look())) return;
    Load();
}

void RegistryStore::Load() {
    m_roots.clear();
    m_broken.clear();
    m_dirty.clear();
    m_loaded = true;
    m_stamp = Look();
    // Every user and machine has this key.
    for (const char* root : {"HKCU", "HKLM"}) {
        bool created = false;
        bool broken = false;
        Open(Root(root), "Software", true, &created, &broken);
    }
    m_dirty.clear();
    std::error_code error;
    for (std::filesystem::directory_iterator it(Folder(), error), end; !error && it != end;
         it.increment(error)) {
        if (it->path().extension() != ".txt") continue;
        const std::string unit = UnitOfFile(it->path().stem().string());
        std::string text;
        std::vector<RegistryFileKey> keys;
        bool good = ReadFileText(it->path().string(), &text) == 0 && ParseRegistryFile(text, &keys);
        for (const RegistryFileKey& key : keys) good = good && FoldName(UnitOf(key.path)) == unit;
        if (!good) {
            m_broken[unit] = true;
            continue;
        }
        for (const RegistryFileKey& key : keys) {
            const std::shared_ptr<RegistryNode> node = FindPath(key.path);
            for (const RegistryValue& value : key.values)
                node->Set(value.name, value.type, value.data);
        }
    }
    m_dirty.clear();
}

// Finds a full path, made as needed.
std::shared_ptr<RegistryNode> RegistryStore::FindPath(const std::string& path) {
    const std::size_t end = path.find('\\');
    bool created = false;
    bool broken = false;
    std::shared_ptr<RegistryNode> node = Root(path.substr(0, end));
    if (end == std::string::npos) return node;
    if (std::shared_ptr<RegistryNode> found =
            Open(node, path.substr(end + 1), true, &created, &broken)) {
        return found;
    }
    return node;
}

std::shared_ptr<RegistryNode> RegistryStore::Root(const std::string& name) {
    std::shared_ptr<RegistryNode>& node = m_roots[name];
    if (node == nullptr) {
        node = std::make_shared<RegistryNode>();
        node->name = name;
    }
    return node;
}

std::shared_ptr<RegistryNode> RegistryStore::Open(std::shared_ptr<RegistryNode> node,
                                                  std::string_view path, bool create, bool* created,
                                                  bool* broken) {
    *created = false;
    *broken = false;
    if (!m_broken.empty()) {
        const std::string full = PathOf(node.get()) + "\\" + std::string(path);
        if (m_broken.count(FoldName(UnitOf(full))) != 0) {
            *broken = true;
            return nullptr;
        }
    }
    while (!path.empty()) {
        const std::size_t end = path.find('\\');
        const std::string_view part = path.substr(0, end);
        path.remove_prefix(end == std::string_view::npos ? path.size() : end + 1);
        if (part.empty()) continue;
        const std::string folded = FoldName(part);
        const auto found = node->children.find(folded);
        if (found != node->children.end()) {
            node = found->second;
            continue;
        }
        if (!create) return nullptr;
        auto child = std::make_shared<RegistryNode>();
        child->name = part;
        child->parent = node.get();
        node->children[folded] = child;
        node = child;
        Touch(node.get());
        *created = true;
    }
    return node;
}

bool RegistryStore::IsWritable() {
    std::error_code error;
    std::filesystem::create_directories(Folder(), error);
    return std::filesystem::is_directory(Folder(), error) && access(Folder().c_str(), W_OK) == 0;
}

void RegistryStore::Touch(const RegistryNode* node) {
    const std::string unit = UnitOf(PathOf(node));
    m_dirty[FoldName(unit)] = unit;
}

bool RegistryStore::SaveFile(const std::string& path) {
    std::shared_ptr<RegistryNode> node = Root(path.substr(0, path.find('\\')));
    const std::size_t end = path.find('\\');
    if (end != std::string::npos) {
        bool created = false;
        bool broken = false;
        node = Open(node, path.substr(end + 1), false, &created, &broken);
        if (broken) return false;
    }
    const std::string file = FileOf(path);
    if (node == nullptr) {
        unlink(file.c_str());
        return true;
    }
    std::vector<RegistryFileKey> keys;
    Collect(*node, PathOf(node.get()), LevelOf(path) >= kAppLevel, &keys);
    return ReplaceFileText(file, FormatRegistryFile(keys)) == 0;
}

bool RegistryStore::Save() {
    if (m_dirty.empty()) return true;
    if (!IsWritable()) return false;
    for (auto it = m_dirty.begin(); it != m_dirty.end();) {
        if (!SaveFile(it->second)) return false;
        it = m_dirty.erase(it);
    }
    m_stamp = Look();
    return true;
}

void RegistryStore::Delete(const std::shared_ptr<RegistryNode>& node) {
    // Applications have files of their own below a key that is none.
    std::vector<const RegistryNode*> pending = {node.get()};
    while (!pending.empty()) {
        const RegistryNode* next = pending.back();
        pending.pop_back();
        Touch(next);
        for (const auto& [name, child] : next->children) pending.push_back(child.get());
    }
    MarkDeleted(*node);
    if (node->parent != nullptr) node->parent->children.erase(FoldName(node->name));
}

}  // namespace headless
