// Runs of a whole script for the benchmarks: in process through the
// command's entry, and as a process of its own.
#pragma once

#include <benchmark/benchmark.h>

#include <string>

namespace Velarix::bench {

// A folder below the system's temporary folder that the runs write into.
std::string benchFolder();

// Runs `script` through the command in process once per iteration, its
// files written below benchFolder(); a failing run ends the benchmark with
// the command's message.
void runScriptInProcess(benchmark::State& state, const std::string& script);

// Writes `script` to a file and runs the built velarix binary on it once
// per iteration, waiting for it to end; the counter peak_MB gives the
// largest resident size a run reached.
void runScriptAsProcess(benchmark::State& state, const std::string& script);

}  // namespace Velarix::bench
