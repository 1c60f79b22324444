#include "equations/punkt/Punktkern.h"

#include "equations/punkt/Punktlauf.h"

namespace {

template <class... Gruppen>
const Punktkern* suchen(qint32 nummer, formeln::Liste<Gruppen...> /*verzeichnis*/) {
    const Punktkern* kern = nullptr;
    ((Gruppen::umfasst(nummer) ? void(kern = &Punktkerne<Gruppen>[Gruppen::stelle(nummer)])
                               : void()),
     ...);
    return kern;
}

} // namespace

const Punktkern* punktkernFuer(qint32 wahl_Gleichung) {
    return suchen(wahl_Gleichung, formeln::Verzeichnis{});
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
