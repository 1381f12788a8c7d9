// What graphical seeding draws: the selected data, the curve of all terms, and one for each term.
#pragma once

#include <vector>

#include "fit/CFitSeedInterface.h"
#include "zxadlg/Graph.h"

class CZxFitGWDataSource final : public GMT_DataSource {
  public:
    // The curves by their numbers: terms follow.
    static constexpr std::uint32_t kData = 0;
    static constexpr std::uint32_t kTotal = 1;
    static constexpr std::uint32_t kFirstTerm = 2;

    // Both outlive this object. The data are fetched once.
    CZxFitGWDataSource(const CFitOptionsInterface& fit, CFitSeedInterface& seeds);

    // The terms that have curves of their own: of a single one the total tells all, and a custom
    // function has none.
    std::uint32_t TermCount() const { return static_cast<std::uint32_t>(m_vTermShown.size()); }
    void ShowTerm(std::uint32_t uTerm, bool bShow) { m_vTermShown[uTerm] = bShow; }
    bool IsTermShown(std::uint32_t uTerm) const { return m_vTermShown[uTerm]; }

    std::uint32_t GetCurveCount() override { return kFirstTerm + TermCount(); }
    std::int32_t GetCurve(std::uint32_t uCurve, GMT_Curve* pCurve) override;
    std::int32_t GetPoints(std::uint32_t uCurve, GMT_Points* pPoints) override;
    std::int32_t Evaluate(std::uint32_t uCurve, const double* pX, double* pY,
                          std::uint32_t uCount) override;

  private:
    const CFitOptionsInterface& m_fit;
    CFitSeedInterface& m_seeds;
    GMT_Points m_points{};  // the data model keeps them
    FitDataStats m_stats{};
    std::vector<bool> m_vTermShown;
};
