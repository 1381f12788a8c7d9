// A fixture for tests that must hold in both media of the store.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "fixtures/ScratchStore.h"
#include "platform/platform.h"
#include "store/ProfileStore.h"
#include "text/BoundedText.h"

class StoreTest : public testing::Test {
  protected:
    StoreTest()
        : m_variable(kRegistryRootVariable, nullptr),
          m_hOldRoot(g_hRootKey),
          m_bOldUse(g_bUseProfileFile) {
        CopyText(m_szOldBranch, g_szRegistryRoot);
        SetRegistryRoot(Branch().c_str());
    }
    ~StoreTest() override {
        g_hRootKey = m_hOldRoot;
        g_bUseProfileFile = m_bOldUse;
        CopyText(g_szRegistryRoot, m_szOldBranch);
    }

    // The branch below "Software" that belongs to this test.
    std::string Branch() const { return m_scratch.RegistryBranch().substr(9); }

    // Runs the same steps on a registry key and on a profile file.
    void InBothMedia(const std::function<void(const char* szApp)>& steps) {
        {
            SCOPED_TRACE("registry");
            SetUseProfileFile(false);
            steps("App");
        }
        {
            SCOPED_TRACE("profile file");
            SetUseProfileFile(true);
            steps(m_scratch.ProfileFile().c_str());
        }
    }

    const char* UseProfile() {
        SetUseProfileFile(true);
        return m_scratch.ProfileFile().c_str();
    }

    static std::string Text(const char* szSection, const char* szKey, const char* szApp) {
        char szText[2000];
        return ReadString(szSection, szKey, "(missing)", szText, sizeof szText, szApp)
                   ? szText
                   : "(missing)";
    }

    test_support::ScratchStore m_scratch;

  private:
    test_support::ScopedEnvironment m_variable;
    HKEY m_hOldRoot;
    bool m_bOldUse;
    char m_szOldBranch[64];
};
