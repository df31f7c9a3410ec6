// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
// Uses the library for a long time and writes down what the process holds.
//   zogles_soak MINUTES FOLDER

#include "Client.h"
#include "Sample.h"

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>

namespace {

constexpr unsigned int seed = 20240229;
constexpr int stepsBetweenRests = 50;

// In the first half the window stays bound, so that only what grows within one context can grow. In
// the second half the window is lost at every rest, and between them.
void Soak(double seconds, const std::string& folder) {
    std::ofstream file(folder + "/samples.tsv");
    file << "stage\tseconds\tresident_kib\theld_kib\theap_kib\tdescriptors\tgl_objects\n";
    Client client(seed);
    const Counts& counts = client.GetCounts();
    const auto start = std::chrono::steady_clock::now();
    double nextSample = 0;
    for (double now = 0; now < seconds;) {
        const bool loses = now >= seconds / 2;
        for (int i = 0; i < stepsBetweenRests; ++i) {
            client.Step(loses);
        }
        client.Settle(loses);
        now = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
        if (now >= nextSample) {
            nextSample = now + 1;
            const Sample sample = TakeSample();
            file << (loses ? "losing" : "bound") << '\t' << now << '\t' << sample.resident << '\t'
                 << sample.held << '\t' << sample.heap << '\t' << sample.descriptors << '\t'
                 << sample.objects << std::endl; // flushed, to keep the samples of a crash
            fprintf(stderr, "\r%.0f s: %ld frames, %ld texts, %ld fonts, %ld losses ", now,
                    counts.frames, counts.texts, counts.fonts, counts.losses);
        }
    }
    fputc('\n', stderr);
}

} // namespace

int main(int argc, char* argv[]) {
    const double minutes = argc == 3 ? atof(argv[1]) : 0;
    if (minutes <= 0) {
        fprintf(stderr, "usage: zogles_soak MINUTES FOLDER\n");
        return 2;
    }
    setenv("ANDROID_LOG_TAGS", "*:S", 0);
    try {
        Soak(minutes * 60, argv[2]);
        return EXIT_SUCCESS;
    } catch (const std::exception& failure) {
        printf("FAILED: %s\n", failure.what());
        return EXIT_FAILURE;
    }
}
