// The stimulus of a recording: a step protocol in words, or a file of command waveforms.
//
// The dialogs ask a stimulus's name and the regions that its epochs make; what the command was at
// each point is the host's own business when it computes.
#pragma once

#include <string>

#include "Recording.h"
#include "TextReader.h"

namespace zxhost {

// "-80..+40 by 10 mV from 30 to 130 ms": one step per sweep. The units may be left out (mV).
struct StepProtocol {
    double first = 0.0;
    double last = 0.0;
    double step = 0.0;
    std::string units = "mV";
    double begin = 0.0;  // ms
    double end = 0.0;    // ms, not part of the step

    std::size_t Sweeps() const;
};

// Whether a text is meant as a protocol and not as a file's name: it begins with a number and "..".
bool LooksLikeProtocol(const std::string& text);

// On failure false with "place N: what was expected".
bool ParseProtocol(const std::string& text, StepProtocol* protocol, std::string* error);

// Gives the recording one waveform and the step as "Epoch A". The protocol has as many steps as the
// recording sweeps, within its span; otherwise false with what is wrong.
bool ApplyProtocol(const StepProtocol& protocol, Recording* recording, std::string* error);

// Gives the recording a waveform for each signal of a file with the recording's own axis, of one
// sweep or as many as the recording has. Where the first one consists of steps, they are epochs.
bool ApplyWaveformFile(const std::string& path, Recording* recording, std::string* error,
                       const ReadProgress& progress = nullptr);

}  // namespace zxhost
