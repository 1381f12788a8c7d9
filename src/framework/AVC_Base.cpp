#include "framework/AVC_Base.h"

AVC_Base::~AVC_Base() = default;

std::int32_t AVC_Base::SetText(const char* szText) {
    m_sText = szText != nullptr ? szText : "";
    return 1;
}

std::int32_t AVC_Base::Validate(const char*, char*, int, std::int32_t*) {
    return 1;
}
