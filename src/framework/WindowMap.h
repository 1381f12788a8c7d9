// Finds what belongs to a window without asking the system. Window properties say the same and stay
// the contract with other modules, but reading one costs a call to the window server on some
// systems, too much for a procedure that sees every message of every control.
#pragma once

#include <unordered_map>

#include "platform/platform.h"

template <class T>
class WindowMap {
  public:
    void Set(HWND hWnd, const T& value) { m_values[hWnd] = value; }
    void Erase(HWND hWnd) { m_values.erase(hWnd); }
    // Null for a window that has nothing. Valid until the next change of the map.
    T* Find(HWND hWnd) {
        const auto it = m_values.find(hWnd);
        return it == m_values.end() ? nullptr : &it->second;
    }

  private:
    std::unordered_map<HWND, T> m_values;
};
