// Number texts of any bytes: a text that parses comes back in display form, and the display form of
// the display form is itself.
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>

#include "store/StoreText.h"
#include "text/NumberFormat.h"
#include "text/NumberParse.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize) {
    if (nSize < 2) return 0;
    const std::int32_t eFormat = pData[0] & 1;
    const std::uint32_t uDigits = pData[1] % 20;
    const std::string sText(reinterpret_cast<const char*>(pData) + 2, nSize - 2);
    double dValue = 0;
    if (ParseDouble(sText.c_str(), &dValue) == kNumberOk &&
        dValue != std::strtod(sText.c_str(), nullptr))
        std::abort();
    TextToDouble(sText.c_str());
    TextToUInt64(sText.c_str());
    TextToInt(sText.c_str());
    GUID guid;
    ReadRegistryGuid(sText.c_str(), &guid);
    LOGFONTA font;
    ParseFontDefinition(sText.c_str(), &font);
    char szText[64];
    std::strncpy(szText, sText.c_str(), sizeof szText - 1);
    szText[sizeof szText - 1] = '\0';
    std::int32_t nCode = 0;
    if (ParseDoubleNormal(szText, sizeof szText, &dValue, eFormat, uDigits, 15, &nCode) == 0)
        return 0;
    if (!std::isfinite(dValue) || std::fabs(dValue) > kDoubleLimit) std::abort();
    char szAgain[64];
    std::strcpy(szAgain, szText);
    double dAgain = 0;
    if (ParseDoubleNormal(szAgain, sizeof szAgain, &dAgain, kFormatSignificant, 0, 15, &nCode) == 0)
        std::abort();
    if (dAgain != dValue && std::fabs(dAgain - dValue) > std::fabs(dValue) * 1e-14) std::abort();
    return 0;
}
