// The built-in recording: a voltage-clamp family, computed from a model of a cell.
//
// The cell has a capacity, a leak and a delayed potassium conductance (four gates with rates that
// depend on the membrane potential), and is clamped through the resistance of its electrode. Each
// of the twelve sweeps holds -80 mV, steps to its own potential, steps to -40 mV and returns. The
// signals are the current through the electrode (pA) and the membrane potential (mV), with noise
// from a fixed seed and in the steps of a 16-bit converter: every system computes the same bytes.
#pragma once

#include "Recording.h"

namespace zxhost {

enum class Simulation {
    kFamily,      // the family with its waveform, epochs and cursors
    kSecondKind,  // the same sets without regions that dialogs offer
    kNoWaveform,  // a file that was recorded without a waveform
    kSheet,       // a sheet of results: steps, peaks, steady values and more
};

Recording SimulateRecording(Simulation which);

}  // namespace zxhost
