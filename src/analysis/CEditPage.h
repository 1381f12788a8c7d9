// The base of everything in this layer that shows a record and lets the user edit it: tabs, data
// tabs, tabbed dialogs and single pages. It owns the one gate of a page:
//
// - before the page is ready nothing that a control tells counts;
// - while the program shows values or runs the rules, what controls tell is not the user's doing;
// - in read-only mode every input is greyed, and what still reaches a control is undone;
// - what other pages broadcast is told apart from what controls tell, and reaches its own rows.
//
// A page lists its controls as rows in its constructor (Bind, OnEvent, OnBroadcast), fills its
// controls in SetUp, and states every rule that enables, shows, hides or relabels a control in
// UpdateControls, which runs after every burst of events and may run at any time. Steps that follow
// one event alone hang on its row.
//
// Base is ADM_Dialog, ADM_TabSubDialog or ADM_TabbedDialog.
#pragma once

#include <initializer_list>
#include <span>
#include <utility>
#include <vector>

#include "analysis/ControlValues.h"
#include "analysis/DialogMessages.h"
#include "analysis/PageInputs.h"
#include "analysis/PageRows.h"
#include "analysis/ResultControls.h"
#include "analysis/SpinField.h"
#include "contract/CAnalysisOptionsInterfaceBase.h"
#include "framework/ADM_GaugeControl.h"
#include "framework/UpdateScope.h"

template <class Base>
class CEditPage : public Base {
  public:
    using Row = PageRows::Row;
    using Step = PageRows::Step;

    template <class... Args>
    explicit CEditPage(bool bReadOnly, Args&&... args)
        : Base(std::forward<Args>(args)...), m_bReadOnly(bReadOnly) {}

    BOOL OnInitDialog(HWND hWnd, HWND hFocus, LPARAM lParam) override {
        const BOOL bResult = Base::OnInitDialog(hWnd, hFocus, lParam);
        {
            const UpdateScope updating(m_bUpdating);
            if (!SetUp()) return bResult;
        }
        ShowRecord();
        if (m_bReadOnly) GreyInputs(*this, [this](ADM_Wnd* p) { return m_rows.IsAlive(p); });
        m_bReady = true;
        return bResult;
    }

    void Notify(ADM_Wnd* pSender, int nId, int nCode, int nData) override {
        Base::Notify(pSender, nId, nCode, nData);
        if (!m_bReady) return;
        // No control speaks without a sender and an id.
        if (pSender == nullptr && nId == 0) {
            if (!m_bReadOnly) m_rows.RunBroadcast(static_cast<NotificationCode>(nCode));
            return;
        }
        if (IsUpdating()) return;
        const UpdateScope updating(m_bUpdating);
        if (!m_bReadOnly || m_rows.IsAlive(pSender)) {
            m_rows.Run(pSender, nCode);
        } else {
            Undo();
            FocusCancel(this->GetDialogWnd());
        }
    }

    BOOL Validate(BOOL bSilent, ADM_Wnd** ppFailed) override {
        // Messages name a field by the label that it has by now.
        NameFields(*this, this->m_vControls);
        return Base::Validate(bSilent, ppFailed);
    }

    // Greys every control of the page together, or gives back what its rules say.
    virtual void SetDisabled(bool bDisabled) {
        m_bDisabled = bDisabled;
        for (ADM_Wnd* pControl : this->m_vControls) pControl->Enable(CanEdit());
        this->RunUpdate();
    }

  protected:
    // Fills the controls, once. False gives the set-up up: the page shows nothing and never becomes
    // ready.
    virtual bool SetUp() { return true; }
    // Shows what rows cannot show.
    virtual void ShowOptions() {}
    // Takes back what the user changed in read-only mode.
    virtual void Undo() {
        ShowRecord();
        this->RunUpdate();
    }

    // Shows the record in all controls.
    void ShowRecord() {
        const UpdateScope updating(m_bUpdating);
        m_rows.Show();
        ShowOptions();
    }

    // A control with no field of its own: a label, a frame, a button.
    void Label(int nId, ADM_Wnd& control) { this->RegisterControl(nId, &control); }
    void Labels(std::initializer_list<std::pair<int, ADM_Wnd*>> controls) {
        for (const auto& [nId, pControl] : controls) this->RegisterControl(nId, pControl);
    }

    // Binds a control to a value that `get` gives and `set` takes.
    template <class Control, class Get, class Set>
    Row& BindTo(Control& control, Get get, Set set) {
        return m_rows.Add(
            &control, EditedCode(control), [&control, get] { ShowValue(control, get()); },
            [&control, set] { set(ReadValue(control)); });
    }
    template <class Control, class Get, class Set>
    Row& Bind(int nId, Control& control, Get get, Set set) {
        this->RegisterControl(nId, &control);
        return BindTo(control, get, set);
    }

    // Binds a field whose value counts as it is typed, out of its range as well: its dialog has a
    // message of its own about the range.
    template <class Control, class Get, class Set>
    Row& BindTyped(int nId, Control& control, Get get, Set set) {
        this->RegisterControl(nId, &control);
        return m_rows.Add(
            &control, EditedCode(control), [&control, get] { ShowValue(control, get()); },
            [&control, set] { set(control.GetTypedValue()); });
    }

    // Binds a field whose value is pulled into its range at each change. The field itself follows
    // when it is left, so that "15" can be typed where the range begins at 10.
    template <class Control, class Get, class Set>
    Row& BindClamped(int nId, Control& control, Get get, Set set) {
        this->RegisterControl(nId, &control);
        return m_rows
            .Add(
                &control, EditedCode(control), [&control, get] { ShowValue(control, get()); },
                [&control, set] { set(ClampedValue(control)); })
            .ShowsWhenLeft();
    }

