#include "contract/COptionsInterfaceBase.h"

#include "framework/ADM_Wnd.h"
#include "widgets/Framework.h"

COptionsInterfaceBase::COptionsInterfaceBase() : m_hInstance(GetFrameworkInstance()) {}

COptionsInterfaceBase::~COptionsInterfaceBase() = default;

void COptionsInterfaceBase::AddObserver(ADM_Wnd* pObserver) {
    if (pObserver != nullptr) m_vObservers.push_back(pObserver);
}

void COptionsInterfaceBase::Notify(int nCode) {
    // By index: an observer may add another one while it is told.
    for (std::size_t i = 0; i < m_vObservers.size(); ++i)
        m_vObservers[i]->Notify(nullptr, 0, nCode, 0);
}
