// Random users of the library's dialogs: any of them, over the hosts that all of them are tested
// with.
#include "Scenario.h"
#include "dialogs/DialogRows.h"
#include "platform/platform.h"

namespace differential {
namespace {

const char* const kTexts[] = {"",      "0",    "5",     "-5",       "12.5", "1e-3", "1e999",
                              "nan",   "0x10", "99999", "1,3",      "2..5", "all",  " 7",
                              "1.2.3", "100",  "%s%n",  "\x80\xFF", "3",    "1"};

void Action(std::FILE* out, Random& random) {
    static constexpr int kKeys[] = {VK_TAB,   VK_TAB,   VK_TAB,  VK_UP,     VK_DOWN, VK_LEFT,
                                    VK_RIGHT, VK_UP,    VK_DOWN, VK_HOME,   VK_END,  VK_PRIOR,
                                    VK_NEXT,  VK_SPACE, VK_BACK, VK_DELETE, VK_F1,   VK_F4};
    static const char kCharacters[] = "0123456789.-+eE x";
    const int target = random.Below(1000);
    const int x = random.Below(100), y = random.Below(100);
    switch (random.Below(20)) {
        case 0:
        case 1:
        case 2:
        case 3: {
            const int modifiers = random.OneIn(6) ? 1 : random.OneIn(10) ? 2 : 0;
            std::fprintf(out, "key 0x%x %d\n", static_cast<unsigned>(random.From(kKeys)),
                         modifiers);
            return;
        }
        case 4:
        case 5:
        case 6:
        case 7:
            std::fprintf(out, "char 0x%x 0\n",
                         static_cast<unsigned>(kCharacters[random.Below(sizeof kCharacters - 1)]));
            return;
        case 8:
        case 9:
        case 10:
        case 11:
        case 12:
            std::fprintf(out, "click %d %d %d 0\n", target, x, y);
            return;
        case 13:
            std::fprintf(out, "list %d\n", y);
            return;
        case 14:
            std::fprintf(out, "mnemonic 0x%x\n", static_cast<unsigned>('a' + random.Below(26)));
            return;
        case 15:
            std::fprintf(out, random.OneIn(3) ? "twice %d %d %d\n" : "click %d %d %d 1\n", target,
                         x, y);
            return;
        case 16: {
            // What Ctrl+A, C, V and X give.
            static constexpr int kControl[] = {1, 3, 22, 24};
            std::fprintf(out, "char 0x%x 2\n", static_cast<unsigned>(random.From(kControl)));
            return;
        }
        case 17:
            if (random.OneIn(4)) {
                std::fprintf(out, "wheel %d\n", random.Below(2) * 2 - 1);
                return;
            }
            [[fallthrough]];
        case 18:
            std::fprintf(out, "text %d %s\n", target, Quoted(random.From(kTexts)).c_str());
            return;
        default:
            switch (random.Below(12)) {
                case 0:
                    std::fputs("press 1\n", out);
                    return;
                case 1:
                    std::fputs("press 2\n", out);
                    return;
                case 2:
                    std::fputs("key 0xd 0\n", out);
                    return;
                case 3:
                    std::fputs("key 0x1b 0\n", out);
                    return;
                default:
                    std::fprintf(out, "key 0x%x 4\n",
                                 static_cast<unsigned>(random.OneIn(2) ? VK_DOWN : VK_UP));
                    return;
            }
    }
}

}  // namespace

void GenerateDialogs(std::FILE* out, uint64_t base, int number, int actions) {
    Random random(base * 1000003u + static_cast<uint64_t>(number));
    const auto& rows = dialogs_test::Rows();
    const auto& dialog =
        rows[static_cast<std::size_t>(random.Below(static_cast<int>(rows.size())))];
    const int sources = static_cast<int>(dialogs_test::Sources().size());
    // Most hosts have data; most dialogs can be edited and show all that there is.
    const int source = random.OneIn(4) ? random.Below(sources) : random.Below(3);
    int flags = random.OneIn(8) ? random.Below(4) : 0;
    flags |= random.OneIn(3) ? random.Below(16) << 2 : 60;
    std::fprintf(out, "scenario dialogs-%llu-%d\n", static_cast<unsigned long long>(base), number);
    std::fprintf(out, "open %s %d %d\n", Quoted(dialog.szName).c_str(), source, flags);
    for (int i = 0; i < actions; ++i) Action(out, random);
}

}  // namespace differential