    // A spinner beside the field that decides on the value.
    template <class GaugeField>
    void Spinner(int nId, ADM_GaugeControl& spinner, GaugeField& field) {
        this->RegisterControl(nId, &spinner);
        field.SetGauge(&spinner);
    }
    // What belongs to a field that has been bound.
    template <class Field>
    void Dress(const SpinFieldIds& ids, SpinField<Field>& field) {
        Labels({{ids.nLabel, &field.lbl}, {ids.nUnit, &field.unit}});
        Spinner(ids.nSpin, field.spn, field.txt);
    }
    // The options that most analyses share.
    void BindResults(ResultControls& results, CAnalysisOptionsInterfaceBase* pOptions) {
        BindTo(
            results.radDestination, [pOptions] { return pOptions->GetDestinationOption(); },
            [pOptions](int e) { pOptions->SetDestinationOption(e); });
        BindTo(
            results.chkDynamicLink, [pOptions] { return pOptions->GetDynamicLink(); },
            [pOptions](bool b) { pOptions->SetDynamicLink(b); });
        BindTo(
            results.chkWriteRegionInfo, [pOptions] { return pOptions->GetWriteRegionInfo(); },
            [pOptions](bool b) { pOptions->SetWriteRegionInfo(b); });
    }

    // What the user's event nCode of a control does.
    Row& OnEvent(ADM_Wnd& control, int nCode, Step step) {
        return m_rows.Add(&control, nCode, {}, {}).Then(std::move(step));
    }
    Row& OnClick(int nId, ADM_Wnd& control, Step step) {
        this->RegisterControl(nId, &control);
        return OnEvent(control, ADMN_CLICKED, std::move(step));
    }
    // What follows when a page of the same dialog tells this.
    void OnBroadcast(NotificationCode eCode, Step step) {
        m_rows.AddBroadcast(eCode, std::move(step));
    }

    // Enables a list of controls where a rule says so and the page can be edited at all.
    void EnableControls(std::initializer_list<ADM_Wnd*> controls, bool bEnable) const {
        EnableControls(std::span(controls.begin(), controls.size()), bEnable);
    }
    void EnableControls(std::span<ADM_Wnd* const> controls, bool bEnable) const {
        for (ADM_Wnd* pControl : controls) pControl->Enable(bEnable && CanEdit());
    }
    void EnableButton(ADM_RadioButtons& rad, int nIndex, bool bEnable) const {
        rad.EnableButton(nIndex, bEnable && CanEdit());
    }
    static void ShowControls(std::initializer_list<ADM_Wnd*> controls, bool bShow) {
        for (ADM_Wnd* pControl : controls) pControl->Show(bShow ? SW_SHOW : SW_HIDE);
    }

    bool IsReady() const { return m_bReady; }
    bool IsReadOnly() const { return m_bReadOnly; }
    bool IsUpdating() const { return m_bUpdating != 0 || this->m_bInUpdate != 0; }
    bool IsDisabled() const { return m_bDisabled; }
    bool CanEdit() const { return !m_bReadOnly && !m_bDisabled; }

    BOOL m_bUpdating = 0;

  private:
    PageRows m_rows;
    bool m_bReadOnly;
    bool m_bReady = false;
    bool m_bDisabled = false;
};

// A page over one record: its rows name members of the record. Base is a CEditPage.
template <class Record, class Base>
class CRecordPage : public Base {
  public:
    using typename Base::Row;

    template <class... Args>
    explicit CRecordPage(Record* pRecord, Args&&... args)
        : Base(std::forward<Args>(args)...), m_pRecord(pRecord) {}

  protected:
    using Base::Bind;
    using Base::BindClamped;

    // The record that the rows show and store now. A page whose record moves overrides it.
    virtual Record* GetRecord() { return m_pRecord; }

    template <class Control, class Value>
    Row& Bind(int nId, Control& control, Value Record::*pField) {
        this->RegisterControl(nId, &control);
        return BindField(control, pField);
    }
    template <class Control, class Value>
    Row& BindClamped(int nId, Control& control, Value Record::*pField) {
        return BindClamped(
            nId, control, [this, pField] { return GetRecord()->*pField; },
            [this, pField](auto value) { GetRecord()->*pField = static_cast<Value>(value); });
    }
    // The buttons of a radio set in the order of their values 0, 1, 2 ...
    template <class Value>
    Row& BindRadios(std::initializer_list<int> ids, ADM_RadioButtons& rad, Value Record::*pField) {
        rad.SetupIds(this, static_cast<int>(ids.size()), ids.begin(), nullptr);
        return BindField(rad, pField);
    }
    // The same for buttons that stand for these values.
    template <class Value>
    Row& BindRadios(std::initializer_list<int> ids, std::initializer_list<int> values,
                    ADM_RadioButtons& rad, Value Record::*pField) {
        rad.SetupIds(this, static_cast<int>(ids.size()), ids.begin(), values.begin());
        return BindField(rad, pField);
    }

    Record* m_pRecord;  // not owned

  private:
    template <class Control, class Value>
    Row& BindField(Control& control, Value Record::*pField) {
        return this->BindTo(
            control,
            [this, pField] {
                // A field of one byte is a boolean, whatever it holds.
                if constexpr (sizeof(Value) == 1) {
                    return GetRecord()->*pField != 0;
                } else {
                    return GetRecord()->*pField;
                }
            },
            [this, pField](auto value) { GetRecord()->*pField = static_cast<Value>(value); });
    }
};
