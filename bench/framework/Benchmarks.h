// The measurements of this program. Each prints its rows and returns whether they met their
// targets.
#pragma once

bool MeasureKeyStroke();
