// What the three list texts share: a numeric field whose arrows step through a list of allowed
// values, in ascending order, with or without a gauge that shows the index. A value between two
// entries may be typed unless the list is strict.
//
// The list is the control's own, apart from the validator's. The gauge is not owned.
#pragma once

#include <cstdint>
#include <memory>

#include "framework/ADM_GaugeControl.h"
#include "framework/NumericText.h"

struct IntegerListFields {
    std::unique_ptr<std::int32_t[]> m_pnList;
    static constexpr auto pList = &IntegerListFields::m_pnList;
};

struct FloatListFields {
    std::unique_ptr<float[]> m_pfList;
    static constexpr auto pList = &FloatListFields::m_pfList;
};

struct DoubleListFields {
    std::unique_ptr<double[]> m_pdList;
    static constexpr auto pList = &DoubleListFields::m_pdList;
};

template <class Base, class ListFields>
class ValueListText : public Base, protected ListFields {
  public:
    using Value = typename Base::Value;

    // A strict list of one entry leaves nothing to edit: the field is disabled then, else enabled.
    void OnAttach() override;
    BOOL Validate(BOOL bSilent, ADM_Wnd** ppFailed) override;
    void Notify(ADM_Wnd* pSender, int nId, int nCode, int nData) override;
    void Enable(BOOL bEnable) override;

    // As the plain form's; the gauge follows.
    virtual void SetValue(Value value);
    // The gauge, or null for none. It tells this field what happens to it.
    virtual void SetGauge(ADM_GaugeControl* pGauge);

    // Copies the list. Returns 0, with an empty list, when there is no memory for it.
    BOOL SetValueList(std::uint32_t uCount, const Value* pValues);
    // Only values on the list pass.
    void SetStrict(BOOL bStrict) { m_bStrict = bStrict; }
    BOOL GetStrict() const { return m_bStrict; }
    ADM_GaugeControl* GetGauge() const { return m_pGauge; }

    // The entry exactly equal to the value, or -1.
    int IndexOf();
    // The last entry below the value, within the list; 0 with no list.
    int FloorIndex();
    // To the next entry up or down; with a beep at the ends.
    void StepListUp();
    void StepListDown();

  private:
    const Value* List() const { return (this->*ListFields::pList).get(); }
    int LastIndex() const { return static_cast<int>(m_uListCount) - 1; }
    void EnableByList() { Enable(!(m_bStrict && m_uListCount == 1)); }
    bool StepFromOutside();
    void SetValueWithBeep(Value value);
    void TellPosition();
    void FollowGauge(int nCode, int nData);
    void FollowKeys(int nCode);

    ADM_GaugeControl* m_pGauge = nullptr;
    std::uint32_t m_uListCount = 0;
    BOOL m_bStrict = 0;
};
