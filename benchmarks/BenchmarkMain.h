#pragma once

/// Runs the registered benchmarks under an application object.
int runBenchmarks(int argc, char **argv);
