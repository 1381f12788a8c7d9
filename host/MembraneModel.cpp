#include "MembraneModel.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace zxhost {
namespace {

constexpr int kSweeps = 12;
constexpr int kPoints = 2000;
constexpr double kFrequency = 10000.0;  // Hz
constexpr int kStepsPerPoint = 20;      // of the integration

// The command, in points and mV.
constexpr int kStepBegin = 300;
constexpr int kTailBegin = 1300;
constexpr int kTailEnd = 1700;
constexpr double kHolding = -80.0;
constexpr double kFirstStep = -100.0;
constexpr double kStepHeight = 15.0;
constexpr double kTail = -40.0;

// The cell, in pF, nS, mV, ms and pA; a resistance is in GOhm.
constexpr double kCapacity = 20.0;
constexpr double kElectrode = 0.010;
constexpr double kLeak = 2.0;
constexpr double kLeakPotential = -65.0;
constexpr double kPotassium = 60.0;
constexpr double kPotassiumPotential = -90.0;

constexpr double kCurrentNoise = 3.0;     // pA
constexpr double kPotentialNoise = 0.05;  // mV
constexpr double kCurrentBit = 0.5;       // pA per step of the converter
constexpr double kPotentialBit = 0.01;    // mV per step of the converter

// e to the x by plain arithmetic: the C libraries' own differ in the last digit.
double Exponential(double x) {
    const double halves = 16.0;
    double term = 1.0;
    double sum = 1.0;
    for (int i = 1; i <= 14; ++i) {
        term *= x / halves / i;
        sum += term;
    }
    for (int i = 0; i < 4; ++i) sum *= sum;
    return sum;
}

// Uniform numbers from a fixed seed; the sum of twelve is near enough to a normal distribution.
class Noise {
  public:
    double Next() {
        double sum = -6.0;
        for (int i = 0; i < 12; ++i) {
            state_ = state_ * 6364136223846793005u + 1442695040888963407u;
            sum += static_cast<double>(state_ >> 40) / 16777216.0;
        }
        return sum;
    }

  private:
    std::uint64_t state_ = 20260101;
};

double Command(int sweep, int point) {
    if (point < kStepBegin || point >= kTailEnd) return kHolding;
    return point < kTailBegin ? kFirstStep + kStepHeight * sweep : kTail;
}

class Cell {
  public:
    Cell() {
        double open, close;
        Rates(potential_, &open, &close);
        gate_ = open / (open + close);
    }

    // Moves on by so many ms and gives the current through the electrode.
    double Advance(double command, double time) {
        double open, close;
        Rates(potential_, &open, &close);
        gate_ += (open * (1.0 - gate_) - close * gate_) * time;
        const double gates = gate_ * gate_ * gate_ * gate_;
        const double outward = kLeak * (potential_ - kLeakPotential) +
                               kPotassium * gates * (potential_ - kPotassiumPotential);
        const double electrode = (command - potential_) / kElectrode;
        potential_ += (electrode - outward) / kCapacity * time;
        return electrode;
    }
    double Potential() const { return potential_; }

  private:
    // Of one gate of the potassium channel, per ms.
    static void Rates(double potential, double* open, double* close) {
        const double above = potential + 35.0;
        // Both sides of the quotient vanish at this potential.
        *open = std::fabs(above) < 1e-6 ? 0.1 : 0.01 * above / (1.0 - Exponential(-above / 10.0));
        *close = 0.05 * Exponential(-(potential + 45.0) / 80.0);
    }

    double potential_ = kHolding;
    double gate_ = 0.0;
};

double Converted(double value, double bit) {
    const double limit = 32767.0 * bit;
    return std::floor(std::clamp(value, -limit, limit) / bit + 0.5) * bit;
}

Recording Family() {
    Recording recording;
    recording.title = "Simulated voltage clamp";
    recording.samplingFrequency = kFrequency;
    recording.xUnits = "ms";
    for (int i = 0; i < kPoints; ++i) recording.x.push_back(i * 1000.0 / kFrequency);
    recording.groups = {{"Im", "pA", {}, true}, {"Vm", "mV", {}, true}};
    Noise noise;
    for (int sweep = 0; sweep < kSweeps; ++sweep) {
        Set current, potential;
        current.name = potential.name = "Sweep " + std::to_string(sweep + 1);
        current.values.reserve(kPoints);
        potential.values.reserve(kPoints);
        Cell cell;
        for (int point = 0; point < kPoints; ++point) {
            double sum = 0.0;
            for (int step = 0; step < kStepsPerPoint; ++step)
                sum += cell.Advance(Command(sweep, point), 1000.0 / kFrequency / kStepsPerPoint);
            current.values.push_back(
                Converted(sum / kStepsPerPoint + kCurrentNoise * noise.Next(), kCurrentBit));
            potential.values.push_back(
                Converted(cell.Potential() + kPotentialNoise * noise.Next(), kPotentialBit));
        }
        recording.groups[0].sets.push_back(std::move(current));
        recording.groups[1].sets.push_back(std::move(potential));
    }
    AddCursorRegions(&recording);
    recording.cursors = {100, 199, 1100, 1299};
    return recording;
}

void AddEpochs(Recording* recording) {
    recording->waveforms = {{0, "Command potential"}};
    recording->regions.push_back({3, "Epoch A", 0, 0, kStepBegin, kTailBegin - 1});
    recording->regions.push_back({4, "Epoch B", 0, 0, kTailBegin, kTailEnd - 1});
}

// What a scientist would have measured in the family, one row per sweep.
Recording Sheet() {
    const Recording family = Family();
    Recording sheet;
    sheet.title = "Simulated results sheet";
    sheet.kind = DataKind::kSheet;
    Set step{"Step", "mV", {}, true}, peak{"Peak", "pA", {}, true},
        steady{"Steady", "pA", {}, true}, tail{"Tail", "pA", {}, true},
        held{"Holding", "pA", {}, true};
    const auto mean = [](const std::vector<double>& values, int first, int last) {
        double sum = 0.0;
        for (int i = first; i < last; ++i) sum += values[static_cast<std::size_t>(i)];
        return sum / (last - first);
    };
    for (int sweep = 0; sweep < kSweeps; ++sweep) {
        const std::vector<double>& current =
            family.groups[0].sets[static_cast<std::size_t>(sweep)].values;
        step.values.push_back(kFirstStep + kStepHeight * sweep);
        peak.values.push_back(
            *std::max_element(current.begin() + kStepBegin + 50, current.begin() + kTailBegin));
        steady.values.push_back(mean(current, kTailBegin - 200, kTailBegin));
        tail.values.push_back(mean(current, kTailBegin + 20, kTailBegin + 60));
        held.values.push_back(mean(current, 0, kStepBegin));
    }
    sheet.groups = {{"Results", "", {step, peak, steady, tail, held}, true}};
    AddCursorRegions(&sheet);
    return sheet;
}

}  // namespace

Recording SimulateRecording(Simulation which) {
    if (which == Simulation::kSheet) return Sheet();
    Recording recording = Family();
    switch (which) {
        case Simulation::kSecondKind:
            recording.title = "Simulated sets of the second kind";
            recording.kind = DataKind::kSecondKind;
            recording.samplingFrequency = 0.0;
            break;
        case Simulation::kNoWaveform:
            recording.title = "Simulated recording without a waveform";
            break;
        default:
            AddEpochs(&recording);
            break;
    }
    return recording;
}

}  // namespace zxhost
