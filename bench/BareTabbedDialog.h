// What an open dialog shows, and a bare dialog of the same templates that shows the same: the
// texts, marks, items, greyed and hidden controls of all of its pages, put there by the platform's
// calls and nothing else. It is the least that any code must do to open the same dialog.
#pragma once

#include <algorithm>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "DialogTiming.h"
#include "platform/platform.h"
#include "text/TextTests.h"

class DialogState {
  public:
    // Of every page of the dialog; those are the windows of its tab control.
    static DialogState Of(HWND hDialog, HWND hTab) {
        DialogState state;
        state.m_vOuter = Controls(hDialog);
        for (const HWND hPage : Pages(hTab)) state.m_vPages.push_back(Controls(hPage));
        return state;
    }

    // Makes a bare dialog show this. A page is known by the ids of its controls.
    void Show(HWND hDialog, const std::vector<HWND>& pages) const {
        Put(m_vOuter, hDialog);
        for (const std::vector<Control>& controls : m_vPages) {
            const auto bare = std::find_if(pages.begin(), pages.end(), [&](HWND hPage) {
                const std::vector<HWND> windows = Children(hPage);
                return std::equal(
                    windows.begin(), windows.end(), controls.begin(), controls.end(),
                    [](HWND h, const Control& c) { return GetDlgCtrlID(h) == c.nId; });
            });
            if (bare != pages.end()) Put(controls, *bare);
        }
    }

  private:
    enum class Kind { kOther, kButton, kList, kCombo };
    struct Control {
        int nId;
        Kind eKind;
        std::string sText;
        bool bEnabled;
        bool bVisible;
        LRESULT nCheck;
        std::vector<std::string> vItems;
        std::vector<bool> vSelected;
    };

    static std::string TextOf(HWND hWnd) {
        std::string sText(static_cast<std::size_t>(GetWindowTextLengthA(hWnd)) + 1, '\0');
        sText.resize(static_cast<std::size_t>(
            GetWindowTextA(hWnd, sText.data(), static_cast<int>(sText.size()))));
        return sText;
    }
    static Kind KindOf(HWND hWnd) {
        char szClass[32] = "";
        GetClassNameA(hWnd, szClass, sizeof szClass);
        if (EqualNoCase(szClass, "Button")) return Kind::kButton;
        if (EqualNoCase(szClass, "ListBox")) return Kind::kList;
        return EqualNoCase(szClass, "ComboBox") ? Kind::kCombo : Kind::kOther;
    }
    static std::vector<HWND> Children(HWND hParent) {
        std::vector<HWND> children;
        for (HWND h = GetWindow(hParent, GW_CHILD); h != nullptr; h = GetWindow(h, GW_HWNDNEXT))
            children.push_back(h);
        return children;
    }
    static std::vector<HWND> Pages(HWND hTab) {
        std::vector<HWND> pages;
        for (const HWND h : Children(hTab)) {
            char szClass[16] = "";
            GetClassNameA(h, szClass, sizeof szClass);
            if (std::string_view(szClass) == "#32770") pages.push_back(h);
        }
        return pages;
    }

    static Control Read(HWND hWnd) {
        Control control = {GetDlgCtrlID(hWnd),
                           KindOf(hWnd),
                           TextOf(hWnd),
                           IsWindowEnabled(hWnd) != 0,
                           (GetWindowLongPtrA(hWnd, GWL_STYLE) & WS_VISIBLE) != 0,
                           SendMessageA(hWnd, BM_GETCHECK, 0, 0),
                           {},
                           {}};
        const bool bList = control.eKind == Kind::kList;
        if (!bList && control.eKind != Kind::kCombo) return control;
        const auto nItems =
            static_cast<int>(SendMessageA(hWnd, bList ? LB_GETCOUNT : CB_GETCOUNT, 0, 0));
        for (int i = 0; i < nItems; ++i) {
            const auto uIndex = static_cast<WPARAM>(i);
            std::string sItem(512, '\0');
            sItem.resize(static_cast<std::size_t>(
                std::max<LRESULT>(0, SendMessageA(hWnd, bList ? LB_GETTEXT : CB_GETLBTEXT, uIndex,
                                                  reinterpret_cast<LPARAM>(sItem.data())))));
            control.vItems.push_back(sItem);
            control.vSelected.push_back(bList ? SendMessageA(hWnd, LB_GETSEL, uIndex, 0) > 0
                                              : SendMessageA(hWnd, CB_GETCURSEL, 0, 0) == i);
        }
        return control;
    }
    static std::vector<Control> Controls(HWND hParent) {
        std::vector<Control> controls;
        for (const HWND h : Children(hParent)) controls.push_back(Read(h));
        return controls;
    }

