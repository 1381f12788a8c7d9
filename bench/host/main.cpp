// The reader of text files on ten million rows of two columns, against pandas' read_csv on the same
// file. Each reads three times; the best counts.
#include <unistd.h>

#include <algorithm>
#include <charconv>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

#include "RecordingReader.h"

namespace {

constexpr int kRows = 10000000;
constexpr int kRounds = 3;
constexpr double kTarget = 1.0 / 3.0;

void WriteSweep(const std::string& path) {
    std::FILE* file = std::fopen(path.c_str(), "wb");
    if (file == nullptr) std::abort();
    std::string rows = "Time (ms),Im (pA)\n";
    unsigned noise = 1;
    for (int i = 0; i < kRows; ++i) {
        noise = noise * 1664525u + 1013904223u;
        char text[64];
        char* at = std::to_chars(text, text + 30, 0.1 * i, std::chars_format::fixed, 1).ptr;
        *at++ = ',';
        const double value = 100.0 * std::sin(i * 1e-4) + 1e-9 * noise;
        at = std::to_chars(at, text + 60, value, std::chars_format::fixed, 5).ptr;
        *at++ = '\n';
        rows.append(text, at);
        if (rows.size() > (1 << 20) || i + 1 == kRows) {
            std::fwrite(rows.data(), 1, rows.size(), file);
            rows.clear();
        }
    }
    std::fclose(file);
}

// Seconds of the best round, and the sum of the second column for a comparison.
double ReadOurs(const std::string& path, double* sum) {
    double best = 1e9;
    for (int round = 0; round < kRounds; ++round) {
        const auto begin = std::chrono::steady_clock::now();
        zxhost::Recording recording;
        std::string error;
        if (!zxhost::ReadRecording(path, {}, &recording, &error)) {
            std::printf("%s\n", error.c_str());
            std::exit(2);
        }
        const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - begin;
        best = std::min(best, taken.count());
        *sum = 0.0;
        for (double value : recording.groups[0].sets[0].values) *sum += value;
    }
    return best;
}

// By the system's own Python, which the package is installed for.
double ReadPeers(const std::string& path, double* sum) {
    const std::string command =
        "/usr/bin/python3 -c 'import pandas, sys, time\n"
        "best = 1e9\n"
        "for i in range(" +
        std::to_string(kRounds) +
        "):\n"
        "    begin = time.perf_counter()\n"
        "    frame = pandas.read_csv(sys.argv[1])\n"
        "    best = min(best, time.perf_counter() - begin)\n"
        "print(best, frame.iloc[:, 1].sum())' " +
        path;
    std::FILE* pipe = popen(command.c_str(), "r");
    double best = 0.0;
    const bool read = pipe != nullptr && std::fscanf(pipe, "%lf %lf", &best, sum) == 2;
    if (pipe == nullptr || pclose(pipe) != 0 || !read) {
        std::printf("pandas did not read the file\n");
        std::exit(2);
    }
    return best;
}

}  // namespace

int main() {
    const std::string path =
        (std::filesystem::temp_directory_path() / ("zx-bench-" + std::to_string(getpid())))
            .string();
    WriteSweep(path);
    double ourSum = 0.0, peerSum = 0.0;
    const double ours = ReadOurs(path, &ourSum);
    const double peers = ReadPeers(path, &peerSum);
    std::filesystem::remove(path);
    std::printf("recording of 1e7 x 2 / pandas read_csv: %.2f s / %.2f s = %.3f (target %.3f)\n",
                ours, peers, ours / peers, kTarget);
    if (std::fabs(ourSum - peerSum) > 1e-6 * std::fabs(peerSum) + 1e-3) {
        std::printf("the columns differ: %g and %g\n", ourSum, peerSum);
        return 2;
    }
    return ours / peers <= kTarget ? 0 : 1;
}
