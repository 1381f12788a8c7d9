// The exported functions that open no dialog.

#include "ZXADLG.h"
#include "contract/OptionTables.h"

extern "C" uint32_t ZXADLG_CALL ZXADLG_GetRecordFields(const char* record,
                                                       const ZXADLG_FieldInfo** fields) {
    if (fields != nullptr) *fields = nullptr;
    if (record == nullptr) return 0;
    try {
        const auto found = RecordFields(record);
        if (fields != nullptr && !found.empty()) *fields = found.data();
        return static_cast<uint32_t>(found.size());
    } catch (...) {
        return 0;
    }
}
