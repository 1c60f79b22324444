#include "equations/punkt/Punktkern.h"

#include "equations/punkt/Punktlauf.h"

const Punktkern* punktkernFuer(qint32 wahl_Gleichung) {
    const auto kern = []<class Gruppe>(std::size_t stelle) { return &Punktkerne<Gruppe>[stelle]; };
    return formeln::nachschlagen<const Punktkern*>(wahl_Gleichung, kern, formeln::Verzeichnis{});
}

Formelwerte werteAus(const Mandelbrot& m) {
    return {.k = m.g_kPotenz,
            .hg = m.kPotHg,
            .hu = m.kPotHu,
            .px = m.Koppl_x,
            .py = m.Koppl_y,
            .zwilling = m.g_ZwillingJa,
            .abrueckung = m.g_Genauigkeit / 1e4,
            .schwelle = m.g_Genauigkeit / 1e6};
}
