// The registry's keys and values in memory, and the text files that keep them.
//
// The keys of one application, which are those from the third level on below a root
// ("Software\branch\application"), stand in one file of the folder <home>/registry; a key above
// that level has a file of its own. A file is written whole to a temporary file that takes its
// name, so that a crash leaves the old one or the new one. A file that can't be read as a whole is
// left alone: its keys can be neither opened nor made.
//
// File format: a first line "ZX registry 1"; then for each key a line "[path]" (bytes below 32 and
// "%" as %xx), and below it a line for each value: type, name in quotes and data, as a text in
// quotes or as hexadecimal digits behind "x"; a last line "end". In quotes, bytes below 32, the
// quote and the backslash are written as \xx in hexadecimal.
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace headless {

struct RegistryValue {
    std::string name;
    std::uint32_t type = 0;
    std::string data;
};

struct RegistryNode {
    std::string name;
    RegistryNode* parent = nullptr;
    std::map<std::string, std::shared_ptr<RegistryNode>> children;  // by name in small letters
    std::vector<RegistryValue> values;
    std::map<std::string, std::size_t> valueIndex;  // by name in small letters
    bool deleted = false;

    RegistryValue* Find(std::string_view valueName);
    void Set(std::string_view valueName, std::uint32_t type, std::string_view data);
    bool Remove(std::string_view valueName);
};

// Small ASCII letters: names of keys and values do not know case.
std::string FoldName(std::string_view name);

// Writes one file's keys, and reads them into a tree of paths. Reading returns false for a text
// that is not whole and well formed.
struct RegistryFileKey {
    std::string path;
    std::vector<RegistryValue> values;
};
std::string FormatRegistryFile(const std::vector<RegistryFileKey>& keys);
bool ParseRegistryFile(std::string_view text, std::vector<RegistryFileKey>* keys);

// All keys below the predefined roots. Reads the files anew when another process has changed them
// and no handle is open.
class RegistryStore {
  public:
    static RegistryStore& Get();

    // To be called before a path is looked up. `openHandles` tells whether keys are in use.
    void Refresh(bool openHandles);

    // The node of a root ("HKCU") and a key below a node. Creating makes the keys on the way.
    // `broken` is set when the key belongs to a file that can't be read.
    std::shared_ptr<RegistryNode> Root(const std::string& name);
    std::shared_ptr<RegistryNode> Open(std::shared_ptr<RegistryNode> node, std::string_view path,
                                       bool create, bool* created, bool* broken);

    // Whether keys can be kept at all: the folder is there or can be made.
    bool IsWritable();

    // Marks the file of a node as changed, and writes the changed files. Writing returns false when
    // one could not be written; it stays marked.
    void Touch(const RegistryNode* node);
    bool Save();

    // Removes a key with everything below it.
    void Delete(const std::shared_ptr<RegistryNode>& node);

  private:
    struct Stamp {
        std::string home;
        long long seconds = 0;
        long nanoseconds = 0;
        bool operator==(const Stamp&) const = default;
    };

    Stamp Look() const;
    void Load();
    bool SaveFile(const std::string& path);
    std::shared_ptr<RegistryNode> FindPath(const std::string& path);

    std::map<std::string, std::shared_ptr<RegistryNode>> m_roots;
    std::map<std::string, std::string>
        m_dirty;                           // path in small letters -> path of the changed files
    std::map<std::string, bool> m_broken;  // paths in small letters of unreadable files
    Stamp m_stamp;
    bool m_loaded = false;
};

}  // namespace headless
