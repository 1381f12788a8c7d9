#include "Palette.h"

#include <gtest/gtest.h>

#include <set>

#include "zxadlg/Graph.h"

namespace {

using graph::Contrast;
using graph::StyleOf;

constexpr graph::Color kWhite = 0xFFFFFF, kBlack = 0;
constexpr uint32_t kTerms = 6;

TEST(Palette, ContrastIsThatOfTheGuidelines) {
    EXPECT_NEAR(Contrast(kWhite, kBlack), 21.0, 1e-9);
    EXPECT_NEAR(Contrast(kWhite, kWhite), 1.0, 1e-12);
    // Grey 0x76 is the lightest that passes on white.
    EXPECT_NEAR(Contrast(0x767676, kWhite), 4.542, 0.001);
    EXPECT_NEAR(Contrast(0x0000FF, kWhite), 3.998, 0.001) << "red";
    EXPECT_NEAR(Contrast(0xFF0000, kWhite), 8.592, 0.001) << "blue";
}

TEST(Palette, EveryColourReadsOnEveryBackground) {
    for (graph::Color background = 0; background <= 0xFFFFFF; background += 0x0F1007) {
        const graph::Color text =
            Contrast(background, kBlack) > Contrast(background, kWhite) ? kBlack : kWhite;
        for (uint32_t uKind = 0; uKind < 9; ++uKind)
            EXPECT_GE(Contrast(StyleOf(uKind, background, text).color, background), 4.5)
                << std::hex << background << " " << uKind;
    }
}

TEST(Palette, CurvesDifferByColourAndByLineOnWhiteAndOnBlack) {
    for (const graph::Color background : {kWhite, kBlack}) {
        std::set<graph::Color> colors;
        std::set<std::vector<uint8_t>> patterns;
        for (uint32_t i = 0; i < kTerms; ++i) {
            const graph::LineStyle style = StyleOf(i, background, background ^ kWhite);
            colors.insert(style.color);
            patterns.insert({style.pattern.begin(), style.pattern.end()});
            EXPECT_FALSE(style.pattern.empty());
            EXPECT_EQ(style.nWidth, 1);
        }
        const graph::LineStyle total = StyleOf(GMT_KIND_TOTAL, background, background ^ kWhite);
        const graph::LineStyle data = StyleOf(GMT_KIND_DATA, background, background ^ kWhite);
        colors.insert(total.color);
        colors.insert(data.color);
        EXPECT_EQ(colors.size(), kTerms + 2);
        EXPECT_EQ(patterns.size(), kTerms);
        EXPECT_EQ(total.nWidth, 2);
        EXPECT_TRUE(total.pattern.empty());
        EXPECT_EQ(data.nWidth, 1);
    }
    EXPECT_EQ(StyleOf(GMT_KIND_TOTAL, kWhite, kBlack).color, 0x0000C0u);
    EXPECT_EQ(StyleOf(1, kWhite, kBlack).color, 0x3E6900u);
}

TEST(Palette, AnUnknownKindIsDrawnAsATotal) {
    EXPECT_EQ(StyleOf(8, kWhite, kBlack).color, StyleOf(GMT_KIND_TOTAL, kWhite, kBlack).color);
    EXPECT_EQ(StyleOf(8, kWhite, kBlack).nWidth, 2);
}

TEST(Palette, FaintLinesAreNearTheBackground) {
    EXPECT_EQ(graph::Faint(kBlack, kWhite), 0xAAAAAAu);
    EXPECT_EQ(graph::Faint(kWhite, kBlack), 0x555555u);
}

}  // namespace
