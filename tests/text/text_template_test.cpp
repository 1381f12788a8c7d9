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
    EXPECT_EQ(expand("%10d%.10f%I64dx%I32u%I64z", TemplatePlaces::kConversions),
              "<d><f><d>x<u><z>");
    EXPECT_EQ(expand("%A%Z%a", TemplatePlaces::kConversions), "<A><Z><a>");
    EXPECT_EQ(expand("%@%[%`%{", TemplatePlaces::kConversions), "@[`{");
    EXPECT_EQ(expand("%:a%/", TemplatePlaces::kNumbers), ":a/");
    // A template ends where it ends, whatever stands behind it.
    EXPECT_EQ(expand(std::string_view("x%5d", 3), TemplatePlaces::kConversions), "x");
    EXPECT_EQ(expand(std::string_view("x%5", 2), TemplatePlaces::kNumbers), "x");
}
