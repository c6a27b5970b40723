#include "BenchmarkMain.h"

#include <QtWidgets/QApplication>

#include <benchmark/benchmark.h>

int runBenchmarks(int argc, char **argv)
{
    const QApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 2;
    }
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
