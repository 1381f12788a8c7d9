// Batches: the same results as value by value, one opening, and files that are never half written.
#include <cstring>
#include <filesystem>

#include "store/StoreBatch.h"
#include "store_test.h"

namespace {

using StoreBatchTest = StoreTest;

constexpr char kForeign[] =
    "; kept by hand\r\n"
    "loose=1\r\n"
    "[Other]\r\n"
    "x = 1 \r\n"
    "\r\n"
    "[Section]\r\n"
    "  ; a comment\r\n"
    "Foreign = stays as it is \r\n"
    "Known=old\r\n"
    "Known=second\r\n"
    "\r\n"
    "[Last]\r\n"
    "y=2";

TEST_F(StoreBatchTest, ReadsSeeTheWritesOfTheBatch) {
    InBothMedia([](const char* szApp) {
        WriteString("Section", "Old", "before", szApp);
        StoreBatch batch(szApp);
        EXPECT_EQ(Text("Section", "Old", szApp), "before");
        EXPECT_TRUE(WriteInt32("Section", "New", 5, szApp));
        EXPECT_TRUE(WriteString("Section", "Empty", "", szApp));
        EXPECT_EQ(Text("Section", "New", szApp), "5");
        EXPECT_EQ(Text("Section", "Empty", szApp), "");
        EXPECT_TRUE(WriteString("Section", "New", nullptr, szApp));
        EXPECT_EQ(Text("Section", "New", szApp), "(missing)");
        EXPECT_TRUE(WriteString("Section", "New", "again", szApp));
        EXPECT_TRUE(batch.Commit());
        EXPECT_EQ(Text("Section", "New", szApp), "again");
        EXPECT_EQ(Text("Section", "Old", szApp), "before");
    });
}

TEST_F(StoreBatchTest, ValuesReachTheMediumAtTheEnd) {
    const char* szApp = UseProfile();
    {
        StoreBatch batch(szApp);
        WriteString("Section", "Key", "1", szApp);
        EXPECT_EQ(m_scratch.ReadFile(), "");
    }
    EXPECT_EQ(m_scratch.ReadFile(), "[Section]\r\nKey=1\r\n");
    EXPECT_EQ(Text("Section", "Key", szApp), "1");
}

TEST_F(StoreBatchTest, ForeignTextKeepsEveryByte) {
    const char* szApp = UseProfile();
    m_scratch.WriteFile(kForeign);
    {
        StoreBatch batch(szApp);
        WriteString("section", "known", "new", szApp);
        WriteString("Section", "Added", "1", szApp);
        WriteString("Fresh", "Key", "2", szApp);
    }
    EXPECT_EQ(m_scratch.ReadFile(),
              "; kept by hand\r\n"
              "loose=1\r\n"
              "[Other]\r\n"
              "x = 1 \r\n"
              "\r\n"
              "[Section]\r\n"
              "  ; a comment\r\n"
              "Foreign = stays as it is \r\n"
              "Known=new\r\n"
              "Known=second\r\n"
              "Added=1\r\n"
              "\r\n"
              "[Last]\r\n"
              "y=2\r\n"
              "[Fresh]\r\n"
              "Key=2\r\n");
}

TEST_F(StoreBatchTest, LastWriteOfAKeyWins) {
    InBothMedia([](const char* szApp) {
        {
            StoreBatch batch(szApp);
            for (int i = 0; i < 24; ++i) WriteInt32("Section", "AllGroupsPeakPolarity", i, szApp);
        }
        EXPECT_EQ(Text("Section", "AllGroupsPeakPolarity", szApp), "23");
    });
    EXPECT_EQ(m_scratch.ReadFile(), "[Section]\r\nAllGroupsPeakPolarity=23\r\n");
}

TEST_F(StoreBatchTest, UnchangedValuesWriteNothing) {
    const char* szApp = UseProfile();
    m_scratch.WriteFile(kForeign);
    const auto before = std::filesystem::last_write_time(m_scratch.ProfileFile());
    std::filesystem::last_write_time(m_scratch.ProfileFile(), before - std::chrono::hours(1));
    const auto old = std::filesystem::last_write_time(m_scratch.ProfileFile());
    {
        StoreBatch batch(szApp);
        EXPECT_TRUE(WriteString("Section", "Known", "old", szApp));
        EXPECT_TRUE(batch.Commit());
    }
    EXPECT_EQ(m_scratch.ReadFile(), kForeign);
    EXPECT_EQ(std::filesystem::last_write_time(m_scratch.ProfileFile()), old);
}

TEST_F(StoreBatchTest, ReadingAloneMakesNoFile) {
    const char* szApp = UseProfile();
    {
        StoreBatch batch(szApp);
        EXPECT_EQ(Text("Section", "Key", szApp), "(missing)");
    }
    EXPECT_FALSE(std::filesystem::exists(m_scratch.ProfileFile()));
}

TEST_F(StoreBatchTest, NothingIsLeftBesideTheFile) {
    const char* szApp = UseProfile();
    {
        StoreBatch batch(szApp);
        WriteString("Section", "Key", "1", szApp);
    }
    int nFiles = 0;
    for (const auto& entry : std::filesystem::directory_iterator(m_scratch.Folder()))
        nFiles += entry.exists();
    EXPECT_EQ(nFiles, 1);
}

TEST_F(StoreBatchTest, ReadsAreThoseOfThePlatform) {
    const char* szApp = UseProfile();
    m_scratch.WriteFile(
        "[Alpha]\r\n ; comment\r\nOne = 1 \r\nquoted=\" a b "
        "\"\r\nsingle='x'\r\nhalf=\"x\r\nonlyq=\"\r\nnoeq\r\n"
        "empty=\r\n  spaced key  =  v v  "
        "\r\nONE=2\r\na=b=c\r\n\r\n[Beta]\r\nx=1\r\n[alpha]\r\nlate=1\r\n"
        "[ Gam ma ]\r\ng=1\r\n[bad\r\nz=1\r\n[a]b]c\r\nk=1");
    struct Row {
        const char* szSection;
        const char* szKey;
        const char* szValue;
    };
    static constexpr Row kRows[] = {{"alpha", "one", "1"},
                                    {"ALPHA", "quoted", " a b "},
                                    {"Alpha", "single", "x"},
                                    {"Alpha", "half", "\"x"},
                                    {"Alpha", "onlyq", "\""},
                                    {"Alpha", "noeq", "(missing)"},
                                    {"Alpha", "empty", ""},
                                    {"Alpha", "spaced key", "v v"},
                                    {"Alpha", " spaced key ", "v v"},
                                    {"Alpha", "a", "b=c"},
                                    {"Alpha", "late", "(missing)"},
                                    {"Gam ma", "g", "1"},
                                    {" Gam ma ", "g", "1"},
                                    {"Gam ma", "z", "1"},
                                    {"bad", "z", "(missing)"},
                                    {"a]b", "k", "1"},
                                    {"a", "k", "(missing)"},
                                    {"Alpha", "; comment", "(missing)"},
                                    {"Alpha", "", "(missing)"},
                                    {"", "x", "(missing)"},
                                    {"Nope", "x", "(missing)"}};
    for (const Row& row : kRows) {
        SCOPED_TRACE(std::string(row.szSection) + "/" + row.szKey);
        EXPECT_EQ(Text(row.szSection, row.szKey, szApp), row.szValue) << "platform";
        StoreBatch batch(szApp);
        EXPECT_EQ(Text(row.szSection, row.szKey, szApp), row.szValue) << "batch";
    }
}

TEST_F(StoreBatchTest, ValueEndsAtItsFirstLineBreak) {
    const char* szApp = UseProfile();
    {
        StoreBatch batch(szApp);
        WriteString("Section", "Key", "first\r\n[Injected]\r\nx=1", szApp);
        EXPECT_EQ(Text("Section", "Key", szApp), "first");
    }
    EXPECT_EQ(m_scratch.ReadFile(), "[Section]\r\nKey=first\r\n");
}

TEST_F(StoreBatchTest, SectionsAndKeysAreDeleted) {
    const char* szApp = UseProfile();
    m_scratch.WriteFile("[A]\r\nx=1\r\ny=2\r\n[B]\r\nz=3\r\n");
    {
        StoreBatch batch(szApp);
        EXPECT_TRUE(WriteString("A", "x", nullptr, szApp));
        EXPECT_TRUE(WriteString("A", "none", nullptr, szApp));
        EXPECT_TRUE(WriteString("B", nullptr, nullptr, szApp));
        EXPECT_TRUE(WriteString("None", nullptr, nullptr, szApp));
        EXPECT_EQ(Text("B", "z", szApp), "(missing)");
    }
    EXPECT_EQ(m_scratch.ReadFile(), "[A]\r\ny=2\r\n");
}

TEST_F(StoreBatchTest, SectionDeletedInARegistryBatchIsGone) {
    SetUseProfileFile(false);
    StoreBatch batch("App");
    WriteString("Section", "Key", "1", "App");
    EXPECT_TRUE(WriteString("Section", nullptr, nullptr, "App"));
    EXPECT_EQ(Text("Section", "Key", "App"), "(missing)");
    EXPECT_TRUE(WriteString("Section", "Key", "2", "App"));
    EXPECT_EQ(Text("Section", "Key", "App"), "2");
}

TEST_F(StoreBatchTest, RegistryKeyIsClosedAtTheEnd) {
    SetUseProfileFile(false);
    {
        StoreBatch batch("App");
        WriteString("Section", "Key", "1", "App");
        EXPECT_EQ(Text("Other", "Key", "App"), "(missing)");
        EXPECT_EQ(Text("Section", "Key", "App"), "1");
    }
    // An open handle would keep a deleted key in use.
    const HKEY hApp = OpenApp("App", true);
    EXPECT_EQ(RegDeleteKeyA(hApp, "Section"), ERROR_SUCCESS);
    RegCloseKey(hApp);
    EXPECT_EQ(Text("Section", "Key", "App"), "(missing)");
    EXPECT_TRUE(WriteString("Section", "Key", "2", "App"));
    EXPECT_EQ(Text("Section", "Key", "App"), "2");
}

TEST_F(StoreBatchTest, InnerBatchJoinsTheOuterOne) {
    const char* szApp = UseProfile();
    StoreBatch outer(szApp);
    WriteString("Section", "A", "1", szApp);
    {
        StoreBatch inner(szApp);
        EXPECT_EQ(Text("Section", "A", szApp), "1");
        WriteString("Section", "B", "2", szApp);
    }
    EXPECT_EQ(m_scratch.ReadFile(), "");
    EXPECT_TRUE(outer.Commit());
    EXPECT_EQ(m_scratch.ReadFile(), "[Section]\r\nA=1\r\nB=2\r\n");
}

TEST_F(StoreBatchTest, OtherStoresStandAlone) {
    const char* szApp = UseProfile();
    const std::string sOther = m_scratch.File("other.ini");
    StoreBatch batch(szApp);
    WriteString("Section", "A", "1", szApp);
    EXPECT_TRUE(WriteString("Section", "A", "2", sOther.c_str()));
    EXPECT_TRUE(std::filesystem::exists(sOther));
    EXPECT_EQ(Text("Section", "A", sOther.c_str()), "2");
    EXPECT_EQ(Text("Section", "A", szApp), "1");
    // A change of the medium leaves the batch alone too.
    SetUseProfileFile(false);
    EXPECT_TRUE(WriteString("Section", "A", "3", "App"));
    EXPECT_EQ(Text("Section", "A", "App"), "3");
    SetUseProfileFile(true);
    EXPECT_EQ(Text("Section", "A", szApp), "1");
}

TEST_F(StoreBatchTest, StoreThatCanNotBeWrittenIsToldOfAndStays) {
    SetUseProfileFile(true);
    const std::string sNowhere = m_scratch.File("no folder") + "/settings.ini";
    {
        StoreBatch batch(sNowhere.c_str());
        EXPECT_TRUE(WriteString("Section", "Key", "1", sNowhere.c_str()));
        EXPECT_FALSE(batch.Commit());
    }
    StoreBatch folder(m_scratch.Folder().c_str());
    EXPECT_FALSE(WriteString("Section", "Key", "1", m_scratch.Folder().c_str()));
}

TEST_F(StoreBatchTest, ReadOnlyFileStaysAsItIs) {
    const char* szApp = UseProfile();
    m_scratch.WriteFile("[Section]\r\nKey=1\r\n");
    ASSERT_TRUE(SetFileAttributesA(szApp, FILE_ATTRIBUTE_READONLY));
    {
        StoreBatch batch(szApp);
        EXPECT_EQ(Text("Section", "Key", szApp), "1");
        WriteString("Section", "Key", "2", szApp);
        EXPECT_FALSE(batch.Commit());
    }
    EXPECT_EQ(m_scratch.ReadFile(), "[Section]\r\nKey=1\r\n");
    SetFileAttributesA(szApp, FILE_ATTRIBUTE_NORMAL);
}

TEST_F(StoreBatchTest, CutFileLosesNothing) {
    const char* szApp = UseProfile();
    m_scratch.WriteFile("[Section]\r\nOne=1\r\nTw");
    {
        StoreBatch batch(szApp);
        EXPECT_EQ(Text("Section", "One", szApp), "1");
        WriteString("Section", "Two", "2", szApp);
    }
    EXPECT_EQ(m_scratch.ReadFile(), "[Section]\r\nOne=1\r\nTw\r\nTwo=2\r\n");
}

TEST_F(StoreBatchTest, LineEndsFollowTheFile) {
    const char* szApp = UseProfile();
    m_scratch.WriteFile("[Section]\nOne=1\n");
    {
        StoreBatch batch(szApp);
        WriteString("Section", "Two", "2", szApp);
    }
    EXPECT_EQ(m_scratch.ReadFile(), "[Section]\nOne=1\nTwo=2\n");
}

TEST_F(StoreBatchTest, MarkedUnicodeFileIsLeftToThePlatform) {
    const char* szApp = UseProfile();
    m_scratch.WriteFile("\xEF\xBB\xBF[Section]\r\nOne=1\r\n");
    {
        StoreBatch batch(szApp);
        EXPECT_EQ(batch.Profile(), nullptr);
        EXPECT_EQ(Text("Section", "One", szApp), "1");
        EXPECT_TRUE(WriteString("Section", "Two", "2", szApp));
        EXPECT_EQ(Text("Section", "Two", szApp), "2");
    }
    EXPECT_EQ(m_scratch.ReadFile(), "\xEF\xBB\xBF[Section]\r\nOne=1\r\nTwo=2\r\n");
}

TEST_F(StoreBatchTest, NameWithoutFolderIsThePlatformsOwnFile) {
    SetUseProfileFile(true);
    const std::string sName = "zx-" + Branch() + ".ini";
    WriteString("Section", "Key", "1", sName.c_str());
    {
        StoreBatch batch(sName.c_str());
        EXPECT_EQ(Text("Section", "Key", sName.c_str()), "1");
        WriteString("Section", "Key", "2", sName.c_str());
    }
    EXPECT_EQ(Text("Section", "Key", sName.c_str()), "2");
    char szFolder[MAX_PATH];
    GetWindowsDirectoryA(szFolder, MAX_PATH);
    EXPECT_TRUE(DeleteFileA((std::string(szFolder) + "\\" + sName).c_str()));
}

TEST_F(StoreBatchTest, ThousandsOfKeysComeBack) {
    InBothMedia([](const char* szApp) {
        {
            StoreBatch batch(szApp);
            for (int i = 0; i < 3000; ++i)
                WriteInt32("Section", ("Key" + std::to_string(i)).c_str(), i, szApp);
        }
        StoreBatch batch(szApp);
        for (int i = 0; i < 3000; ++i) {
            std::int32_t nValue = -1;
            ASSERT_TRUE(
                ReadInt32("Section", ("kEY" + std::to_string(i)).c_str(), 0, &nValue, szApp));
            ASSERT_EQ(nValue, i);
        }
    });
}

}  // namespace
