// Recolouring a stored picture: the whole paint at the start size of the window, and the colour
// pass alone for a variant that draws one colour (reading and drawing only), the count (and the
// lookup) and the logarithm (and the formula); their differences are the shares.

#include "model/Einfaerbung.h"

#include <benchmark/benchmark.h>

#include <memory>

namespace {

constexpr QSize Ansicht(725, 648); ///< the picture widget in a window of 985 x 675 pixels

/// Equation 1 at its start settings, full size, computed and stored.
std::unique_ptr<Mandelbrot> gespeichertesBild() {
    auto menge = std::make_unique<Mandelbrot>();
    menge->resize(Ansicht);
    menge->show();
    menge->Initialisierung();
    menge->g_halbesBild = Vollbild;
    menge->grab();
    return menge;
}

void ganzesZeichnen(benchmark::State& zustand) {
    const auto menge = gespeichertesBild();
    QImage ziel(Ansicht, QImage::Format_ARGB32_Premultiplied);
    int versatz = 0;
    for ([[maybe_unused]] auto runde : zustand) {
        menge->color_OffsetSlider(++versatz % Mandelbrot::ColormapSize);
        QPainter maler(&ziel);
        menge->Berechnung(&maler);
    }
}

void farbdurchgang(benchmark::State& zustand) {
    const auto menge = gespeichertesBild();
    menge->rechen_VarianteDiv = static_cast<qint32>(zustand.range(0));
    Bildlauf lauf;
    lauf.SpaltenKLGross = Ansicht.width() - Mandelbrot::Streifenbreite;
    lauf.ZeilenKLGross = Ansicht.height();
    for ([[maybe_unused]] auto runde : zustand) {
        einfaerben(*menge, lauf, menge->Bildflaeche);
    }
}

BENCHMARK(ganzesZeichnen)->Unit(benchmark::kMillisecond);
BENCHMARK(farbdurchgang)->ArgName("varDiv")->Arg(0)->Arg(2)->Arg(8)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv) {
    const QApplication app(argc, argv);
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
