// Dialogs of an options tab and a data tab against bare dialogs of the same templates that show the
// same.
#pragma once

#include <functional>
#include <string>

#include "BareTabbedDialog.h"
#include "DialogTiming.h"
#include "ZXADLG.h"
#include "analysis/Benchmarks.h"
#include "ids.h"
#include "widgets/FrameworkSetup.h"

class TabbedBench {
  protected:
    static constexpr int kRounds = 15;

    TabbedBench() {
        m_params.bUseDataOptions = m_params.bShowGroupSelector = m_params.bShowDestination = 1;
        m_params.bShowDynamicLink = m_params.bShowWriteRegionInfo = 1;
    }

    bool Compare(const std::string& sName, const std::function<void()>& show, int nTemplate,
                 int nOptionsTemplate) {
        BareTabbedDialog bare(GetFrameworkInstance(), nTemplate, IDC_TABS,
                              {{"Options", nOptionsTemplate}, {"Data", IDD_UNITARY_DATA}});
        m_timing.AtIdle([&](HWND hDialog) {
            bare.ShowAs(hDialog);
            DialogTiming::Press(hDialog, IDCANCEL);
        });
        show();
        const DialogTiming::Ratios ratios =
            m_timing.TimeInTurn(kRounds, show, [&] { bare.Run(m_timing.GetOwner()); });
        const bool bShow =
            PrintTiming((sName + " from Show to its first idle moment").c_str(), ratios.show, 1.2);
        return PrintTiming((sName + " from OK to the return").c_str(), ratios.end, 1.3) && bShow;
    }
    static ZXADLG_DataOptions Selection() {
        ZXADLG_DataOptions data = {};
        data.eDataSet1SelectionMode = data.eDataGroup1SelectionMode = 1;
        return data;
    }

    DialogTiming m_timing;
    NamedSource m_source{12};
    ZXADLG_DlgParams m_params = {};
};
