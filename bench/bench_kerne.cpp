// Google Benchmark over single pictures: every equation at its start settings, point by point and
// with lanes and shortcut.

#include "equations/Gleichungen.h"
#include "equations/Rechenweise.h"
#include "Messbild.h"

#include <benchmark/benchmark.h>

#include <QApplication>

namespace {

void startbild(benchmark::State& zustand, qint32 gleichung, Rechenweise weise) {
    rechenweise() = weise;
    Messbild bild(gleichung);
    for ([[maybe_unused]] auto _ : zustand) {
        zustand.SetIterationTime(bild.rechnen() / 1000.0);
    }
    zustand.counters["pixels/s"] =
        benchmark::Counter(double{Messbild::Spalten} * Messbild::Zeilen,
                           benchmark::Counter::kIsIterationInvariantRate);
}

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication app(argc, argv);
    for (const Gleichung& g : gleichungen()) {
        const std::string nummer = std::to_string(g.nummer);
        for (const auto& [name, weise] :
             {std::pair("plain/", Rechenweise{false, Befehlssatz::Punktweise}),
              std::pair("now/", Rechenweise{true, verfuegbar(Befehlssatz::Avx512)})}) {
            benchmark::RegisterBenchmark((name + nummer).c_str(), startbild, g.nummer, weise)
                ->UseManualTime()
                ->Unit(benchmark::kMillisecond);
        }
    }
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