    // Only what the template does not say already.
    static void Put(const std::vector<Control>& controls, HWND hParent) {
        const std::vector<HWND> windows = Children(hParent);
        for (std::size_t i = 0; i < std::min(windows.size(), controls.size()); ++i)
            Put(controls[i], windows[i]);
    }
    static void Put(const Control& control, HWND hWnd) {
        if (control.eKind == Kind::kList || control.eKind == Kind::kCombo) PutItems(control, hWnd);
        if (control.eKind == Kind::kButton && control.nCheck == BST_CHECKED)
            SendMessageA(hWnd, BM_SETCHECK, BST_CHECKED, 0);
        if (TextOf(hWnd) != control.sText) SetWindowTextA(hWnd, control.sText.c_str());
        if ((IsWindowEnabled(hWnd) != 0) != control.bEnabled) EnableWindow(hWnd, control.bEnabled);
        const bool bVisible = (GetWindowLongPtrA(hWnd, GWL_STYLE) & WS_VISIBLE) != 0;
        if (bVisible != control.bVisible) ShowWindow(hWnd, control.bVisible ? SW_SHOW : SW_HIDE);
    }
    static void PutItems(const Control& control, HWND hWnd) {
        const bool bList = control.eKind == Kind::kList;
        const bool bMany = bList && (GetWindowLongPtrA(hWnd, GWL_STYLE) &
                                     (LBS_MULTIPLESEL | LBS_EXTENDEDSEL)) != 0;
        for (const std::string& sItem : control.vItems)
            SendMessageA(hWnd, bList ? LB_ADDSTRING : CB_ADDSTRING, 0,
                         reinterpret_cast<LPARAM>(sItem.c_str()));
        for (std::size_t i = 0; i < control.vItems.size(); ++i) {
            if (!control.vSelected[i]) continue;
            if (bMany) {
                SendMessageA(hWnd, LB_SETSEL, TRUE, static_cast<LPARAM>(i));
            } else {
                SendMessageA(hWnd, bList ? LB_SETCURSEL : CB_SETCURSEL, i, 0);
            }
        }
    }

    std::vector<Control> m_vOuter;
    std::vector<std::vector<Control>> m_vPages;
};

// A tabbed dialog of the platform's calls alone, with the pages of a dialog of the library, that
// shows what that one shows.
class BareTabbedDialog {
  public:
    BareTabbedDialog(HINSTANCE hInstance, int nTemplate, int nTabId, std::vector<BarePage> pages)
        : m_hInstance(hInstance),
          m_nTemplate(nTemplate),
          m_nTabId(nTabId),
          m_vPages(std::move(pages)) {}

    // Takes over what an open dialog of the library shows.
    void ShowAs(HWND hDialog) { m_shown = DialogState::Of(hDialog, GetDlgItem(hDialog, m_nTabId)); }
    // Until its OK.
    void Run(HWND hOwner) {
        DialogBoxParamA(m_hInstance, MAKEINTRESOURCEA(m_nTemplate), hOwner, Proc,
                        reinterpret_cast<LPARAM>(this));
    }

  private:
    static INT_PTR CALLBACK Proc(HWND hWnd, UINT uMsg, WPARAM wParam, LPARAM lParam) {
        if (uMsg != WM_INITDIALOG) return EndBareAtOk(hWnd, uMsg, wParam);
        const auto* pThis = reinterpret_cast<const BareTabbedDialog*>(lParam);
        const std::vector<HWND> pages =
            CreateBarePages(pThis->m_hInstance, GetDlgItem(hWnd, pThis->m_nTabId), pThis->m_vPages);
        pThis->m_shown.Show(hWnd, pages);
        ShowWindow(pages[0], SW_SHOW);
        return TRUE;
    }

    HINSTANCE m_hInstance;
    int m_nTemplate;
    int m_nTabId;
    std::vector<BarePage> m_vPages;
    DialogState m_shown;
};
