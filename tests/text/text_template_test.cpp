#include <gtest/gtest.h>

#include <string>

#include "text/TextTemplate.h"

TEST(TextTemplate, EachNotationKnowsItsOwnPlaces) {
    const auto expand = [](std::string_view sTemplate, TemplatePlaces ePlaces) {
        std::string sResult;
        ExpandTemplate(
            sTemplate, ePlaces, [&](char ch) { sResult += ch; },
            [&](char chEnd) { sResult += std::string("<") + chEnd + ">"; });
        return sResult;
    };
    EXPECT_EQ(expand("%0a%9%%%s%", TemplatePlaces::kNumbers), "<0>a<9>%s");
    EXPECT_EQ(expand("%0a%9%%%s%", TemplatePlaces::kConversions), "<a>%%s");
    EXPECT_EQ(expand("%-5.3ld%?", TemplatePlaces::kConversions), "<d>?");
}
