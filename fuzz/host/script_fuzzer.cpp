// Scripts and store files of any bytes: what is refused names its place, and a store that is read
// is written as a text that reads back as the same.
#include <cstdint>
#include <cstdlib>
#include <string>

#include "Script.h"
#include "SettingsStore.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text(reinterpret_cast<const char*>(data), size);
    std::string error;
    zxhost::Script script;
    if (zxhost::ParseScript(text, "s", &script, &error)) {
        int line = 0;
        for (const zxhost::Step& step : script.steps) {
            if (step.line <= line) std::abort();
            line = step.line;
        }
    } else if (error.rfind("s:", 0) != 0) {
        std::abort();
    }
    zxhost::Settings settings, again;
    if (zxhost::ParseSettings(text, "s", &settings, &error)) {
        const std::string written = zxhost::FormatSettings(settings);
        if (!zxhost::ParseSettings(written, "s", &again, &error)) std::abort();
        if (zxhost::FormatSettings(again) != written) std::abort();
    } else if (error.rfind("s:", 0) != 0) {
        std::abort();
    }
    return 0;
}
