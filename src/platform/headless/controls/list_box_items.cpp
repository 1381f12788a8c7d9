#include <algorithm>
#include <cstring>
#include <new>

#include "platform/headless/controls/list_box.h"
#include "platform/headless/controls/text_order.h"

namespace headless {

bool ListBox::IsDrawnByOwner() const {
    return HasStyle(LBS_OWNERDRAWFIXED | LBS_OWNERDRAWVARIABLE);
}

LRESULT ListBox::Add(LPARAM text) {
    return Insert(m_sorted ? SortedPlace(text) : Count(), text);
}

LRESULT ListBox::Insert(int index, LPARAM text) {
    if (index == -1) index = Count();
    if (index < 0 || index > Count()) return LB_ERR;
    Item* item = nullptr;
    if (m_free.empty()) {
        item = &m_storage.emplace_back();
    } else {
        item = m_free.back();
        m_free.pop_back();
        *item = Item();
    }
    if (HasStrings()) {
        if (text != 0) item->text = reinterpret_cast<const char*>(text);
    } else {
        item->data = static_cast<ULONG_PTR>(text);
    }
    m_items.insert(m_items.begin() + index, item);
    if (m_variableHeights) item->height = MeasureByOwner(index, m_itemHeight);
    if (m_current >= index) ++m_current;
    UpdateScrollStyle();
    Repaint();
    return index;
}

LRESULT ListBox::Delete(LRESULT index) {
    if (!IsIndex(index)) return LB_ERR;
    TellDeleted(static_cast<int>(index));
    if (!IsIndex(index)) return LB_ERR;
    m_free.push_back(m_items[static_cast<size_t>(index)]);
    m_items.erase(m_items.begin() + index);
    if (m_current == index) {
        m_current = -1;
    } else if (m_current > index) {
        --m_current;
    }
    m_caret = std::max(0, std::min(m_caret, Count() - 1));
    m_anchor = std::min(m_anchor, Count() - 1);
    UpdateScrollStyle();
    SetTop(m_top);
    Repaint();
    return Count();
}

void ListBox::Reset() {
    for (int i = Count() - 1; i >= 0; --i) TellDeleted(i);
    m_items.clear();
    m_free.clear();
    m_storage.clear();
    m_current = -1;
    m_caret = 0;
    m_anchor = -1;
    m_top = 0;
}

// The owner is told of every item that it draws, and of any other that carries a number.
void ListBox::TellDeleted(int index) {
    const ULONG_PTR data = m_items[static_cast<size_t>(index)]->data;
    if (!IsDrawnByOwner() && data == 0) return;
    if (HasStyle(LBS_NODATA)) return;
    DELETEITEMSTRUCT deleted = {};
    deleted.CtlType = ODT_LISTBOX;
    deleted.CtlID = static_cast<UINT>(Id());
    deleted.itemID = static_cast<UINT>(index);
    deleted.hwndItem = m_hwnd;
    deleted.itemData = data;
    SendMessageA(m_owner, WM_DELETEITEM, deleted.CtlID, reinterpret_cast<LPARAM>(&deleted));
}

LRESULT ListBox::GetText(LRESULT index, char* buffer) const {
    if (!IsIndex(index)) {
        SetLastError(ERROR_INVALID_INDEX);
        return LB_ERR;
    }
    const Item& item = *m_items[static_cast<size_t>(index)];
    if (!HasStrings()) {
        if (buffer != nullptr) std::memcpy(buffer, &item.data, sizeof(item.data));
        return sizeof(item.data);
    }
    if (buffer != nullptr) std::memcpy(buffer, item.text.c_str(), item.text.size() + 1);
    return static_cast<LRESULT>(item.text.size());
}

LRESULT ListBox::SetCount(LRESULT count) {
    if (!HasStyle(LBS_NODATA)) return LB_ERR;
    count = std::max<LRESULT>(count, 0);
    while (Count() > count) {
        m_free.push_back(m_items.back());
        m_items.pop_back();
    }
    while (Count() < count) Insert(-1, 0);
    if (m_current >= Count()) m_current = -1;
    m_caret = std::max(0, std::min(m_caret, Count() - 1));
    UpdateScrollStyle();
    SetTop(m_top);
    Repaint();
    return LB_OKAY;
}

// Where the search by halves first meets an equal item, or ends. Equal items therefore do not keep
// the order in which they came; hosts have seen the platform's order, so it is kept to the letter.
int ListBox::SortedPlace(LPARAM text) const {
    int low = 0;
    int high = Count() - 1;
    while (low <= high) {
        const int middle = (low + high) / 2;
        const int order = Compare(middle, text);
        if (order == 0) return middle;
        if (order > 0) {
            high = middle - 1;
        } else {
            low = middle + 1;
        }
    }
    return low;
}

// How the item stands to the new text, or to the new number of a list that its owner draws.
int ListBox::Compare(int index, LPARAM text) const {
    const Item& item = *m_items[static_cast<size_t>(index)];
    if (HasStrings()) {
        const char* other = reinterpret_cast<const char*>(text);
        return CompareListText(item.text, other != nullptr ? other : "");
    }
    COMPAREITEMSTRUCT compare = {};
    compare.CtlType = ODT_LISTBOX;
    compare.CtlID = static_cast<UINT>(Id());
    compare.hwndItem = m_hwnd;
    compare.itemID1 = static_cast<UINT>(index);
    compare.itemData1 = item.data;
    compare.itemID2 = static_cast<UINT>(-1);
    compare.itemData2 = static_cast<ULONG_PTR>(text);
    return static_cast<int>(
        SendMessageA(m_owner, WM_COMPAREITEM, compare.CtlID, reinterpret_cast<LPARAM>(&compare)));
}

LRESULT ListBox::Find(LRESULT start, LPARAM text, bool exact) const {
    const int count = Count();
    if (count == 0) return LB_ERR;
    const char* wanted = reinterpret_cast<const char*>(text);
    if (HasStrings() && (wanted == nullptr || *wanted == '\0')) return LB_ERR;
    const int first = start < -1 || start >= count ? 0 : static_cast<int>(start) + 1;
    for (int i = 0; i < count; ++i) {
        const int index = (first + i) % count;
        const Item& item = *m_items[static_cast<size_t>(index)];
        bool found = false;
        if (!HasStrings()) {
            found = m_sorted && exact ? Compare(index, text) == 0
                                      : item.data == static_cast<ULONG_PTR>(text);
        } else if (exact) {
            found = CompareListText(item.text, wanted) == 0;
        } else {
            // A folder's name in brackets is found by its name too.
            const std::string_view shown = item.text;
            found = BeginsWith(shown, wanted) ||
                    (shown.starts_with('[') && BeginsWith(shown.substr(1), wanted));
        }
        if (found) return index;
    }
    return LB_ERR;
}

}  // namespace headless
