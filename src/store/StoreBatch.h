// A scope that opens the store once for many values:
//
//     StoreBatch batch(szApp);
//     WriteInt32("Section", "Key", 1, szApp);   // as always
//     ...
//
// While the scope lives, the operations of ProfileStore.h on the same `szApp` share one open
// section key (registry) or work on the file's text in memory (profile), and reads see the writes
// made before them. At its end nothing is left open. In profile mode the text then goes to a file
// of its own beside the old one and takes its place in one step: after a crash there is the old
// file or the new one, never a mix. Foreign keys, comments, other sections and all orders stay.
// Nothing is written when nothing changed.
//
// Scopes may nest; one for an `szApp` that has a scope already joins it. A file in a Unicode
// encoding is left to the platform's own functions, value by value.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "platform/platform.h"
#include "text/ProfileText.h"

class StoreBatch {
  public:
    explicit StoreBatch(const char* szApp);
    ~StoreBatch();
    StoreBatch(const StoreBatch&) = delete;
    StoreBatch& operator=(const StoreBatch&) = delete;

    // Brings the writes so far to the medium and closes it; the scope may go on. Returns whether
    // all of them are there. A scope that joined another leaves this to it.
    bool Commit();

    // The scope that serves `szApp` in the present mode, or null. For the store's own operations.
    static StoreBatch* Find(const char* szApp);

    // Registry mode: the section's key, which the scope owns; null if it can't be opened.
    HKEY SectionKey(const char* szSection, bool bWrite);
    void CloseKey();

    // Profile mode: the file's text, or null when the platform's functions must serve it.
    ProfileText* Profile();

    // Closes the keys that scopes hold: the root or the branch is about to change.
    static void CloseAllKeys();

  private:
    bool SaveProfile();

    std::string m_sApp;
    bool m_bProfile;
    bool m_bJoined;
    StoreBatch* m_pOuter;

    HKEY m_hKey = nullptr;
    bool m_bKeyWrites = false;
    std::string m_sSection;

    std::string m_sPath;
    std::unique_ptr<ProfileText> m_pText;
    bool m_bLoaded = false;
};
