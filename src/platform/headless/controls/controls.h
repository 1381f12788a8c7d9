// The standard window classes. Each is an ordinary window procedure with its object in window long
// 0, written against the public functions alone; each file registers its class once at start-up.
#pragma once

namespace headless {

void RegisterButtonClass();
void RegisterStaticClass();
void RegisterEditClass();
void RegisterListBoxClass();  // "ListBox" and the drop-down list "ComboLBox"
void RegisterComboBoxClass();
void RegisterTabControlClass();

}  // namespace headless
