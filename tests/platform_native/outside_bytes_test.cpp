// Resources and dialog templates from bytes that may be anything.
#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

#include "platform/headless/dialog/dialog_template.h"
#include "platform/headless/system/resources.h"
#include "platform/platform.h"
#include "zxadlg/headless/diagnostics.h"
#include "zxadlg/headless/modules.h"

namespace {

using Bytes = std::vector<std::uint8_t>;

void Word(Bytes& out, unsigned value) {
    out.push_back(static_cast<std::uint8_t>(value));
    out.push_back(static_cast<std::uint8_t>(value >> 8));
}
void Double(Bytes& out, unsigned value) {
    Word(out, value & 0xFFFF);
    Word(out, value >> 16);
}
void Pad(Bytes& out) {
    while (out.size() % 4 != 0) out.push_back(0);
}
void Entry(Bytes& out, unsigned type, unsigned name, const Bytes& data) {
    Double(out, static_cast<unsigned>(data.size()));
    Double(out, 32);
    for (unsigned value : {0xFFFFu, type, 0xFFFFu, name}) Word(out, value);
    Double(out, 0);
    Word(out, 0);
    Word(out, 0x409);
    Double(out, 0);
    Double(out, 0);
    out.insert(out.end(), data.begin(), data.end());
    Pad(out);
}

Bytes Strings(const std::vector<std::u16string>& texts) {
    Bytes block;
    for (std::size_t i = 0; i < 16; ++i) {
        const std::u16string text = i < texts.size() ? texts[i] : u"";
        Word(block, static_cast<unsigned>(text.size()));
        for (char16_t c : text) Word(block, c);
    }
    return block;
}

Bytes TwoEntries() {
    Bytes file;
    Entry(file, 0, 0, {});
    Entry(file, 6, 1, Strings({u"zero", u"caf\u00E9 \u20AC \u4E2D \U0001F600."}));
    Entry(file, 10, 77, {1, 2, 3, 4, 5});
    return file;
}

Bytes Dialog() {
    Bytes out;
    Double(out, WS_POPUP | WS_CAPTION | DS_SETFONT);
    Double(out, 0);
    Word(out, 2);
    for (unsigned value : {1u, 2u, 100u, 50u}) Word(out, value);
    Word(out, 0);
    Word(out, 0);
    for (char c : std::string("Hi")) Word(out, static_cast<unsigned char>(c));
    Word(out, 0);
    Word(out, 8);
    for (char c : std::string("Tahoma")) Word(out, static_cast<unsigned char>(c));
    Word(out, 0);
    for (unsigned id = 1; id <= 2; ++id) {
        Pad(out);
        Double(out, WS_CHILD | WS_VISIBLE);
        Double(out, 0);
        for (unsigned value : {5u, 6u, 7u, 8u, id, 0xFFFFu, 0x80u}) Word(out, value);
        Word(out, 'x');
        Word(out, 0);
        Word(out, 0);
    }
    return out;
}

TEST(ResourceBytes, AreReadToTheEnd) {
    const Bytes file = TwoEntries();
    const headless::ResourceList list = headless::ReadResources(file.data(), file.size());
    EXPECT_TRUE(list.complete);
    ASSERT_EQ(2u, list.entries.size());
    EXPECT_EQ(77, list.entries[1].name.number);
    EXPECT_EQ(5u, list.entries[1].size);
    EXPECT_EQ(0x409, list.entries[1].language);
}

TEST(ResourceBytes, CutAnywhereAreRefusedOrShorter) {
    const Bytes file = TwoEntries();
    for (std::size_t size = 0; size < file.size(); ++size) {
        SCOPED_TRACE(size);
        const Bytes cut(file.begin(), file.begin() + static_cast<std::ptrdiff_t>(size));
        const headless::ResourceList list = headless::ReadResources(cut.data(), cut.size());
        for (const headless::ResourceEntry& entry : list.entries)
            EXPECT_LE(entry.data + entry.size, cut.data() + cut.size());
    }
}

TEST(ResourceBytes, SizesThatPointBeyondTheEndAreRefused) {
    for (std::size_t at : {32u, 36u}) {
        for (unsigned value : {0xFFFFFFFFu, 0x7FFFFFFFu, 0x1000u, 1u}) {
            Bytes file = TwoEntries();
            std::memcpy(file.data() + at, &value, 4);
            const headless::ResourceList list = headless::ReadResources(file.data(), file.size());
            for (const headless::ResourceEntry& entry : list.entries)
                EXPECT_LE(entry.data + entry.size, file.data() + file.size());
        }
    }
}

TEST(ResourceBytes, ARegisteredModuleGivesItsStringsInTheCodePage) {
    const Bytes file = TwoEntries();
    HMODULE module = headless::RegisterModule(file.data(), file.data() + file.size());
    ASSERT_NE(nullptr, module);
    char text[64];
    EXPECT_EQ(4, LoadStringA(module, 0, text, sizeof text));
    EXPECT_STREQ("zero", text);
    EXPECT_EQ(11, LoadStringA(module, 1, text, sizeof text));
    EXPECT_STREQ("caf\xE9 \x80 ? ?.", text);
    EXPECT_EQ(3, LoadStringA(module, 0, text, 4));
    EXPECT_STREQ("zer", text);
    EXPECT_EQ(0, LoadStringA(module, 2, text, sizeof text));
    headless::UnregisterModule(file.data());
    EXPECT_EQ(0, LoadStringA(module, 0, text, sizeof text));
}

TEST(ResourceBytes, AMalformedModuleIsRefused) {
    Bytes file = TwoEntries();
    file[36] = 1;
    EXPECT_EQ(nullptr, headless::RegisterModule(file.data(), file.data() + file.size()));
    EXPECT_EQ(nullptr, headless::RegisterModule(nullptr, nullptr));
}

TEST(ResourceBytes, AWrongHandleIsRefused) {
    int not_a_resource = 0;
    HRSRC wrong = reinterpret_cast<HRSRC>(&not_a_resource);
    EXPECT_EQ(nullptr, LoadResource(nullptr, wrong));
    EXPECT_EQ(0u, SizeofResource(nullptr, wrong));
    EXPECT_EQ(static_cast<DWORD>(ERROR_INVALID_HANDLE), GetLastError());
    EXPECT_EQ(nullptr, LoadResource(nullptr, nullptr));
}

TEST(TemplateBytes, AreReadWithFontAndItems) {
    const Bytes bytes = Dialog();
    headless::DialogTemplate dialog;
    ASSERT_TRUE(headless::ReadDialogTemplate(bytes.data(), bytes.size(), dialog));
    EXPECT_EQ("Hi", dialog.title);
    EXPECT_EQ("Tahoma", dialog.face);
    EXPECT_EQ(8, dialog.points);
    ASSERT_EQ(2u, dialog.items.size());
    EXPECT_EQ(2u, dialog.items[1].id);
    EXPECT_EQ("x", dialog.items[1].title.text);
}

TEST(TemplateBytes, CutAnywhereAreRefused) {
    const Bytes bytes = Dialog();
    for (std::size_t size = 0; size < bytes.size(); ++size) {
        SCOPED_TRACE(size);
        const Bytes cut(bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(size));
        headless::DialogTemplate dialog;
        EXPECT_FALSE(headless::ReadDialogTemplate(cut.data(), cut.size(), dialog));
    }
}

TEST(TemplateBytes, ACutTemplateInAModuleMakesNoDialog) {
    Bytes shape = Dialog();
    shape.resize(shape.size() - 6);
    Bytes file;
    Entry(file, 0, 0, {});
    Entry(file, 5, 9, shape);
    HMODULE module = headless::RegisterModule(file.data(), file.data() + file.size());
    ASSERT_NE(nullptr, module);
    const DLGPROC none = nullptr;
    EXPECT_EQ(nullptr, CreateDialogParamA(module, MAKEINTRESOURCEA(9), nullptr, none, 0));
    EXPECT_EQ(-1, DialogBoxParamA(module, MAKEINTRESOURCEA(9), nullptr, none, 0));
    // The same through its address: where it ends is known from the module.
    HRSRC found = FindResourceA(module, MAKEINTRESOURCEA(9), RT_DIALOG);
    const auto* raw = static_cast<const DLGTEMPLATE*>(LockResource(LoadResource(module, found)));
    EXPECT_EQ(nullptr, CreateDialogIndirectParamA(module, raw, nullptr, none, 0));
    headless::UnregisterModule(file.data());
}

TEST(TemplateBytes, AControlOfAnUnknownClassMakesNoDialogUnlessItMay) {
    Bytes bytes = Dialog();
    // The first item's atom.
    std::size_t at = 0;
    for (std::size_t i = 0; i + 3 < bytes.size(); i += 2) {
        if (bytes[i] == 0xFF && bytes[i + 1] == 0xFF && bytes[i + 2] == 0x80) {
            at = i + 2;
            break;
        }
    }
    ASSERT_NE(0u, at);
    bytes[at] = 0x99;
    const auto* raw = reinterpret_cast<const DLGTEMPLATE*>(bytes.data());
    EXPECT_EQ(nullptr, CreateDialogIndirectParamA(nullptr, raw, nullptr, nullptr, 0));
    bytes[0] |= DS_NOFAILCREATE;
    HWND dialog = CreateDialogIndirectParamA(nullptr, raw, nullptr, nullptr, 0);
    ASSERT_NE(nullptr, dialog);
    EXPECT_EQ(nullptr, GetDlgItem(dialog, 1));
    EXPECT_NE(nullptr, GetDlgItem(dialog, 2));
    DestroyWindow(dialog);
}

}  // namespace
