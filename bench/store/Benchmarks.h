// The measurements of this program; each prints its own rows.
#pragma once

void MeasureNumbers();
void MeasureLists();
void MeasureStore();
